// Critical Shields parameter on a sloping bed.
//
//   van Rijn   tc' = tc sin(a + p) / sin(p) / sqrt(Sn^2 + 1) sqrt(1 - Sn^2 / tan(p)^2)
//   Chen       tc' = tc / tan(p) sqrt((tan(p)^2 + 1) / (Ss^2 + Sn^2 + 1) + c^2 - 1) + c,
//              c = cos(pi/2 - a)
//
// with the slopes Ss along and Sn across the flow, a = atan(Ss) and the angle of repose p. After
// van Rijn, Handbook sediment transport by currents and waves (1989), and Chen, Ma and Dey,
// Sediment transport on arbitrary slopes: simplified model, J. Hydraul. Eng. 136 (2010).
#pragma once

#include <cmath>

#include "catalogue/Codes.h"
#include "catalogue/wet.h"
#include "simulation/kernels/Parameters.h"
#include "simulation/kernels/numeric.h"

namespace kernels::morphology {

/// NaN where the lateral slope is steeper than the angle of repose.
/// @param along,across slopes against the flow direction [-]
inline double criticalShieldsVanRijn(const Parameters& par, double along, double across) {
  const double p = par.real(ParameterID::ReposeAngle);
  const double itp = inverseOfAbsolute(std::tan(p));
  const double alongFactor =
      std::sin(std::atan(along) + p) * par.real(ParameterID::ThetaCritical) / std::sin(p);
  return alongFactor / std::sqrt(across * across + 1.0) *
         std::sqrt(1.0 - across * across * itp * itp);
}

/// @param along,across slopes against the flow direction [-]
inline double criticalShieldsChen(const Parameters& par, double along, double across) {
  const double tp = std::tan(par.real(ParameterID::ReposeAngle));
  const double c = std::cos(1.5707963267948966 - std::atan(along));
  const double X = (tp * tp + 1.0) / (across * across + (along * along + 1.0)) + (c * c - 1.0);
  return std::pow(X, 0.5) * (par.real(ParameterID::ThetaCritical) / tp) + c;
}

/// A dry cell keeps its value. A wet cell at rest has no flow direction and gets NaN.
/// @param state {H, qx, qy} [m, m2/s]; @param bed z [m]; @param gradient {dz/dx, dz/dy} [-]
/// @param critical out: critical Shields parameter of the cell [-]
inline void local_bed_slope(const Parameters& par, const double* state, const double* bed,
                            const double* gradient, double* critical) {
  if (!model::isWet(state[0] - bed[0], par.real(ParameterID::MinWaterDepth))) return;
  const double q = std::sqrt(state[1] * state[1] + state[2] * state[2]);
  const double nx = state[1] / q;
  const double ny = state[2] / q;
  const double along = gradient[0] * nx + gradient[1] * ny;
  const double across = gradient[0] * ny - nx * gradient[1];
  const model::SlopeCorrectionCode code{par.integer(ParameterID::IncipientMotType)};
  critical[0] = code == model::SlopeCorrectionCode::Chen
                    ? criticalShieldsChen(par, along, across)
                    : criticalShieldsVanRijn(par, along, across);
}

}  // namespace kernels::morphology
