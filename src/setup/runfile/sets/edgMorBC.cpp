#include "setup/runfile/sets/sets.h"

namespace setup {

namespace {

int size(const Domain& domain) {
  return static_cast<int>(domain.boundaries.bed.edges.size());
}

std::vector<int> edges(const Domain& domain) {
  return domain.boundaries.bed.edges;
}

std::vector<int> cells(const Domain& domain) {
  return cellsBeside(edges(domain), domain);
}

std::vector<int> records(const Domain& domain) {
  return domain.boundaries.bed.recordOf;
}

std::vector<int> types(const Domain& domain) {
  return flat(domain.boundaries.bed.types);
}

}  // namespace

SetContent edgMorBC() {
  using enum model::MapID;
  using enum model::DataID;
  // clang-format off
  return {&size,
          {
            {EdgMorBC_EdgesAll, &edges},
            {EdgMorBC_CellsAll, &cells},
            {EdgMorBC_EdgeData, &records},
          },
          {{MorBType, &types}}};
  // clang-format on
}

}  // namespace setup
