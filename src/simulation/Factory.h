// Makes the objects of the driver; the caller owns what it gets.
#pragma once

#include "api/IExecutionPlan.h"

namespace simulation {

class Factory {
 public:
  /// See ExecutionPlan for the meaning of the arguments.
  static api::IExecutionPlan* createExecutionPlan(const double& start, const double& increment,
                                                  const double& end);
};

}  // namespace simulation
