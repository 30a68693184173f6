#include "setup/study/initial_state.h"

namespace setup {

namespace {

BedZone readBedZone(const StudyGroup& group, const std::vector<Region>& regions) {
  BedZone zone;
  zone.area = readArea(group, regions);
  group.take("elevation", zone.elevation);
  group.take("gradient", zone.gradient);
  group.take("at", zone.at);
  group.take("raise", zone.raise);
  if (group.has("gradient") != group.has("at")) {
    group.refuse("must hold gradient and at together: at is where the bed has the elevation");
  }
  if (group.has("gradient") && !zone.elevation) {
    group.refuse("must hold elevation if it holds gradient");
  }
  return zone;
}

}  // namespace

std::vector<BedZone> readBedZones(const StudyGroup& geometry, const std::vector<Region>& regions) {
  std::vector<BedZone> zones;
  for (const StudyGroup& zone : geometry.groups("BED")) zones.push_back(readBedZone(zone, regions));
  return zones;
}

Water readWater(const StudyGroup& group) {
  Water water;
  if (group.has("water_level") && group.has("water_depth")) {
    group.refuse("must not hold both water_level and water_depth");
  }
  if (group.has("water_level") && group["water_level"] != "dry") {
    if (!group["water_level"].is_number()) {
      group.refuseValue("water_level", "a number or \"dry\"");
    }
    group.take("water_level", water.level);
  }
  group.take("water_depth", water.depth);
  group.take("velocity", water.velocity);
  if (group.has("velocity") && !water.level && !water.depth) {
    group.refuseKey("velocity", "needs a water_level or water_depth beside it");
  }
  return water;
}

std::vector<WaterZone> readWaterZones(const StudyGroup& initial,
                                      const std::vector<Region>& regions) {
  std::vector<WaterZone> zones;
  for (const StudyGroup& zone : initial.groups("ZONES")) {
    zones.push_back({readArea(zone, regions), readWater(zone)});
  }
  return zones;
}

}  // namespace setup
