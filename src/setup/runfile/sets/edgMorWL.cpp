#include "setup/runfile/sets/sets.h"

namespace setup {

namespace {

/// The edges along the boundary that the study leaves, and what stops the bed load inside.
std::vector<int> edges(const Domain& domain) {
  std::vector<int> walls =
      without(domain.boundaries.bed.edges, domain.topology.boundaryEdges(), domain);
  const std::vector<int> inside = edgesThatStopBedload(domain);
  walls.insert(walls.end(), inside.begin(), inside.end());
  return walls;
}

int size(const Domain& domain) {
  return static_cast<int>(edges(domain).size());
}

}  // namespace

SetContent edgMorWL() {
  using enum model::MapID;
  return {&size, {{EdgMorWL_EdgesAll, &edges}}, {}};
}

}  // namespace setup
