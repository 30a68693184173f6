#include <cmath>

#include "setup/runfile/sets/sets.h"

namespace setup {

namespace {

int size(const Domain& domain) {
  return static_cast<int>(domain.topology.edgeCells.size());
}

std::vector<int> cells(const Domain& domain) {
  return flat(domain.topology.edgeCells);
}

std::vector<double> normals(const Domain& domain) {
  return flat(domain.geometry.normals);
}

std::vector<double> lengths(const Domain& domain) {
  return domain.geometry.lengths;
}

std::vector<double> charSizes(const Domain& domain) {
  return flat(domain.geometry.charSizes);
}

std::vector<double> centroidDistances(const Domain& domain) {
  std::vector<double> distances;
  for (std::size_t edge = 0; edge < domain.topology.edgeCells.size(); ++edge) {
    const Vector2 vector = centroidVector(domain.geometry, domain.topology, edge);
    distances.push_back(std::hypot(vector[0], vector[1]));
  }
  return distances;
}

std::vector<double> centroidDirections(const Domain& domain) {
  std::vector<double> directions;
  for (std::size_t edge = 0; edge < domain.topology.edgeCells.size(); ++edge) {
    const Vector2 vector = centroidVector(domain.geometry, domain.topology, edge);
    const double distance = std::hypot(vector[0], vector[1]);
    directions.insert(directions.end(), {vector[0] / distance, vector[1] / distance});
  }
  return directions;
}

}  // namespace

SetContent edgesAll() {
  using enum model::MapID;
  using enum model::DataID;
  // clang-format off
  return {&size,
          {{EdgesAll_CellsAll, &cells}},
          {
            {NormVect, &normals},
            {GeomLeng, &lengths},
            {CharSize, &charSizes},
            {UnitCent, &centroidDirections},
            {DistCent, &centroidDistances},
          }};
  // clang-format on
}

}  // namespace setup
