#include "setup/study/friction.h"

namespace setup {

const std::vector<FrictionClosure>& frictionClosures() {
  using enum model::FrictionCode;
  // clang-format off
  static const std::vector<FrictionClosure> closures = {
    {"manning",                Manning},
    {"strickler",              Strickler},
    {"sand_roughness",         SandRoughness},
    {"sand_roughness_shallow", SandRoughnessShallow},
  };
  // clang-format on
  return closures;
}

std::optional<Friction> readFriction(const StudyGroup& hydraulics,
                                     const std::vector<Region>& regions) {
  if (!hydraulics.has("FRICTION")) return std::nullopt;
  const StudyGroup group = hydraulics.group("FRICTION");
  Friction friction;
  for (const FrictionClosure& closure : frictionClosures()) {
    if (group["type"] == closure.name) friction.closure = closure.code;
  }
  group.take("value", friction.value);
  for (const StudyGroup& zone : group.groups("ZONES")) {
    friction.zones.push_back({readArea(zone, regions), zone["value"].get<double>()});
  }
  return friction;
}

}  // namespace setup
