#include "setup/runfile/sets/sets.h"

namespace setup {

namespace {

int size(const Domain& domain) {
  return static_cast<int>(domain.sources.flow.cells.size());
}

std::vector<int> cells(const Domain& domain) {
  return domain.sources.flow.cells;
}

std::vector<int> records(const Domain& domain) {
  return domain.sources.flow.recordOf;
}

std::vector<int> sinkTypes(const Domain& domain) {
  return domain.sources.flow.sinkTypes;
}

}  // namespace

SetContent clHydSrc() {
  using enum model::MapID;
  using enum model::DataID;
  // clang-format off
  return {&size,
          {
            {ClHydSrc_CellsAll, &cells},
            {ClHydSrc_CellData, &records},
          },
          {{ClHydSrc_SinkType, &sinkTypes}}};
  // clang-format on
}

}  // namespace setup
