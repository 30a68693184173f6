#include "catalogue/Parameters.h"

namespace model {

using enum ParameterID;

// clang-format off
const std::map<ParameterID, Property> ParameterProps = {
  {RefBottomEl,      {"RefBottomEl",      1, DataType::Double}},
  {CFLnumber,        {"CFLnumber",        1, DataType::Double}},
  {DTmax,            {"DTmax",            1, DataType::Double}},
  {MinWaterDepth,    {"MinWaterDepth",    1, DataType::Double}},
  {Gravity,          {"Gravity",          1, DataType::Double}},
  {InvGravity,       {"InvGravity",       1, DataType::Double}},
  {FrictionOn,       {"FrictionOn",       1, DataType::Int}},
  {FrictionType,     {"FrictionType",     1, DataType::Int}},
  {BedPorosity,      {"BedPorosity",      1, DataType::Double}},
  {InvBedPorosity,   {"InvBedPorosity",   1, DataType::Double}},
  {FluidDensity,     {"FluidDensity",     1, DataType::Double}},
  {SedimentDensity,  {"SedimentDensity",  1, DataType::Double}},
  {SedRelDensity,    {"SedRelDensity",    1, DataType::Double}},
  {BeadloadType,     {"BeadloadType",     1, DataType::Int}},
  {BedloadFactor,    {"BedloadFactor",    1, DataType::Double}},
  {BedloadCoeff,     {"BedloadCoeff",     1, DataType::Double}},
  {BedloadExpon,     {"BedloadExpon",     1, DataType::Double}},
  {BedloadIkeda,     {"BedloadIkeda",     1, DataType::Double}},
  {BedloadCurvature, {"BedloadCurvature", 1, DataType::Double}},
  {BedloadInts,      {"BedloadInts",      2, DataType::Int}},
  {FixBedAccuracy,   {"FixBedAccuracy",   1, DataType::Double}},
  {FixBedMaxIter,    {"FixBedMaxIter",    1, DataType::Int}},
  {MorphStart,       {"MorphStart",       1, DataType::Double}},
  {ThetaCritical,    {"ThetaCritical",    1, DataType::Double}},
  {ReposeAngle,      {"ReposeAngle",      1, DataType::Double}},
  {IncipientMotType, {"IncipientMotType", 1, DataType::Int}},
  {SafeMode,         {"SafeMode",         1, DataType::Int}},
};

const std::map<ParameterID, std::string> ParameterDescription = {
  {RefBottomEl,      "Minimum bottom elevation, used for translation in z-direction to minimize cancelling effects."},
  {CFLnumber,        "CFL number (usually between 0.0 and 1.0)."},
  {DTmax,            "Maximum allowed timestep for time integration."},
  {MinWaterDepth,    "Minimum water depth used for the declaration of wet/dry cells."},
  {Gravity,          "Gravitational acceleration."},
  {InvGravity,       "Inverse of gravitational acceleration."},
  {FrictionOn,       "Simulation with/without friction."},
  {FrictionType,     "Type of bed roughness closure."},
  {BedPorosity,      "Porosity of the bed (from 0.0 to 1.0) [-]."},
  {InvBedPorosity,   "defined as: 1/(1- BedPorosity) [-]."},
  {FluidDensity,     "Density of the fluid (generally water) [kg/mc]."},
  {SedimentDensity,  "Density of the sediment [kg/mc]."},
  {SedRelDensity,    "Relative density of the sediment: (Sediment_density - Fluid_density)/Fluid_density [-]."},
  {BeadloadType,     "ID of the bedload formula: [1] MPM-like, [2] GRASS-like."},
  {BedloadFactor,    "Bedload formula pre-factor; can be used to calibrate the formula [-]."},
  {BedloadCoeff,     "Coefficient A of a generic bedload formula, in the form A*(T-Tcr)^B [-]."},
  {BedloadExpon,     "Exponent B of a generic bedload formula, in the form A*(T-Tcr)^B [-]."},
  {BedloadIkeda,     "Factor for lateral bed slope effect on bed load transport direction (Ikeda) according to Talmon in the range of 0.3-0.6 [-]."},
  {BedloadCurvature, "Factor for curvature effect on bed load transport direction (Engelund) [-]."},
  {BedloadInts,      "Integers used for bed load direction [isIkeda, isCurvature] [-]."},
  {FixBedAccuracy,   "Accuracy for fix bed correction definig the maximal overshoot below the fix bed elevation [m]."},
  {FixBedMaxIter,    "Maximum number of iterations for fix bed correction [-]."},
  {MorphStart,       "Start time for mophological simulation [s]."},
  {ThetaCritical,    "Critical Shields parameter (or critical velocity in case of GRASS-like formulas) [-]."},
  {ReposeAngle,      "Angle of repose of bed material [rad]."},
  {IncipientMotType, "ID of formula for considering local bed slope: [1] VanRijn (1989), [2] Chen et al (2010)."},
  {SafeMode,         "If true, the simulation will be killed immediately in case of numerical problems (h<0), otherwise go on as long as possible."},
};

const std::vector<ParameterID> ParameterSimulation = {InvGravity, InvBedPorosity, SedRelDensity};

const std::vector<ParameterID> ParameterSetup = {};
// clang-format on

}  // namespace model
