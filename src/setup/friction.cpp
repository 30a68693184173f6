#include "setup/friction.h"

#include <algorithm>
#include <nlohmann/json.hpp>

#include "setup/Study.h"
#include "setup/initialState.h"
#include "setup/position.h"

using nlohmann::json;

namespace setup {

const std::vector<FrictionClosure>& frictionClosures() {
  // clang-format off
  static const std::vector<FrictionClosure> closures = {
    {"manning",                1},
    {"strickler",              2},
    {"sand_roughness",         3},
    {"sand_roughness_shallow", 4},
  };
  // clang-format on
  return closures;
}

void readFriction(const json& hydraulics, Study& study) {
  if (!hydraulics.contains("FRICTION")) return;
  const json& group = hydraulics.at("FRICTION");
  const auto name = group.at("type").get<std::string>();
  const auto& closures = frictionClosures();
  const auto closure = std::find_if(closures.begin(), closures.end(),
                                    [&name](const auto& entry) { return entry.name == name; });
  Friction friction;
  friction.type = closure->type;
  friction.value = group.at("value").get<double>();
  const json zones = group.value("ZONES", json::array());
  for (std::size_t k = 0; k < zones.size(); ++k) {
    const std::string path =
        "SETUP/DOMAIN/RHEOPLANE_2D/HYDRAULICS/FRICTION/ZONES[" + std::to_string(k) + "]";
    friction.zones.push_back(
        {readArea(zones[k], path, study.regions, study.file), zones[k].at("value").get<double>()});
  }
  study.friction = std::move(friction);
}

std::vector<double> cellFriction(const Study& study, const Mesh& mesh, const Geometry& geometry) {
  if (!study.friction) return {};
  std::vector<double> values(mesh.cells.size(), study.friction->value);
  for (const FrictionZone& zone : study.friction->zones) {
    for (const int cell : cellsOf(zone.area, study, mesh, geometry)) {
      values[index(cell)] = zone.value;
    }
  }
  return values;
}

}  // namespace setup
