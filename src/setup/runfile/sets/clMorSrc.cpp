#include "setup/runfile/sets/sets.h"

namespace setup {

namespace {

int size(const Domain& domain) {
  return static_cast<int>(domain.sources.bed.cells.size());
}

std::vector<int> cells(const Domain& domain) {
  return domain.sources.bed.cells;
}

std::vector<int> fixedCells(const Domain& domain) {
  std::vector<int> positions;
  for (const int cell : cells(domain)) positions.push_back(domain.fixedCells.positionOf(cell));
  return positions;
}

std::vector<int> records(const Domain& domain) {
  return domain.sources.bed.recordOf;
}

std::vector<int> sinkTypes(const Domain& domain) {
  return domain.sources.bed.sinkTypes;
}

}  // namespace

SetContent clMorSrc() {
  using enum model::MapID;
  using enum model::DataID;
  // clang-format off
  return {&size,
          {
            {ClMorSrc_CellsAll, &cells},
            {ClMorSrc_CellsFix, &fixedCells},
            {ClMorSrc_CellData, &records},
          },
          {{ClMorSrc_SinkType, &sinkTypes}}};
  // clang-format on
}

}  // namespace setup
