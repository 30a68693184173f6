#include "setup/study/bed_material.h"

#include "setup/domain/cell_values.h"
#include "setup/mesh/position.h"
#include "setup/study/Study.h"
#include "setup/study/document/StudyGroup.h"

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

std::vector<double> cellGrainSizes(const Study& study, const Mesh& mesh, const Geometry& geometry) {
  if (!study.morphology) return {};
  const BedMaterial& material = study.morphology->material;
  std::vector<double> sizes(mesh.cells.size(), material.grainSize.value_or(0.0));
  for (const GrainZone& zone : material.zones) {
    for (const int cell : cellsOf(zone.area, study, mesh, geometry)) {
      sizes[index(cell)] = zone.size;
    }
  }
  return sizes;
}

}  // namespace setup
