// The bed load of a study: its formula and the direction in which it moves.
//
// Formulas are of three forms, with the Shields parameter t, the relative density s of the grains
// under water and their size d:
//   MPM        qb = A sqrt(s g d^3) (t - tc)^B
//   Grass      qb = A (u - uc)^B
//   power law  qb = 0.05 sqrt(s) q^2 / (g^2 d C^3 h^5)
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "catalogue/Codes.h"
#include "setup/study/bed_material.h"

namespace setup {

/// A coefficient of a formula: given by its literature, or by the study.
struct Coefficient {
  bool isTaken;                 ///< whether the study may give it
  std::optional<double> value;  ///< if the study does not; none: it must
};

/// A formula under the name that a study gives it. This table and that in docs/setup.md say the
/// same.
struct BedloadFormula {
  std::string name;
  model::BedloadCode form;
  Coefficient coefficient;  ///< A
  Coefficient exponent;     ///< B
  Coefficient critical;     ///< tc [-], or uc [m/s]
  bool takesChezy;          ///< whether A follows from a Chezy value, after Engelund and Hansen
};

const std::vector<BedloadFormula>& bedloadFormulas();

/// The key of the critical value, of which there is one in the forms that have a threshold.
std::string criticalKeyOf(model::BedloadCode form);

/// The bed load as the run file has it.
struct Bedload {
  model::BedloadCode form = model::BedloadCode::MeyerPeterMueller;
  double coefficient = 0.0;
  double exponent = 0.0;
  double critical = 0.0;                  ///< Shields parameter [-], or velocity [m/s]
  double factor = 1.0;                    ///< on the bed load of the formula, to calibrate it
  std::optional<double> lateralSlope;     ///< factor f of tan = -f dz/dn / sqrt(t)
  std::optional<double> curvatureFactor;  ///< factor on depth times curvature as the solver has it

  /// The factor of the lateral slope in the run file. The stress that stands for t there is g^2 t.
  double lateralSlopeInRunFile(double gravity) const {
    return lateralSlope.value_or(0.0) * gravity;
  }
};

/// Reads the formula and the direction of the group BEDLOAD.
/// @throws BaseException for keys that a formula does not take or that it lacks, and where there is
///         no bed friction or grain size, but the formula or the lateral slope needs it
Bedload readBedload(const StudyGroup& group, const BedMaterial& material, double gravity,
                    bool hasFriction);

}  // namespace setup
