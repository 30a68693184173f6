#include "setup/runfile/sets/sets.h"

namespace setup {

namespace {

/// The edges that the boundaries of the study leave.
std::vector<int> edges(const Domain& domain) {
  return without(domain.boundaries.flow.edges, domain.topology.innerEdges(), domain);
}

int size(const Domain& domain) {
  return static_cast<int>(edges(domain).size());
}

std::vector<int> cells(const Domain& domain) {
  return cellsBeside(edges(domain), domain);
}

}  // namespace

SetContent edgesSWE() {
  using enum model::MapID;
  return {&size, {{EdgesSWE_EdgesAll, &edges}, {EdgesSWE_CellsAll, &cells}}, {}};
}

}  // namespace setup
