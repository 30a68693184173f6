#include "catalogue/Kernels.h"

namespace model {

using enum KernelID;

// clang-format off
const std::map<KernelID, Property> KernelProps = {
  {InitCellHydFeatures,    {"InitCellHydFeatures",    3, DataType::Double}},
  {InitCellMorFeatures,    {"InitCellMorFeatures",    3, DataType::Double}},
  {InitFrictionFeatures,   {"InitFrictionFeatures",   3, DataType::Double}},
  {TimeStepCalculation,    {"TimeStepCalculation",    3, DataType::Double}},
  {NodeStringStateCalc,    {"NodeStringStateCalc",    3, DataType::Double}},
  {EdgeDataInterpolation,  {"EdgeDataInterpolation",  3, DataType::Double}},
  {CellDataInterpolation,  {"CellDataInterpolation",  3, DataType::Double}},
  {EdgeDataModification,   {"EdgeDataModification",   3, DataType::Double}},
  {CellDataModification,   {"CellDataModification",   3, DataType::Double}},
  {CalCCurvature,          {"CalCCurvature",          3, DataType::Double}},
  {CalcBedGradient,        {"CalcBedGradient",        3, DataType::Double}},
  {HydBoundaryFluxes,      {"HydBoundaryFluxes",      3, DataType::Double}},
  {MorBoundaryFluxes,      {"MorBoundaryFluxes",      3, DataType::Double}},
  {HydWallBFluxes,         {"HydWallBFluxes",         3, DataType::Double}},
  {MorWallBFluxes,         {"MorWallBFluxes",         3, DataType::Double}},
  {HydInternalFluxes,      {"HydInternalFluxes",      3, DataType::Double}},
  {LocalBedSlope,          {"LocalBedSlope",          3, DataType::Double}},
  {MorBedloadTransport,    {"MorBedloadTransport",    3, DataType::Double}},
  {MorInternalFluxes,      {"MorInternalFluxes",      3, DataType::Double}},
  {MorFixBedCorrection,    {"MorFixBedCorrection",    3, DataType::Double}},
  {MorFixBedCorrectionMax, {"MorFixBedCorrectionMax", 3, DataType::Double}},
  {Update,                 {"Update",                 3, DataType::Double}},
  {HydFriction,            {"HydFriction",            3, DataType::Double}},
  {HydFlood,               {"HydFlood",               3, DataType::Double}},
  {HydSource,              {"HydSource",              3, DataType::Double}},
  {MorSource,              {"MorSource",              3, DataType::Double}},
};

const std::map<KernelID, std::string> KernelDescription = {
  {InitCellHydFeatures,    "This kernel initializes some hydraulic cell features; executed once before the time marching procedure."},
  {InitCellMorFeatures,    "This kernel initializes some morphology cell features; executed once before the time marching procedure."},
  {InitFrictionFeatures,   "This kernel initializes some friction cell features; executed once before the time marching procedure."},
  {TimeStepCalculation,    "This kernel finds the smallest integration timestep that satisfies the stability condition (CFL condition) for         explicit schemes."},
  {NodeStringStateCalc,    "This kernel calculates different integrated nodestring states from the adjacent cells         (e.g. mean WSE, wetted length, wetted area...);         these states are used to resolve the different boundary conditions."},
  {EdgeDataInterpolation,  "This kernel takes care of the time or edge based value interpolation of the different series declared in the command file,         i.e. the series provided in the external text files."},
  {CellDataInterpolation,  "This kernel takes care of the time or cell based value interpolation of the different series declared in the command file,         i.e. the series provided in the external text files."},
  {EdgeDataModification,   "This kernel reads data from the node string states and from global data, applies different modifications,         and stores the modified data in the global data again (e.g. calculate specific discharge from total discharge and wetted perimeter)."},
  {CellDataModification,   "This kernel reads data from the matid regions and from global data, applies different modifications,         and stores the modified data in the global data again (e.g. calculate specific discharge from total discharge and wetted area)."},
  {CalCCurvature,          "This kernel calculates the local curvature based on neighbour elements velocities."},
  {CalcBedGradient,        "This kernel calculates the local bed gradient."},
  {HydBoundaryFluxes,      "This kernel calculates the hydraulic boundary fluxes for all types of BCs (except for WALL)."},
  {MorBoundaryFluxes,      "This kernel calculates the morphology boundary fluxes for all types of BCs (except for WALL)."},
  {HydWallBFluxes,         "This kernel calculates the hydraulic boundary fluxes of type WALL; these are the default hydraulic boundary fluxes         if no others are defined."},
  {MorWallBFluxes,         "This kernel calculates the morphology boundary fluxes of type WALL; these are the default morphology boundary fluxes         if no others are defined."},
  {HydInternalFluxes,      "This kernel solves the internal hydraulic fluxes, i.e. contains the actual Riemann solver for hydraulics."},
  {LocalBedSlope,          "This kernel calculates the critical Shields stress using the approach of VanRijn to account for local slope effects."},
  {MorBedloadTransport,    "This kernel calculates the bed load transport capacity on the cells."},
  {MorInternalFluxes,      "This kernel solves the internal morphology fluxes, i.e. contains the actual Riemann solver for morphology."},
  {MorFixBedCorrection,    "This kernel corrects the morphological fluxes due to fixed bed definitions (only where user defined over matID)."},
  {MorFixBedCorrectionMax, "This kernel finds the maximal deviation for fixbed correction."},
  {Update,                 "This kernel performs the explicit Euler update formula, i.e. it advances the solution in time: case of HYDRAULIC and MORPHOLOGY simulation."},
  {HydFriction,            "This kernel calculates the hydraulic bottom friction according to the defined roughness closure; the friction is integrated         with a splitted semi-implicit Runge-Kutta 2 scheme."},
  {HydFlood,               "This kernel tracks the maximum values of water depth, flow velocity, specific discharge, and arrival time."},
  {HydSource,              "This kernel adds the mass sources to the dedicated cells."},
  {MorSource,              "This kernel adds the mass sources of sediment to the dedicated cells."},
};
// clang-format on

}  // namespace model
