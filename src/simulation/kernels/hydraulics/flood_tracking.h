// Keeps what flood managers ask for: when the water came and how bad it got.
#pragma once

#include <cmath>

#include "simulation/kernels/numeric.h"

namespace kernels::hydraulics {

/// Dry cells are skipped. The arrival time is that of the first wet step after time 0.
/// @param time [s]; @param state {H, qx, qy} [m, m2/s]; @param bed z [m]; @param wetted 1 or 0
/// @param flood {arrival time [s], maximum depth [m], velocity [m/s], specific discharge [m2/s]}
inline void flood_tracking(const double* time, const double* state, const double* bed,
                           const int* wetted, double* flood) {
  if (wetted[0] == 0) return;
  const double h = state[0] - bed[0];
  const double q = std::sqrt(state[1] * state[1] + state[2] * state[2]);
  if (flood[0] <= 0.0) flood[0] = time[0];
  flood[1] = fmax(flood[1], h);
  flood[2] = fmax(flood[2], q * inverse(h));
  flood[3] = fmax(flood[3], q);
}

}  // namespace kernels::hydraulics
