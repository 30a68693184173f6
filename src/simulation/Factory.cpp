#include "simulation/Factory.h"

#include "simulation/ExecutionPlan.h"

namespace simulation {

api::IExecutionPlan* Factory::createExecutionPlan(const double& start, const double& increment,
                                                  const double& end) {
  return new ExecutionPlan(start, increment, end);
}

}  // namespace simulation
