// A global number that changes during a run.
#pragma once

#include "api/IBaseData.h"
#include "catalogue/IDs.h"

namespace api {

class IVariable : public IBaseData {
 public:
  virtual model::VariableID getID() const = 0;
};

}  // namespace api
