// A periodic schedule over a window of simulated time.
#pragma once

namespace api {

class IExecutionPlan {
 public:
  virtual ~IExecutionPlan() = default;

  /// Whether the plan fires at `time` [s]; a firing moves the plan on.
  virtual bool execute(const double& time) = 0;
  /// As above, and lowers `timeStep` [s] so that the next firing is not stepped over.
  virtual bool execute(const double& time, double& timeStep) = 0;
  /// Time between two firings [s].
  virtual double getIncrement() const = 0;
};

}  // namespace api
