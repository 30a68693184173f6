#include "setup/mesh/gradient.h"
#include "setup/mesh/numbering.h"
#include "setup/mesh/position.h"
#include "setup/runfile/sets/sets.h"

namespace setup {

namespace {

int size(const Domain& domain) {
  return static_cast<int>(domain.mesh.cells.size());
}

std::vector<int> edges(const Domain& domain) {
  return flat(domain.topology.cellEdges);
}

std::vector<int> neighbourCells(const Domain& domain) {
  return flat(neighboursOf(domain.topology));
}

std::vector<double> flow(const Domain& domain) {
  return flat(domain.flow);
}

std::vector<double> bed(const Domain& domain) {
  return domain.bed;
}

std::vector<double> friction(const Domain& domain) {
  return domain.friction;
}

std::vector<double> grainSizes(const Domain& domain) {
  return domain.grainSizes;
}

std::vector<double> criticalValues(const Domain& domain) {
  return domain.criticalValues;
}

std::vector<double> areas(const Domain& domain) {
  return domain.geometry.areas;
}

/// +1 where the cell is the left one of its edge, -1 where it is the right one.
std::vector<int> edgeSigns(const Domain& domain) {
  std::vector<int> signs;
  signs.reserve(3 * domain.topology.cellEdges.size());
  for (std::size_t cell = 0; cell < domain.topology.cellEdges.size(); ++cell) {
    for (const int edge : domain.topology.cellEdges[cell]) {
      const int left = domain.topology.edgeCells[index(edge)][0];
      signs.push_back(left == static_cast<int>(cell) ? 1 : -1);
    }
  }
  return signs;
}

std::vector<int> corners(const Domain& domain) {
  std::vector<int> nodes;
  nodes.reserve(3 * domain.mesh.cells.size());
  for (const Triangle& cell : domain.mesh.cells) {
    nodes.insert(nodes.end(), cell.nodes.begin(), cell.nodes.end());
  }
  return nodes;
}

std::vector<double> weights(const Domain& domain) {
  return flat(gradientWeights(domain.geometry, domain.topology));
}

}  // namespace

SetContent cellsAll() {
  using enum model::MapID;
  using enum model::DataID;
  // clang-format off
  return {&size,
          {
            {CellsAll_EdgesAll, &edges},
            {CellsAll_NbrCells, &neighbourCells},
          },
          {
            {HydState,          &flow},
            {BottomEl,          &bed},
            {Friction,          &friction},
            {MSedSize,          &grainSizes},
            {ThetaCrt,          &criticalValues},
            {CellsAll_GeomArea, &areas},
            {CellsAll_EdgeSign, &edgeSigns},
            {Topology,          &corners},
            {GeomWght,          &weights},
          }};
  // clang-format on
}

}  // namespace setup
