#include "export/results/quantities.h"

#include <algorithm>
#include <map>

#include "catalogue/Data.h"
#include "catalogue/Outputs.h"
#include "catalogue/Relations.h"
#include "catalogue/Sets.h"

namespace exporter {

namespace {

using nlohmann::ordered_json;
using enum model::OutputID;
using enum WhenDry;

// clang-format off
const std::map<model::OutputID, std::vector<Quantity>> QUANTITIES = {
  {water_surface,     {{"water_surface",     "m",    "elevation of the water surface", "water_surface_height_above_reference_datum", nothing, ""}}},
  {water_depth,       {{"water_depth",       "m",    "water depth",                    "", film,    ""}}},
  {bottom_elevation,  {{"bottom_elevation",  "m",    "bottom elevation",               "", same,    ""}}},
  {friction_chezy,    {{"friction_chezy",    "1",    "square of the dimensionless Chezy friction coefficient", "", film, ""}}},
  {spec_discharge,    {{"spec_discharge_x",  "m2/s", "specific discharge, x-component", "", film,   "spec_discharge.x"},
                       {"spec_discharge_y",  "m2/s", "specific discharge, y-component", "", film,   "spec_discharge.y"}}},
  {delta_z,           {{"delta_z",           "m",    "change of the bottom elevation", "", same,    ""}}},
  {flow_velocity,     {{"flow_velocity_x",   "m/s",  "flow velocity, x-component",     "", nothing, "flow_velocity.x"},
                       {"flow_velocity_y",   "m/s",  "flow velocity, y-component",     "", nothing, "flow_velocity.y"}}},
  {flow_velocity_abs, {{"flow_velocity_abs", "m/s",  "magnitude of the flow velocity", "", nothing, ""}}},
  {ns_hyd_discharge,  {{"ns_hyd_discharge",  "m3/s", "discharge across the nodestring", "", same,   ""}}},
  {ns_mor_discharge,  {{"ns_mor_discharge",  "m3/s", "sediment discharge across the nodestring", "", same, ""}}},
  {flow_curvature,    {{"flow_curvature",    "1/m",  "curvature of the flow",          "", nothing, ""}}},
  {flow_radius,       {{"flow_radius",       "m",    "radius of the flow",             "", nothing, ""}}},
  {flood_tracking,    {{"flood_arrival_time",           "s",    "arrival time of the flood",  "", nothing, "flood_tracking.arrival_time"},
                       {"flood_maximum_depth",          "m",    "maximum water depth",        "", film,    "flood_tracking.max_depth"},
                       {"flood_maximum_velocity",       "m/s",  "maximum flow velocity",      "", nothing, "flood_tracking.max_velocity"},
                       {"flood_maximum_spec_discharge", "m2/s", "maximum specific discharge", "", film,    "flood_tracking.max_discharge"}}},
};

const std::map<WhenDry, std::string> WHEN_DRY = {{same, "same"}, {film, "film"}, {nothing, "nothing"}};
// clang-format on

/// Of two columns that are the same, the first is that of the first record.
ordered_json columnsOf(const std::vector<model::DataColumn>& columns) {
  ordered_json list = ordered_json::array();
  for (auto column = columns.begin(); column != columns.end(); ++column) {
    const model::Property& data = model::DataProps.at(column->first);
    const bool isInitial = std::find(column + 1, columns.end(), *column) != columns.end();
    list.push_back(
        {{"data", model::SetProps.at(model::Data2Set.at(column->first)).name + "/" + data.name},
         {"values", data.size},
         {"value", column->second},
         {"record", isInitial ? "first" : "current"}});
  }
  return list;
}

/// Of value i of an output; what has no operation is a copy of its column.
std::string formulaOf(model::OutputID id, std::size_t i) {
  const auto operations = model::Output2Operations.find(id);
  return operations == model::Output2Operations.end() ? "$" + std::to_string(i)
                                                      : operations->second.at(i).expression;
}

ordered_json valuesOf(model::OutputID id) {
  ordered_json list = ordered_json::array();
  for (const Quantity& quantity : quantitiesOf(id)) {
    list.push_back({{"name", quantity.name},
                    {"former_name", quantity.formerName},
                    {"unit", quantity.unit},
                    {"meaning", quantity.meaning},
                    {"when_dry", WHEN_DRY.at(quantity.whenDry)},
                    {"formula", formulaOf(id, list.size())}});
  }
  return list;
}

}  // namespace

const std::vector<Quantity>& quantitiesOf(model::OutputID id) {
  return QUANTITIES.at(id);
}

std::string labelOf(const Quantity& quantity) {
  return quantity.name + " [" + quantity.unit + "]";
}

ordered_json describeQuantities() {
  ordered_json outputs = ordered_json::array();
  for (const auto& [id, property] : model::OutputProps) {
    const bool isTracked = std::find(model::OutputTracking.begin(), model::OutputTracking.end(),
                                     id) != model::OutputTracking.end();
    outputs.push_back({{"name", property.name},
                       {"on", model::SetProps.at(model::Output2Set.at(id)).name},
                       {"tracked", isTracked},
                       {"columns", columnsOf(model::Output2DataColumns.at(id))},
                       {"quantities", valuesOf(id)}});
  }
  return {{"outputs", outputs}};
}

}  // namespace exporter
