#include "setup/domain/cell_values.h"

#include <algorithm>
#include <map>

#include "setup/domain/areas.h"

namespace setup {

namespace {

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

int FixedCells::positionOf(int cell) const {
  return static_cast<int>(std::lower_bound(cells.begin(), cells.end(), cell) - cells.begin());
}

FixedCells fixCells(const Study& study, const Mesh& mesh, const Geometry& geometry,
                    const std::vector<double>& bed, const std::vector<int>& sourceCells) {
  std::map<int, double> elevationOf;
  if (study.morphology && study.morphology->fixedBed) {
    for (const FixedBedZone& zone : study.morphology->fixedBed->zones) {
      for (const int cell : cellsOf(zone.area, study, mesh, geometry)) {
        elevationOf[cell] = zone.elevation.value_or(bed[index(cell)] - zone.below);
      }
    }
  }
  for (const int cell : sourceCells) elevationOf.emplace(cell, BOTTOMLESS);
  FixedCells fixed;
  for (const auto& [cell, elevation] : elevationOf) {
    const double atStart = bed[index(cell)];
    if (elevation > atStart) ++fixed.loweredToBed;
    fixed.cells.push_back(cell);
    fixed.elevations.push_back(std::min(elevation, atStart));
  }
  return fixed;
}

}  // namespace setup
