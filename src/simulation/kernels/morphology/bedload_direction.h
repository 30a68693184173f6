// Direction of the bed load: the flow direction, turned by what acts across the flow.
//
// The tangent of the angle between transport and flow is the sum of
//
//   curvature      f_c h / R            after Engelund, Flow and bed topography in channel bends,
//                                       J. Hydraul. Div. ASCE 100 (1974)
//   lateral slope  -f_i dz/dn / sqrt(t) after Ikeda, Lateral bed load transport on side slopes,
//                                       J. Hydraul. Div. ASCE 108 (1982), with f_i of Talmon et
//                                       al., Laboratory measurements of the direction of sediment
//                                       transport on transverse alluvial-bed slopes, J. Hydraul.
//                                       Res. 33 (1995)
//
// with n to the left of the flow: a positive tangent turns the transport to the left.
#pragma once

#include <cmath>

#include "simulation/kernels/Parameters.h"
#include "simulation/kernels/numeric.h"

namespace kernels::morphology {

struct Direction {
  double x, y;  ///< unit vector, or (0, 0) where nothing flows
};

/// Dimensionless stress of the lateral slope effect. It weighs the grains with 1/g where the
/// Shields parameter of the bed load formulas has g.
/// @param q [m2/s]; @param inverse_h [1/m]; @param inverse_C2 1/C^2 [-]; @param d grain size [m]
inline double lateralStress(const Parameters& par, double q, double inverse_h, double inverse_C2,
                            double d) {
  const double weight =
      par.real(ParameterID::InvGravity) * par.real(ParameterID::SedRelDensity) * d;
  return q * q * inverse_C2 * inverse_h * inverse_h * inverse(weight);
}

/// Part of the deviation that the bend of the flow causes [-].
/// @param h depth [m]; @param curvature of the flow [1/m]
inline double curvatureDeviation(const Parameters& par, double h, double curvature) {
  const double on = par.integer(ParameterID::BedloadInts, 1) == 1 ? 1.0 : 0.0;
  return par.real(ParameterID::BedloadCurvature) * h * curvature * on;
}

/// Part of the deviation that the slope across the flow causes [-]: downslope.
/// @param slope dz/dn, positive where the bed rises to the left [-]; @param stress lateralStress
inline double lateralSlopeDeviation(const Parameters& par, double slope, double stress) {
  const double on = par.integer(ParameterID::BedloadInts, 0) == 1 ? 1.0 : 0.0;
  return -slope * (par.real(ParameterID::BedloadIkeda) * inverse(std::sqrt(stress))) * on;
}

/// The flow direction turned by the angle of the given tangent.
inline Direction turned(const Direction& flow, double tangent) {
  const double cosine = std::sqrt(1.0 / (tangent * tangent + 1.0));
  return {(flow.x - flow.y * tangent) * cosine, (flow.y + flow.x * tangent) * cosine};
}

}  // namespace kernels::morphology
