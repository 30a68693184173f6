#include "setup/runfile/sets/sets.h"

namespace setup {

namespace {

int size(const Domain& domain) {
  return static_cast<int>(domain.mesh.nodes.size());
}

std::vector<double> coordinates(const Domain& domain) {
  std::vector<double> values;
  values.reserve(3 * domain.mesh.nodes.size());
  for (const Node& node : domain.mesh.nodes) {
    values.insert(values.end(), {node.x, node.y, node.z});
  }
  return values;
}

}  // namespace

SetContent nodesAll() {
  using enum model::DataID;
  return {&size, {}, {{Coordnts, &coordinates}}};
}

}  // namespace setup
