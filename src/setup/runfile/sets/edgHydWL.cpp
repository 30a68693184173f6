#include "setup/mesh/position.h"
#include "setup/runfile/sets/sets.h"

namespace setup {

namespace {

/// The edges that the boundaries of the study leave.
std::vector<int> edges(const Domain& domain) {
  return without(domain.boundaries.flow.edges, domain.topology.boundaryEdges(), domain);
}

int size(const Domain& domain) {
  return static_cast<int>(edges(domain).size());
}

std::vector<int> cells(const Domain& domain) {
  std::vector<int> result;
  for (const int edge : edges(domain)) result.push_back(domain.topology.edgeCells[index(edge)][0]);
  return result;
}

}  // namespace

SetContent edgHydWL() {
  using enum model::MapID;
  return {&size, {{EdgHydWL_EdgesAll, &edges}, {EdgHydWL_CellsAll, &cells}}, {}};
}

}  // namespace setup
