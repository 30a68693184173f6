#include "setup/domain/cell_values.h"

#include <algorithm>
#include <set>

#include "common/console.h"
#include "setup/mesh/position.h"

namespace console = common::console;

namespace setup {

namespace {

void requireMaterial(const Region& region, const Study& study, const Mesh& mesh) {
  std::set<int> materials;
  for (const Triangle& cell : mesh.cells) materials.insert(cell.material);
  if (materials.count(region.index) == 1) return;
  std::string list;
  for (const int material : materials) {
    list += (list.empty() ? "" : ", ") + std::to_string(material);
  }
  console::fail("study file <", study.file, ">: region <", region.name, "> has the index ",
                region.index, ", but the mesh has the materials ", list);
}

bool contains(const std::array<double, 4>& box, const Vector2& point) {
  return point[0] >= box[0] && point[0] <= box[2] && point[1] >= box[1] && point[1] <= box[3];
}

double planeBed(const BedZone& zone, const Vector2& point) {
  return *zone.elevation + zone.gradient[0] * (point[0] - zone.at[0]) +
         zone.gradient[1] * (point[1] - zone.at[1]);
}

std::array<double, 3> flowOf(const Water& water, double bed, double minimumDepth) {
  const double surface = water.level ? *water.level : bed + water.depth.value_or(0.0);
  if (!(surface > bed)) return {bed, 0.0, 0.0};
  const double depth = surface - bed;
  if (!(depth > minimumDepth)) return {surface, 0.0, 0.0};
  return {surface, depth * water.velocity[0], depth * water.velocity[1]};
}

}  // namespace

std::vector<int> cellsOf(const Area& area, const Study& study, const Mesh& mesh,
                         const Geometry& geometry) {
  if (area.region) requireMaterial(*area.region, study, mesh);
  std::vector<int> cells;
  for (std::size_t cell = 0; cell < mesh.cells.size(); ++cell) {
    if (area.region && mesh.cells[cell].material != area.region->index) continue;
    if (area.box && !contains(*area.box, geometry.centroid(cell))) continue;
    cells.push_back(static_cast<int>(cell));
  }
  if (cells.empty()) {
    console::fail("study file <", study.file, ">: <", area.path, "> holds no cell of the mesh");
  }
  return cells;
}

std::vector<double> cellBeds(const Study& study, const Mesh& mesh, const Geometry& geometry) {
  std::vector<double> bed;
  bed.reserve(mesh.cells.size());
  for (const Triangle& cell : mesh.cells) {
    bed.push_back((mesh.nodes[index(cell.nodes[0])].z + mesh.nodes[index(cell.nodes[1])].z +
                   mesh.nodes[index(cell.nodes[2])].z) /
                  3.0);
  }
  for (const BedZone& zone : study.bed) {
    for (const int cell : cellsOf(zone.area, study, mesh, geometry)) {
      double& z = bed[index(cell)];
      z = zone.elevation ? planeBed(zone, geometry.centroid(index(cell))) : z + zone.raise;
    }
  }
  return bed;
}

std::vector<std::array<double, 3>> initialFlow(const Study& study, const Mesh& mesh,
                                               const Geometry& geometry,
                                               const std::vector<double>& bed) {
  std::vector<const Water*> waters(mesh.cells.size(), &study.water);
  for (const WaterZone& zone : study.waterZones) {
    for (const int cell : cellsOf(zone.area, study, mesh, geometry)) {
      waters[index(cell)] = &zone.water;
    }
  }
  std::vector<std::array<double, 3>> flow;
  flow.reserve(bed.size());
  for (std::size_t cell = 0; cell < bed.size(); ++cell) {
    flow.push_back(flowOf(*waters[cell], bed[cell], study.hydraulics.minimumWaterDepth));
  }
  return flow;
}

}  // namespace setup
