// What the values of an output are called, and their units: as names of columns and variables.
//
//   exporter::componentsOf(model::OutputID::flow_velocity)[1].name   // "flow_velocity_y"
#pragma once

#include <string>
#include <vector>

#include "catalogue/IDs.h"

namespace exporter {

struct Component {
  std::string name;
  std::string unit;  ///< "1" for a number without one
};

/// One for each value per element, in their order.
const std::vector<Component>& componentsOf(model::OutputID id);

/// As a header: "water_depth [m]".
std::string labelOf(const Component& component);

}  // namespace exporter
