#include "setup/domain/areas.h"

#include <set>

namespace setup {

namespace {

void requireMaterial(const Region& region, const Study& study, const Mesh& mesh) {
  std::set<int> materials;
  for (const Triangle& cell : mesh.cells) materials.insert(cell.material);
  if (materials.count(region.index) == 1) return;
  refuseStudy(study.file, "region <", region.name, "> has the index ", region.index,
              ", but the mesh has the materials ",
              listOf(materials, [](int material) { return std::to_string(material); }));
}

}  // namespace

std::vector<int> cellsOf(const Area& area, const Study& study, const Mesh& mesh,
                         const Geometry& geometry) {
  if (area.region) requireMaterial(*area.region, study, mesh);
  std::vector<int> cells;
  for (std::size_t cell = 0; cell < mesh.cells.size(); ++cell) {
    if (!area.contains(mesh.cells[cell].material, geometry.centroid(cell))) continue;
    cells.push_back(static_cast<int>(cell));
  }
  if (cells.empty()) refuseStudy(study.file, "<", area.path, "> holds no cell of the mesh");
  return cells;
}

std::vector<double> regionAreas(const Study& study, const Mesh& mesh, const Geometry& geometry) {
  std::vector<double> areas;
  for (const Region& region : study.regions) {
    double area = 0.0;
    for (std::size_t cell = 0; cell < mesh.cells.size(); ++cell) {
      if (mesh.cells[cell].material == region.index) area += geometry.areas[cell];
    }
    areas.push_back(area);
  }
  return areas;
}

}  // namespace setup
