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

#include "simulation/kernels/Parameters.h"
#include "simulation/kernels/numeric.h"

namespace kernels::morphology {

/// The two speeds of a disturbance of the bed on one side [m/s].
struct BedWaves {
  double low, high;
};

/// A negative radicand gives NaN for both: the other side's numbers then count.
/// @param normal {nx, ny}; @param state {H, qx, qy} [m, m2/s]; @param bed z [m]
/// @param derivative d(qsx, qsy)/dq [-]
inline BedWaves bedWaves(const Parameters& par, const double* normal, const double* state,
                         double bed, const double* derivative) {
  const double qn = state[1] * normal[0] + state[2] * normal[1];
  const double h = state[0] - bed;
  const double un = inverse(h) * qn;
  const double c = std::sqrt(h * par.real(ParameterID::Gravity));
  const double q = std::sqrt(state[1] * state[1] + state[2] * state[2]);
  const double a = un - c;
  const double dn = (derivative[0] * normal[0] + derivative[1] * normal[1]) * (qn * inverse(q));
  const double root = std::sqrt(a * a + dn * 4.0 * c * c);
  return {(a - root) * 0.5, (a + root) * 0.5};
}

/// @param normal unit normal {nx, ny}, out of the left into the right cell
/// @param wettedLeft,wettedRight 1 or 0; nothing passes the edge of a dry cell
/// @param stateLeft,stateRight {H, qx, qy} [m, m2/s]; @param bedLeft,bedRight z [m]
/// @param capacityLeft,capacityRight {qsx, qsy} [m2/s]
/// @param derivativeLeft,derivativeRight d(qsx, qsy)/dq [-]
/// @param flux out [m2/s], positive to the right, in units of bed elevation (pores included)
inline void internal_fluxes(const Parameters& par, const double* normal, const int* wettedLeft,
                            const int* wettedRight, const double* stateLeft,
                            const double* stateRight, const double* bedLeft, const double* bedRight,
                            const double* capacityLeft, const double* capacityRight,
                            const double* derivativeLeft, const double* derivativeRight,
                            double* flux) {
  const double FL = capacityLeft[0] * normal[0] + capacityLeft[1] * normal[1];
  const double FR = capacityRight[0] * normal[0] + capacityRight[1] * normal[1];
  const BedWaves left = bedWaves(par, normal, stateLeft, bedLeft[0], derivativeLeft);
  const BedWaves right = bedWaves(par, normal, stateRight, bedRight[0], derivativeRight);
  const double sL = fmin(left.low, right.low);
  const double sR = fmax(left.high, right.high);

  const double N = FL * sR - FR * sL + (bedRight[0] - bedLeft[0]) * (sL * sR);
  const double bothWet = static_cast<double>(wettedLeft[0]) * static_cast<double>(wettedRight[0]);
  const double W =
      par.real(ParameterID::BedloadFactor) * (bothWet * par.real(ParameterID::InvBedPorosity));
  flux[0] = N * W * inverseOfAbsolute(sR - sL);
}

}  // namespace kernels::morphology
