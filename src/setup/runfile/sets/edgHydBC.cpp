#include "setup/runfile/sets/sets.h"

namespace setup {

namespace {

int size(const Domain& domain) {
  return static_cast<int>(domain.boundaries.flow.edges.size());
}

std::vector<int> edges(const Domain& domain) {
  return domain.boundaries.flow.edges;
}

std::vector<int> cells(const Domain& domain) {
  return cellsBeside(edges(domain), domain);
}

std::vector<int> records(const Domain& domain) {
  return domain.boundaries.flow.recordOf;
}

std::vector<int> types(const Domain& domain) {
  return flat(domain.boundaries.flow.types);
}

}  // namespace

SetContent edgHydBC() {
  using enum model::MapID;
  using enum model::DataID;
  // clang-format off
  return {&size,
          {
            {EdgHydBC_EdgesAll, &edges},
            {EdgHydBC_CellsAll, &cells},
            {EdgHydBC_EdgeData, &records},
          },
          {{HydBType, &types}}};
  // clang-format on
}

}  // namespace setup
