#include "setup/mesh/position.h"
#include "setup/runfile/sets/sets.h"

namespace setup {

namespace {

int size(const Domain& domain) {
  return static_cast<int>(domain.fixedCells.cells.size());
}

std::vector<int> cells(const Domain& domain) {
  return domain.fixedCells.cells;
}

std::vector<int> edges(const Domain& domain) {
  std::vector<std::array<int, 3>> result;
  for (const int cell : cells(domain)) result.push_back(domain.topology.cellEdges[index(cell)]);
  return flat(result);
}

std::vector<double> elevations(const Domain& domain) {
  return domain.fixedCells.elevations;
}

}  // namespace

SetContent cellsFix() {
  using enum model::MapID;
  using enum model::DataID;
  // clang-format off
  return {&size,
          {
            {CellsFix_CellsAll, &cells},
            {CellsFix_EdgesAll, &edges},
          },
          {{FixBedEl, &elevations}}};
  // clang-format on
}

}  // namespace setup
