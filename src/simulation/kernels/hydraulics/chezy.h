// Roughness closures: the squared, non-dimensional Chezy value C of a bed, as in
//
//   shear stress / density = |q| q / (C h^2).
//
// One function per closure. Manning and Strickler:
// Chow, Open-Channel Hydraulics (1959), chapter 5. Logarithmic law of the sand roughness: Keulegan,
// Laws of turbulent flow in open channels, J. Res. Nat. Bur. Standards 21 (1938). The law for
// shallow flow over coarse beds: Bezzola, Fliesswiderstand und Sohlenstabilitaet natuerlicher
// Gerinne (2002).
#pragma once

#include <cmath>

#include "catalogue/Codes.h"
#include "simulation/kernels/Parameters.h"
#include "simulation/kernels/numeric.h"

namespace kernels::hydraulics {

/// Manning: C = d^(1/3) / (g n^2).
/// @param depth [m]; @param n Manning's value [s/m^(1/3)]
inline double chezyManning(const Parameters& par, double depth, double n) {
  const double rootOfDepth = std::cbrt(fmax(depth, par.real(ParameterID::MinWaterDepth)));
  return par.real(ParameterID::InvGravity) * rootOfDepth * inverse(n) * inverse(n);
}

/// Strickler: C = k^2 d^(1/3) / g.
/// @param depth [m]; @param k Strickler's value [m^(1/3)/s]
inline double chezyStrickler(const Parameters& par, double depth, double k) {
  const double rootOfDepth = std::cbrt(fmax(depth, par.real(ParameterID::MinWaterDepth)));
  return par.real(ParameterID::InvGravity) * rootOfDepth * k * k;
}

/// Sand roughness: C = (5.75 log10(12 d / ks))^2, and its value at d = ks for smaller depths.
/// @param depth [m]; @param ks equivalent sand roughness [m]
inline double chezyLogarithmic(double depth, double ks) {
  if (!(depth > ks)) return 38.505650853010394;
  const double root = 5.75 * std::log10(12.0 * depth * inverse(ks));
  return root * root;
}

/// Sand roughness in shallow flow: a logarithmic law with a layer of roughness, for depths down to
/// y = d / ks of 0.5; below that, C = 2.25.
/// @param depth [m]; @param ks equivalent sand roughness [m]
inline double chezyRoughLayer(double depth, double ks) {
  const double y = inverse(ks) * depth;
  const double profile = std::log(y) + 2.388762789;
  if (y > 2.0) {
    const double root = 2.5 * std::sqrt(1.0 - inverse(depth) * ks) * profile;
    return root * root;
  }
  if (y >= 0.5) {
    const double root = 1.25 * std::sqrt(y) * profile;
    return root * root;
  }
  return 2.25;
}

/// Squared Chezy value [-] by the closure of the run; 0 for an unknown one.
/// @param depth [m]; @param friction friction value of the cell, in the closure's own unit
inline double chezySquared(const Parameters& par, double depth, double friction) {
  // clang-format off
  using enum model::FrictionCode;
  switch (model::FrictionCode{par.integer(ParameterID::FrictionType)}) {
    case Manning:              return chezyManning(par, depth, friction);
    case Strickler:            return chezyStrickler(par, depth, friction);
    case SandRoughness:        return chezyLogarithmic(depth, friction);
    case SandRoughnessShallow: return chezyRoughLayer(depth, friction);
    default:                   return 0.0;
  }
  // clang-format on
}

}  // namespace kernels::hydraulics
