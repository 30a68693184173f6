// Bed load capacity of a cell and its derivative by the specific discharge, both as vectors.
//
//   qs = qb e,   dqs/dq = (dqb/dq) e,   e the direction of the transport
#pragma once

#include <cmath>

#include "simulation/kernels/morphology/bedload_direction.h"
#include "simulation/kernels/morphology/bedload_formulas.h"
#include "simulation/kernels/numeric.h"

namespace kernels::morphology {

/// Cells are not asked whether they are wet: a thin film has its capacity, too. The fluxes across
/// the edges make the difference.
/// @param friction 1 if there are Chezy values; @param state {H, qx, qy} [m, m2/s]
/// @param bed z [m]; @param chezy squared non-dimensional Chezy value, null without friction
/// @param grainSize median grain size [m]; @param critical critical Shields parameter [-], or
///   critical velocity [m/s] in the Grass form
/// @param gradient {dz/dx, dz/dy} [-]; @param curvature of the flow [1/m]
/// @param capacity out: {qsx, qsy} [m2/s]; @param derivative out: d(qsx, qsy)/dq [-]
inline void calc_bedload_transport(const Parameters& par, const int* friction, const double* state,
                                   const double* bed, const double* chezy, const double* grainSize,
                                   const double* critical, const double* gradient,
                                   const double* curvature, double* capacity, double* derivative) {
  const double q = std::sqrt(state[1] * state[1] + state[2] * state[2]);
  const double h = state[0] - bed[0];
  const double ih = inverse(h);
  const double icc = inverseChezy(friction[0], chezy);
  const BedloadRate rate = bedload(par, {q, ih, icc, grainSize[0], critical[0]});

  const double iq = inverse(q);
  const Direction flow{state[1] * iq, state[2] * iq};
  const double lateralSlope = gradient[1] * flow.x - gradient[0] * flow.y;
  const double stress = lateralStress(par, q, ih, icc, grainSize[0]);
  const double tangent =
      curvatureDeviation(par, h, curvature[0]) + lateralSlopeDeviation(par, lateralSlope, stress);
  const Direction transport = turned(flow, tangent);

  capacity[0] = rate.capacity * transport.x;
  capacity[1] = rate.capacity * transport.y;
  derivative[0] = rate.derivative * transport.x;
  derivative[1] = rate.derivative * transport.y;
}

}  // namespace kernels::morphology
