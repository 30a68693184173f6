#include "simulation/ExecutionPlan.h"

#include <cmath>

namespace simulation {

ExecutionPlan::ExecutionPlan(const double& windowStart, const double& windowIncrement,
                             const double& windowEnd)
    : start(windowStart), increment(windowIncrement), end(windowEnd), next(windowStart) {
  if (start == end) {
    once = true;
  } else if (increment == 0.0) {
    everyCall = true;
  }
}

bool ExecutionPlan::execute(const double& time) {
  return checkExecution(time);
}

// The step is clipped outside the window and after a finished single firing, too: it then becomes
// what is left to the next firing, which can be negative.
bool ExecutionPlan::execute(const double& time, double& timeStep) {
  const bool fires = checkExecution(time);
  timeStep = std::fmin(fires ? increment : next - time, timeStep);
  return fires;
}

double ExecutionPlan::getIncrement() const {
  return increment;
}

bool ExecutionPlan::checkExecution(const double& time) {
  if (finished) return false;
  if (start > time) return false;
  if (time > end) return false;
  if (everyCall) return true;
  if (time < next) return false;
  if (once) {
    finished = true;
    return true;
  }
  next = next + increment;
  return true;
}

api::IExecutionPlan* Factory::createExecutionPlan(const double& start, const double& increment,
                                                  const double& end) {
  return new ExecutionPlan(start, increment, end);
}

}  // namespace simulation
