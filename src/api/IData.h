// Values on every element of a set.
#pragma once

#include "api/IBaseData.h"
#include "api/IBaseSet.h"
#include "catalogue/IDs.h"

namespace api {

class IData : public IBaseData, public IBaseSet {
 public:
  virtual model::DataID getID() const = 0;
};

}  // namespace api
