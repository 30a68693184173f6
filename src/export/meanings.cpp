#include "export/meanings.h"

#include <map>

namespace exporter {

namespace {

using enum model::OutputID;

// clang-format off
const std::map<model::OutputID, std::vector<Meaning>> MEANINGS = {
  {water_surface,     {{"elevation of the water surface", "water_surface_height_above_reference_datum", true}}},
  {water_depth,       {{"water depth",                    "", false}}},
  {bottom_elevation,  {{"bottom elevation",               "", false}}},
  {friction_chezy,    {{"square of the dimensionless Chezy friction coefficient", "", false}}},
  {spec_discharge,    {{"specific discharge, x-component", "", false},
                       {"specific discharge, y-component", "", false}}},
  {delta_z,           {{"change of the bottom elevation",  "", false}}},
  {flow_velocity,     {{"flow velocity, x-component",      "", true},
                       {"flow velocity, y-component",      "", true}}},
  {flow_velocity_abs, {{"magnitude of the flow velocity",  "", true}}},
  {ns_hyd_discharge,  {{"discharge across the nodestring", "", false}}},
  {ns_mor_discharge,  {{"sediment discharge across the nodestring", "", false}}},
  {flow_curvature,    {{"curvature of the flow",           "", true}}},
  {flow_radius,       {{"radius of the flow",              "", true}}},
  {flood_tracking,    {{"arrival time of the flood",       "", true},
                       {"maximum water depth",             "", false},
                       {"maximum flow velocity",           "", true},
                       {"maximum specific discharge",      "", false}}},
};
// clang-format on

}  // namespace

const std::vector<Meaning>& meaningsOf(model::OutputID id) {
  return MEANINGS.at(id);
}

}  // namespace exporter
