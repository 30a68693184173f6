// Tells users of a run that cannot get on: one whose steps are so small against its duration that
// it would never end, or whose time stands still.
#pragma once

namespace simulation {

class StallWatch {
 public:
  /// @param start,end of the run [s]
  StallWatch(double start, double end);

  /// To be called after each pass. Warns once on standard error, at the end of the first hundred
  /// passes that bring the run less than a 1e-13th of what is left to it.
  /// @param time the simulated time that the pass has reached [s]
  void pass(double time);

 private:
  double end;
  double mark;  ///< time at the begin of the hundred passes [s]
  int passes = 0;
  bool warned = false;
};

}  // namespace simulation
