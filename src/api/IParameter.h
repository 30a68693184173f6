// A global number of the model.
#pragma once

#include "api/IBaseData.h"
#include "catalogue/IDs.h"

namespace api {

class IParameter : public IBaseData {
 public:
  virtual model::ParameterID getID() const = 0;
};

}  // namespace api
