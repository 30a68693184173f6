// The stable time step of the explicit scheme (Courant, Friedrichs and Lewy, 1928), edge by edge:
//
//   dt = L / (sqrt(g h) + |qn| / h),
//
// with L twice the distance between the edge and the centroid of the cell, for both cells.
#pragma once

#include <cmath>

#include "simulation/kernels/Parameters.h"
#include "simulation/kernels/numeric.h"

namespace kernels::hydraulics {

/// Bound of one side [s]; a dry side never limits the step.
inline double timeStepBound(const Parameters& par, const double* normal, double size, int wetted,
                            const double* state, double bed) {
  if (wetted != 1) return 1e12;
  const double h = state[0] - bed;
  const double qn = state[1] * normal[0] + state[2] * normal[1];
  return size / (std::sqrt(par.real(ParameterID::Gravity) * h) + std::fabs(qn) / h + TINY);
}

/// @param normal {nx, ny}; @param size characteristic sizes {left, right} [m]
/// @param wettedLeft,wettedRight 1 for a wet cell
/// @param stateLeft,stateRight {H, qx, qy} [m, m2/s]; @param bedLeft,bedRight z [m]
/// @param lowest running minimum of the step [s]; a NaN at one edge does not set it
inline void time_step(const Parameters& par, const double* normal, const double* size,
                      const int* wettedLeft, const int* wettedRight, const double* stateLeft,
                      const double* stateRight, const double* bedLeft, const double* bedRight,
                      double* lowest) {
  const double left = timeStepBound(par, normal, size[0], wettedLeft[0], stateLeft, bedLeft[0]);
  const double right = timeStepBound(par, normal, size[1], wettedRight[0], stateRight, bedRight[0]);
  lowest[0] = fmin(fmin(left, right), lowest[0]);
}

}  // namespace kernels::hydraulics
