#include "export/components.h"

#include <map>

namespace exporter {

namespace {

using enum model::OutputID;

// clang-format off
const std::map<model::OutputID, std::vector<Component>> COMPONENTS = {
  {water_surface,     {{"water_surface",     "m"}}},
  {water_depth,       {{"water_depth",       "m"}}},
  {bottom_elevation,  {{"bottom_elevation",  "m"}}},
  {friction_chezy,    {{"friction_chezy",    "1"}}},
  {spec_discharge,    {{"spec_discharge_x",  "m2/s"}, {"spec_discharge_y", "m2/s"}}},
  {delta_z,           {{"delta_z",           "m"}}},
  {flow_velocity,     {{"flow_velocity_x",   "m/s"}, {"flow_velocity_y", "m/s"}}},
  {flow_velocity_abs, {{"flow_velocity_abs", "m/s"}}},
  {ns_hyd_discharge,  {{"ns_hyd_discharge",  "m3/s"}}},
  {ns_mor_discharge,  {{"ns_mor_discharge",  "m3/s"}}},
  {flow_curvature,    {{"flow_curvature",    "1/m"}}},
  {flow_radius,       {{"flow_radius",       "m"}}},
  {flood_tracking,    {{"flood_arrival_time",          "s"},
                       {"flood_maximum_depth",         "m"},
                       {"flood_maximum_velocity",      "m/s"},
                       {"flood_maximum_spec_discharge", "m2/s"}}},
};
// clang-format on

}  // namespace

const std::vector<Component>& componentsOf(model::OutputID id) {
  return COMPONENTS.at(id);
}

std::string labelOf(const Component& component) {
  return component.name + " [" + component.unit + "]";
}

}  // namespace exporter
