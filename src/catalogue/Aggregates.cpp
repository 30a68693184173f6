#include "catalogue/Aggregates.h"

namespace model {

using enum AggregateID;

// clang-format off
const std::map<AggregateID, Property> AggregateProps = {
  {hydraulics_aggr,          {"hydraulics_aggr",          0, DataType::None}},
  {morphology_aggr,          {"morphology_aggr",          0, DataType::None}},
  {hyd_boundary_aggr,        {"hyd_boundary_aggr",        0, DataType::None}},
  {mor_boundary_aggr,        {"mor_boundary_aggr",        0, DataType::None}},
  {mor_direction_curve_aggr, {"mor_direction_curve_aggr", 0, DataType::None}},
  {mor_direction_ikeda_aggr, {"mor_direction_ikeda_aggr", 0, DataType::None}},
  {mor_fixedbed_aggr,        {"mor_fixedbed_aggr",        0, DataType::None}},
  {mor_local_bed_slope,      {"mor_local_bed_slope",      0, DataType::None}},
  {hyd_friction_aggr,        {"hyd_friction_aggr",        0, DataType::None}},
  {hyd_source_aggr,          {"hyd_source_aggr",          0, DataType::None}},
  {mor_source_aggr,          {"mor_source_aggr",          0, DataType::None}},
  {hyd_flood_aggr,           {"hyd_flood_aggr",           0, DataType::None}},
};

const std::map<AggregateID, std::string> AggregateDescription = {
  {hydraulics_aggr,          "This Aggregate is the basis and is required for all simulations. A circular dam break simulation is possible,        invoking DT calculation, flux calculation of type 'WALL' and 'SWE', and cell update."},
  {morphology_aggr,          "This Aggregate is the basis for morphological simulations, i.e. with integration of Exner equation."},
  {hyd_boundary_aggr,        "This Aggregate is used for hydraulic flux calculation that are neither of type 'WALL' nor 'SWE'.        The specific configuration of these boundaries is defined in the 'HYDRAULICS/BOUNDARY' block of the command file."},
  {mor_boundary_aggr,        "This Aggregate is used for morphological boundary flux calculation that are neither of type 'WALL' nor 'EXN'.        The specific configuration of these boundaries is defined in the 'MORPHOLOGY/BEDLOAD/BOUNDARY' block        of the command file."},
  {mor_direction_curve_aggr, "This Aggregate is used to account for local curvature effect on bed load transport direction (Engelund)."},
  {mor_direction_ikeda_aggr, "This Aggregate is used to account for lateral bed slope effect on bed load transport direction (Ikeda)."},
  {mor_fixedbed_aggr,        "This Aggregate is used to correct morphological fluxes due to fixed bed."},
  {mor_local_bed_slope,      "This Aggregate is used to correct the critical value for bed load formula (critical Shields or velocity)."},
  {hyd_friction_aggr,        "This Aggregate is used to consider friction effects of the hydraulic simulation."},
  {hyd_source_aggr,          "This Aggregate is used to impose external hydraulic sources (mass)."},
  {mor_source_aggr,          "This Aggregate is used to impose external morphological sources (mass)."},
  {hyd_flood_aggr,           "This Aggregate is used to track flood variables."},
};

const std::map<AggregateID, std::vector<std::string>> Aggregate2CmdFilePaths = {
  {hydraulics_aggr,          {"SETUP/DOMAIN/RHEOPLANE_2D/HYDRAULICS"}},
  {morphology_aggr,          {"SETUP/DOMAIN/RHEOPLANE_2D/MORPHOLOGY"}},
  {hyd_boundary_aggr,        {"SETUP/DOMAIN/RHEOPLANE_2D/HYDRAULICS/BOUNDARY", "SETUP/DOMAIN/RHEOPLANE_2D/GEOMETRY/STRINGDEF"}},
  {mor_boundary_aggr,        {"SETUP/DOMAIN/RHEOPLANE_2D/MORPHOLOGY/BEDLOAD/BOUNDARY", "SETUP/DOMAIN/RHEOPLANE_2D/GEOMETRY/STRINGDEF"}},
  {mor_direction_curve_aggr, {"SETUP/DOMAIN/RHEOPLANE_2D/MORPHOLOGY/BEDLOAD/DIRECTION/CURVATURE"}},
  {mor_direction_ikeda_aggr, {"SETUP/DOMAIN/RHEOPLANE_2D/MORPHOLOGY/BEDLOAD/DIRECTION/IKEDA"}},
  {mor_fixedbed_aggr,        {"SETUP/DOMAIN/RHEOPLANE_2D/MORPHOLOGY/BEDMATERIAL/FIXED_BED"}},
  {mor_local_bed_slope,      {"SETUP/DOMAIN/RHEOPLANE_2D/MORPHOLOGY/INCIPIENT_MOTION"}},
  {hyd_friction_aggr,        {"SETUP/DOMAIN/RHEOPLANE_2D/HYDRAULICS/FRICTION"}},
  {hyd_source_aggr,          {"SETUP/DOMAIN/RHEOPLANE_2D/HYDRAULICS/SOURCE", "SETUP/DOMAIN/RHEOPLANE_2D/GEOMETRY/REGIONDEF"}},
  {mor_source_aggr,          {"SETUP/DOMAIN/RHEOPLANE_2D/MORPHOLOGY/SOURCE", "SETUP/DOMAIN/RHEOPLANE_2D/GEOMETRY/REGIONDEF"}},
  {hyd_flood_aggr,           {"SETUP/DOMAIN/RHEOPLANE_2D/HYDRAULICS/FLOOD"}},
};
// clang-format on

}  // namespace model
