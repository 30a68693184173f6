// Bed load formulas: capacity and its derivative with respect to the specific discharge.
//
//   Grass form     qb = A (q/h - vc)^B
//   power law      qb = 0.05 sqrt(s) q^2 / (g^2 d C^3 h^5)
//   MPM form       qb = A sqrt(s g d^3) (t - tc)^B,   t = q^2 / (h^2 C^2 g s d)
//
// after Grass, Sediment transport by waves and currents (1981), and Meyer-Peter and Mueller,
// Formulas for bed-load transport, 2nd IAHR congress (1948); the coefficient of the power law is
// that of Engelund and Hansen, A monograph on sediment transport in alluvial streams (1967). C^2 is
// the squared non-dimensional Chezy value, s the relative density. The power law is quadratic in q
// and knows no threshold.
#pragma once

#include <cmath>

#include "catalogue/Codes.h"
#include "catalogue/Limits.h"
#include "simulation/kernels/Parameters.h"
#include "simulation/kernels/numeric.h"

namespace kernels::morphology {

/// What the formulas take from a cell.
struct BedloadCell {
  double q;           ///< magnitude of the specific discharge [m2/s]
  double inverse_h;   ///< 1/h [1/m], or 0 without water
  double inverse_C2;  ///< 1/C^2 [-]
  double d;           ///< median grain size [m]
  double critical;    ///< critical Shields parameter [-], or velocity [m/s] in the Grass form
};

struct BedloadRate {
  double capacity;    ///< qb [m2/s]
  double derivative;  ///< dqb/dq [-]
};

/// 1/C^2 of a cell. Without friction it is the mark of a missing value, not 0.
/// @param friction 1 if `chezy` may be read; @param chezy squared non-dimensional Chezy value
inline double inverseChezy(int friction, const double* chezy) {
  return friction == 1 ? inverse(chezy[0]) : model::MISSING_VALUE;
}

/// Excess over the critical value; 0 below it and for a NaN.
inline double excess(double load, double critical) {
  return fmax(load - critical, 0.0);
}

/// Unit of the MPM capacity, A sqrt(s g d^3) [m2/s].
inline double mpmUnit(const Parameters& par, double d) {
  const double g = par.real(ParameterID::Gravity);
  const double s = par.real(ParameterID::SedRelDensity);
  const double A = par.real(ParameterID::BedloadCoeff);
  return A * std::sqrt(d * d * d * g * s);
}

/// P/T of a power P = T^B: up to the factor B its derivative. 0 at T = 0, whatever B.
inline double powerOverBase(double P, double T) {
  return T < TINY ? 0.0 : P / T;
}

inline BedloadRate grassBedload(const Parameters& par, const BedloadCell& cell) {
  const double A = par.real(ParameterID::BedloadCoeff);
  const double B = par.real(ParameterID::BedloadExpon);
  const double T = excess(cell.q * cell.inverse_h, cell.critical);
  const double P = std::pow(T, B);
  return {A * P, A * B * powerOverBase(P, T) * cell.inverse_h};
}

inline BedloadRate powerLawBedload(const Parameters& par, const BedloadCell& cell) {
  const double ig = par.real(ParameterID::InvGravity);
  const double s = par.real(ParameterID::SedRelDensity);
  const double icc = cell.inverse_C2;
  const double ih = cell.inverse_h;
  const double q = cell.q;
  const double E = ig * (0.05 * ig) * std::sqrt(s) * inverse(cell.d);
  const double Ec = icc * E * std::sqrt(icc);
  return {Ec * (q * q) * ih * ih * ih * ih * ih, Ec * ((q + q) * ih * ih * ih * ih * ih)};
}

inline BedloadRate mpmBedload(const Parameters& par, const BedloadCell& cell) {
  const double ig = par.real(ParameterID::InvGravity);
  const double s = par.real(ParameterID::SedRelDensity);
  const double B = par.real(ParameterID::BedloadExpon);
  const double ih = cell.inverse_h;
  const double q = cell.q;
  const double K1 = cell.inverse_C2 * ig / (s * cell.d);
  const double K2 = (q + q) * ih * ih;
  const double T = excess(q * q * ih * ih * K1, cell.critical);
  const double P = std::pow(T, B);
  const double A1 = mpmUnit(par, cell.d);
  return {A1 * P, A1 * B * powerOverBase(P, T) * K1 * K2};
}

using BedloadFormula = BedloadRate(const Parameters&, const BedloadCell&);

/// The formula of the run; an unknown code is the MPM form.
/// @param mpm the MPM form in the grouping of its operations that the caller needs
inline BedloadRate bedload(const Parameters& par, const BedloadCell& cell,
                           BedloadFormula* mpm = mpmBedload) {
  // clang-format off
  switch (model::BedloadCode{par.integer(ParameterID::BeadloadType)}) {
    case model::BedloadCode::Grass:    return grassBedload(par, cell);
    case model::BedloadCode::PowerLaw: return powerLawBedload(par, cell);
    default:                           return mpm(par, cell);
  }
  // clang-format on
}

}  // namespace kernels::morphology
