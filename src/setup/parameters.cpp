#include "setup/parameters.h"

#include "common/check.h"
#include "model/catalogue/Parameters.h"

namespace setup {

namespace {

/// The update moves the bed from this time on; a hydraulic run never gets there [s].
constexpr double BEYOND_ANY_END = 1e12;

/// Of water [kg/m3].
constexpr double WATER_DENSITY = 1000.0;

/// The closure of a run without friction, which nothing uses.
constexpr int ANY_CLOSURE = 1;

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
    case FrictionType:  return study.friction ? study.friction->type : ANY_CLOSURE;
    case FluidDensity:  return WATER_DENSITY;
    case MorphStart:    return BEYOND_ANY_END;
    case SafeMode:      return hydraulics.safeMode ? 1 : 0;
      // clang-format on
    default:
      break;
  }
  CHECK_THAT(false, "the setup has no value for the parameter <"
                        << model::ParameterProps.at(id).name << ">");
  return 0;
}

}  // namespace setup
