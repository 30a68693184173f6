#include "setup/study/bed_material.h"

namespace setup {

BedMaterial readBedMaterial(const StudyGroup& group, const std::vector<Region>& regions) {
  BedMaterial material;
  group.take("porosity", material.porosity);
  group.take("density", material.density);
  group.take("water_density", material.waterDensity);
  group.take("grain_size", material.grainSize);
  if (material.density <= material.waterDensity) {
    group.refuse("must hold a density above that of the water, ", material.waterDensity,
                 " kg/m3, but it is ", material.density);
  }
  for (const StudyGroup& zone : group.groups("ZONES")) {
    material.zones.push_back({readArea(zone, regions), zone["grain_size"].get<double>()});
  }
  if (!material.zones.empty() && !material.grainSize) {
    group.refuse("must hold a grain_size for the cells outside of its zones");
  }
  return material;
}

FixedBed readFixedBed(const StudyGroup& group, const std::vector<Region>& regions) {
  FixedBed fixed;
  group.take("accuracy", fixed.accuracy);
  group.take("maximum_passes", fixed.maximumPasses);
  for (const StudyGroup& item : group.groups("ZONES")) {
    FixedBedZone zone;
    zone.area = readArea(item, regions);
    item.take("elevation", zone.elevation);
    item.take("below_bed", zone.below);
    fixed.zones.push_back(zone);
  }
  return fixed;
}

}  // namespace setup
