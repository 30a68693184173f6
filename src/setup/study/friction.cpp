#include "setup/study/friction.h"

#include <utility>

#include "setup/domain/cell_values.h"
#include "setup/mesh/position.h"
#include "setup/study/Study.h"
#include "setup/study/document/StudyGroup.h"

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

void readFriction(const StudyGroup& hydraulics, Study& study) {
  if (!hydraulics.has("FRICTION")) return;
  const StudyGroup group = hydraulics.group("FRICTION");
  Friction friction;
  for (const FrictionClosure& closure : frictionClosures()) {
    if (group["type"] == closure.name) friction.type = closure.type;
  }
  group.take("value", friction.value);
  for (const StudyGroup& zone : group.groups("ZONES")) {
    friction.zones.push_back({readArea(zone, study.regions), zone["value"].get<double>()});
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
