// A group of kernels that a user selects as one piece of physics.
#pragma once

#include "api/IBase.h"
#include "catalogue/IDs.h"

namespace api {

class IAggregate : public virtual IBase {
 public:
  virtual model::AggregateID getID() const = 0;
};

}  // namespace api
