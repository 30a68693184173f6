// Bed friction, in a step of its own after the flux update:
//
//   dq/dt = -q |q| / (C h^2)
//
// by the midpoint rule, with the source made semi-implicit: 1 / (2 dt |q| + C h^2) in place of
// 1 / (C h^2). So the discharge never changes its sign and stays finite as h goes to 0.
#pragma once

#include <cmath>

#include "simulation/kernels/hydraulics/chezy.h"
#include "simulation/kernels/numeric.h"

namespace kernels::hydraulics {

/// Refreshes the Chezy value and reduces the discharge of a cell, wet or dry. The closures see the
/// raw depth, which may be tiny or slightly negative.
/// @param dt time step [s]; @param bed z [m]
/// @param roughness friction value of the cell, in the closure's own unit
/// @param chezy out: squared Chezy value C [-]; @param state {H, qx, qy} [m, m2/s]; H stays
inline void friction(const Parameters& par, const double* dt, const double* bed,
                     const double* roughness, double* chezy, double* state) {
  const double h = state[0] - bed[0];
  chezy[0] = chezySquared(par, h, roughness[0]);

  const double qx = state[1];
  const double qy = state[2];
  const double B = chezy[0] * h * h;

  const double q = std::sqrt(qx * qx + qy * qy);
  const double a = q * inverse(2.0 * dt[0] * q + B);
  const double qxp = qx - a * qx * (dt[0] / 2.0);
  const double qyp = qy - a * qy * (dt[0] / 2.0);

  const double qp = std::sqrt(qxp * qxp + qyp * qyp);
  const double b = qp * inverse(B + 2.0 * dt[0] * qp);
  state[1] = qx - dt[0] * b * qxp;
  state[2] = qy - dt[0] * b * qyp;
}

}  // namespace kernels::hydraulics
