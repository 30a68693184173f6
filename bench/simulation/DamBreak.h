// A dam break as users run it: a study, `setup`, `simulation`.
//
// In a basin without friction, 2 m of water stand beside 1 m. All cells are wet, so that each edge
// costs a full Riemann problem.
#pragma once

#include <array>
#include <cstddef>
#include <string>

#include "bench/support/TemporaryFolder.h"

namespace bench {

/// The figures of one run.
struct DamBreakFigures {
  int steps = 0;
  double loopSeconds = 0.0;      ///< wall time of the time loop [s]
  std::size_t peakBytes = 0;     ///< peak resident memory of the process
  std::size_t runtimeBytes = 0;  ///< of which maps and dats of the runtime
};

class DamBreak {
 public:
  /// Makes the run file.
  /// @param rectangles along and across, each of 1 m by 1 m and two cells
  /// @param end of the simulated time [s]
  /// @throws std::exception if `setup` fails; so does run() if `simulation` fails
  DamBreak(const std::array<int, 2>& rectangles, double end);

  DamBreakFigures run() const;

 private:
  TemporaryFolder folder;
};

}  // namespace bench
