// Flux of the Exner equation across an edge between two cells of the domain.
//
// HLL approximate solver (Harten, Lax and van Leer, SIAM Review 25, 1983) for the bed, with wave
// speeds after Soares-Frazao and Zech, HLLC scheme with novel wave-speed estimators appropriate
// for two-dimensional shallow-water flow on erodible bed, Int. J. Numer. Meth. Fluids 66 (2011):
//
//   F = (FL sR - FR sL + (zR - zL) sL sR) / (sR - sL),
//   s = ((un - c) -+ sqrt((un - c)^2 + 4 c^2 dqs/dq)) / 2.
//
// The average holds whatever the signs of sL and sR: there is no upwind branch.
#pragma once

#include <cmath>

#include "simulation/kernels/numeric.h"
#include "simulation/kernels/parameters.h"

namespace kernels::morphology {

/// The two speeds of a disturbance of the bed on one side [m/s].
struct BedWaves {
  double low, high;
};

/// A negative radicand gives NaN for both: the other side's numbers then count.
/// @param normal {nx, ny}; @param state {H, qx, qy} [m, m2/s]; @param bed z [m]
/// @param derivative d(qsx, qsy)/dq [-]
inline BedWaves bedWaves(double const* normal, double const* state, double bed,
                         double const* derivative) {
  double const qn = state[1] * normal[0] + state[2] * normal[1];
  double const h = state[0] - bed;
  double const un = inverse(h) * qn;
  double const c = std::sqrt(h * real(ParameterID::Gravity));
  double const q = std::sqrt(state[1] * state[1] + state[2] * state[2]);
  double const a = un - c;
  double const dn = (derivative[0] * normal[0] + derivative[1] * normal[1]) * (qn * inverse(q));
  double const root = std::sqrt(a * a + dn * 4.0 * c * c);
  return {(a - root) * 0.5, (a + root) * 0.5};
}

/// @param normal unit normal {nx, ny}, out of the left into the right cell
/// @param wettedLeft,wettedRight 1 or 0; nothing passes the edge of a dry cell
/// @param stateLeft,stateRight {H, qx, qy} [m, m2/s]; @param bedLeft,bedRight z [m]
/// @param capacityLeft,capacityRight {qsx, qsy} [m2/s]
/// @param derivativeLeft,derivativeRight d(qsx, qsy)/dq [-]
/// @param flux out [m2/s], positive to the right, in units of bed elevation (pores included)
inline void internal_fluxes(double const* normal, int const* wettedLeft, int const* wettedRight,
                            double const* stateLeft, double const* stateRight,
                            double const* bedLeft, double const* bedRight,
                            double const* capacityLeft, double const* capacityRight,
                            double const* derivativeLeft, double const* derivativeRight,
                            double* flux) {
  double const FL = capacityLeft[0] * normal[0] + capacityLeft[1] * normal[1];
  double const FR = capacityRight[0] * normal[0] + capacityRight[1] * normal[1];
  BedWaves const left = bedWaves(normal, stateLeft, bedLeft[0], derivativeLeft);
  BedWaves const right = bedWaves(normal, stateRight, bedRight[0], derivativeRight);
  double const sL = fmin(left.low, right.low);
  double const sR = fmax(left.high, right.high);

  double const N = FL * sR - FR * sL + (bedRight[0] - bedLeft[0]) * (sL * sR);
  double const bothWet = static_cast<double>(wettedLeft[0]) * static_cast<double>(wettedRight[0]);
  double const W = real(ParameterID::BedloadFactor) * (bothWet * real(ParameterID::InvBedPorosity));
  flux[0] = N * W * inverseOfAbsolute(sR - sL);
}

}  // namespace kernels::morphology
