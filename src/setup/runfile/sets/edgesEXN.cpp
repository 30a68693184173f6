#include "setup/runfile/sets/sets.h"

namespace setup {

namespace {

std::vector<int> edges(const Domain& domain) {
  return without(edgesThatStopBedload(domain), domain.topology.innerEdges(), domain);
}

int size(const Domain& domain) {
  return static_cast<int>(edges(domain).size());
}

std::vector<int> cells(const Domain& domain) {
  return cellsBeside(edges(domain), domain);
}

}  // namespace

SetContent edgesEXN() {
  using enum model::MapID;
  return {&size, {{EdgesEXN_EdgesAll, &edges}, {EdgesEXN_CellsAll, &cells}}, {}};
}

}  // namespace setup
