#include "setup/runfile/contents.h"

#include <optional>

#include "catalogue/Parameters.h"
#include "common/check.h"

namespace setup {

namespace {

/// The update moves the bed from this time on; a hydraulic run never gets there [s].
constexpr double BEYOND_ANY_END = 1e12;

/// The closure of a run without friction, which nothing uses.
constexpr auto ANY_CLOSURE = model::FrictionCode::Manning;

double waterDensity(const Study& study) {
  return study.morphology ? study.morphology->material.waterDensity : BedMaterial().waterDensity;
}

std::optional<ParameterValue> morphologyValue(model::ParameterID id, const Study& study) {
  using enum model::ParameterID;
  const Morphology& morphology = *study.morphology;
  const Bedload& bedload = morphology.bedload;
  const FixedBed fixed = morphology.fixedBed.value_or(FixedBed());
  const IncipientMotion motion = morphology.incipientMotion.value_or(IncipientMotion());
  switch (id) {
    // clang-format off
    case BedPorosity:      return morphology.material.porosity;
    case SedimentDensity:  return morphology.material.density;
    case BeadloadType:     return static_cast<int>(bedload.form);
    case BedloadFactor:    return bedload.factor;
    case BedloadCoeff:     return bedload.coefficient;
    case BedloadExpon:     return bedload.exponent;
    case BedloadIkeda:     return bedload.lateralSlopeInRunFile(study.hydraulics.gravity);
    case BedloadCurvature: return bedload.curvatureFactor.value_or(0.0);
    case BedloadInts:      return std::array<int, 2>{bedload.lateralSlope ? 1 : 0,
                                                     bedload.curvatureFactor ? 1 : 0};
    case FixBedAccuracy:   return fixed.accuracy;
    case FixBedMaxIter:    return fixed.maximumPasses;
    case ThetaCritical:    return bedload.critical;
    case ReposeAngle:      return motion.angleOfRepose;
    case IncipientMotType: return morphology.incipientMotion ? static_cast<int>(motion.correction) : 0;
      // clang-format on
    default:
      return std::nullopt;
  }
}

}  // namespace

ParameterValue parameterValue(model::ParameterID id, const Study& study) {
  using enum model::ParameterID;
  const HydraulicParameters& hydraulics = study.hydraulics;
  switch (id) {
    // clang-format off
    case CFLnumber:     return hydraulics.cfl;
    case DTmax:         return hydraulics.maximumTimeStep;
    case MinWaterDepth: return hydraulics.minimumWaterDepth;
    case Gravity:       return hydraulics.gravity;
    case FrictionOn:    return study.friction ? 1 : 0;
    case FrictionType:  return static_cast<int>(study.friction ? study.friction->closure : ANY_CLOSURE);
    case FluidDensity:  return waterDensity(study);
    case MorphStart:    return study.morphology ? study.morphology->start : BEYOND_ANY_END;
    case SafeMode:      return hydraulics.safeMode ? 1 : 0;
      // clang-format on
    default:
      break;
  }
  if (study.morphology) {
    if (const auto value = morphologyValue(id, study)) return *value;
  }
  CHECK_THAT(false, "the setup has no value for the parameter <"
                        << model::ParameterProps.at(id).name << ">");
  return 0;
}

}  // namespace setup
