// Watches series that do not hold what some look-ups would need: an end mark, a first point, a
// length that fits. They may stand in a run file as long as nothing asks them for more than they
// hold.
#pragma once

#include <vector>

#include "simulation/InputChecks.h"

namespace simulation {

class SeriesGuard {
 public:
  /// Notes the look-ups of an interpolation kernel that could leave their series; none for any
  /// other kernel. The maps must have been checked.
  SeriesGuard(model::KernelID kernel, const Dats& dats, const Maps& maps);

  /// Whether there is nothing to watch.
  bool empty() const { return watched.empty(); }

  /// To be called before each call of the kernel.
  /// @param time [s]
  /// @throws BaseException if a series is about to be asked for more than it holds
  void check(double time) const;

 private:
  struct LookUp {
    int series;            ///< row of the series
    const double* row;     ///< its points
    int size;              ///< its number of values
    int key;               ///< what it is asked for
    const double* string;  ///< state of the nodestring; null where none is asked
  };

  std::vector<LookUp> watched;
};

}  // namespace simulation
