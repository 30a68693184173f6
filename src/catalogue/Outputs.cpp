#include "catalogue/Outputs.h"

#include <cmath>

namespace model {

using enum OutputID;

namespace {

using Columns = std::vector<double>;

double firstMinusSecond(double /*minimalDepth*/, const Columns& x) {
  return x.at(0) - x.at(1);
}

double secondMinusFirst(double /*minimalDepth*/, const Columns& x) {
  return x.at(1) - x.at(0);
}

double inverse(double /*minimalDepth*/, const Columns& x) {
  return 1.0 / x.at(0);
}

// The velocities read {qx, qy, water surface, bottom}. A cell below the minimal depth is at rest;
// a viewer that evaluates the expression divides on such cells, too.

double overDepth(double minimalDepth, double discharge, const Columns& x) {
  const double depth = x.at(2) - x.at(3);
  return minimalDepth > depth ? 0.0 : discharge / depth;
}

double velocityX(double minimalDepth, const Columns& x) {
  return overDepth(minimalDepth, x.at(0), x);
}

double velocityY(double minimalDepth, const Columns& x) {
  return overDepth(minimalDepth, x.at(1), x);
}

double speed(double minimalDepth, const Columns& x) {
  const double u = velocityX(minimalDepth, x);
  const double v = velocityY(minimalDepth, x);
  return std::sqrt(u * u + v * v);
}

}  // namespace

// clang-format off
const std::map<OutputID, Property> OutputProps = {
  {water_surface,     {"water_surface",     1, DataType::Double}},
  {water_depth,       {"water_depth",       1, DataType::Double}},
  {bottom_elevation,  {"bottom_elevation",  1, DataType::Double}},
  {friction_chezy,    {"friction_chezy",    1, DataType::Double}},
  {spec_discharge,    {"spec_discharge",    2, DataType::Double}},
  {delta_z,           {"delta_z",           1, DataType::Double}},
  {flow_velocity,     {"flow_velocity",     2, DataType::Double}},
  {flow_velocity_abs, {"flow_velocity_abs", 1, DataType::Double}},
  {ns_hyd_discharge,  {"ns_hyd_discharge",  1, DataType::Double}},
  {ns_mor_discharge,  {"ns_mor_discharge",  1, DataType::Double}},
  {flow_curvature,    {"flow_curvature",    1, DataType::Double}},
  {flow_radius,       {"flow_radius",       1, DataType::Double}},
  {flood_tracking,    {"flood_tracking",    4, DataType::Double}},
};

const std::map<OutputID, std::string> OutputDescription = {
  {water_surface,     "This is the water surface elevation, calculated on each cell."},
  {water_depth,       "This is the water depth (surface - bottom elevation), calculated on each cell."},
  {bottom_elevation,  "This is the bottom elevation, calculated on each cell."},
  {friction_chezy,    "This is the chezy friction coefficient squared, calculated on each cell."},
  {spec_discharge,    "This is the hydraulic specific discharge, x- and y- components for each cell."},
  {delta_z,           "This is the change of the bottom elevation in relation to the initial state."},
  {flow_velocity,     "This is the vector of flow velocity, consisting of x- and y-components."},
  {flow_velocity_abs, "This is the absolute value of the flow velocity [m/s]."},
  {ns_hyd_discharge,  "This is the hydraulic discharge across nodestrings."},
  {ns_mor_discharge,  "This is the sediment discharge across nodestrings [m3/s]."},
  {flow_curvature,    "This is the curvature of the flow field, calculated on ech cell."},
  {flow_radius,       "This is the radius of the flow field, calculated on ech cell."},
  {flood_tracking,    "These are the tracked flood variables, e.g. flood arrival time,         max water depth, max flow velocity, max specific discharge."},
};

const std::map<OutputID, std::vector<OutputOperation>> Output2Operations = {
  {water_depth,       {{"$0-$1", firstMinusSecond}}},
  {delta_z,           {{"$1-$0", secondMinusFirst}}},
  {flow_velocity,     {{"$0/($2-$3)", velocityX}, {"$1/($2-$3)", velocityY}}},
  {flow_velocity_abs, {{"sqrt($0/($2-$3)*$0/($2-$3) + $1/($2-$3)*$1/($2-$3))", speed}}},
  {flow_radius,       {{"1.0/$0", inverse}}},
};

const std::vector<OutputID> OutputTracking = {flood_tracking};
// clang-format on

}  // namespace model
