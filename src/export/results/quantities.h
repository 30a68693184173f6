// The quantities that results are shown in: each value of each output with its name, unit and
// meaning. Tables, NetCDF, GeoTIFF and XDMF read them here, pictures what `export --quantities`
// prints.
//
//   exporter::quantitiesOf(model::OutputID::flow_velocity)[1].name   // "flow_velocity_y"
#pragma once

#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "catalogue/IDs.h"

namespace exporter {

/// What a quantity tells in a cell without water.
enum class WhenDry {
  same,    ///< as much as in any other: it belongs to the ground
  film,    ///< of the thin layer that a dry cell keeps; pictures leave it out
  nothing  ///< it needs water
};

struct Quantity {
  std::string name;
  std::string unit;  ///< "1" for a number without one
  std::string meaning;
  std::string standardName;  ///< of the CF conventions; empty where they have none that fits
  WhenDry whenDry;
  std::string formerName;  ///< that is accepted, too; empty: there is none
};

/// One for each value per element, in their order.
///
/// Viewers join components to a vector if their meanings end in ", x-component" and
/// ", y-component". The standard names of floods stand for water on land that is dry otherwise, so
/// that they do not fit a river.
const std::vector<Quantity>& quantitiesOf(model::OutputID id);

/// As a header: "water_depth [m]".
std::string labelOf(const Quantity& quantity);

/// The whole table: a list of outputs, each with the columns of stored data that it is made of and
/// its quantities. The formula of a quantity names column n as $n.
nlohmann::ordered_json describeQuantities();

}  // namespace exporter
