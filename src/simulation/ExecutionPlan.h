// A periodic schedule over a window of simulated time: the schedule of a kernel, of the output and
// of the progress lines.
//
// The next firing is counted from the previous one, not from the time of the call, so a late
// firing does not shift the grid; after a long step the plan fires on each call until it has
// caught up. A plan with start == end fires once; one with increment 0 fires on every call inside
// its window.
#pragma once

#include "api/IExecutionPlan.h"

namespace simulation {

class ExecutionPlan : public api::IExecutionPlan {
 public:
  /// @param start,end window [s], both inclusive
  /// @param increment time between two firings [s]
  ExecutionPlan(const double& start, const double& increment, const double& end);

  bool execute(const double& time) override;
  bool execute(const double& time, double& timeStep) override;
  double getIncrement() const override;

  /// The same as execute(time), its effect included.
  bool checkExecution(const double& time);

 private:
  bool everyCall = false;
  bool once = false;
  bool finished = false;
  double start;
  double increment;
  double end;
  double next;
};

/// Makes the objects of the driver; the caller owns what it gets.
class Factory {
 public:
  /// See ExecutionPlan for the meaning of the arguments.
  static api::IExecutionPlan* createExecutionPlan(const double& start, const double& increment,
                                                  const double& end);
};

}  // namespace simulation
