#include "setup/mesh/gradient.h"

#include <algorithm>
#include <cmath>

#include "setup/mesh/position.h"

namespace setup {

namespace {

/// Determinant over squared trace of the matrix below which the neighbours count as lying on one
/// line: the neighbours are then within a thousandth of their distance from it.
constexpr double COLLINEARITY = 1e-6;

/// The symmetric matrix of the sum of d d^T.
struct Matrix {
  double xx = 0.0;
  double xy = 0.0;
  double yy = 0.0;
};

Vector2 longest(const std::vector<Vector2>& distances) {
  return *std::max_element(distances.begin(), distances.end(),
                           [](const Vector2& a, const Vector2& b) {
                             return std::hypot(a[0], a[1]) < std::hypot(b[0], b[1]);
                           });
}

/// Weights for the derivative along one direction.
std::vector<Vector2> weightsAlong(const Vector2& direction, const std::vector<Vector2>& distances) {
  const double length = std::hypot(direction[0], direction[1]);
  const Vector2 unit{direction[0] / length, direction[1] / length};
  double squares = 0.0;
  for (const Vector2& d : distances) squares += std::pow(unit[0] * d[0] + unit[1] * d[1], 2);
  std::vector<Vector2> weights;
  weights.reserve(distances.size());
  for (const Vector2& d : distances) {
    const double weight = (unit[0] * d[0] + unit[1] * d[1]) / squares;
    weights.push_back({unit[0] * weight, unit[1] * weight});
  }
  return weights;
}

}  // namespace

std::vector<Vector2> leastSquaresWeights(const std::vector<Vector2>& distances) {
  if (distances.empty()) return {};
  Matrix m;
  for (const Vector2& d : distances) {
    m.xx += d[0] * d[0];
    m.xy += d[0] * d[1];
    m.yy += d[1] * d[1];
  }
  const double determinant = m.xx * m.yy - m.xy * m.xy;
  const double trace = m.xx + m.yy;
  if (!(determinant > COLLINEARITY * trace * trace)) {
    return weightsAlong(longest(distances), distances);
  }
  std::vector<Vector2> weights;
  weights.reserve(distances.size());
  for (const Vector2& d : distances) {
    weights.push_back(
        {(m.yy * d[0] - m.xy * d[1]) / determinant, (m.xx * d[1] - m.xy * d[0]) / determinant});
  }
  return weights;
}

std::vector<GradientWeights> gradientWeights(const Geometry& geometry, const Topology& topology) {
  std::vector<GradientWeights> result(topology.cellEdges.size(), GradientWeights{});
  for (std::size_t cell = 0; cell < result.size(); ++cell) {
    const std::array<int, 3> neighbours = topology.neighbours(cell);
    std::vector<std::size_t> corners;
    std::vector<Vector2> distances;
    for (std::size_t k = 0; k < 3; ++k) {
      if (neighbours[k] == static_cast<int>(cell)) continue;
      const Vector2& there = geometry.centroids[index(neighbours[k])];
      const Vector2& here = geometry.centroids[cell];
      corners.push_back(k);
      distances.push_back({there[0] - here[0], there[1] - here[1]});
    }
    const std::vector<Vector2> weights = leastSquaresWeights(distances);
    for (std::size_t k = 0; k < corners.size(); ++k) {
      result[cell][2 * corners[k]] = weights[k][0];
      result[cell][2 * corners[k] + 1] = weights[k][1];
    }
  }
  return result;
}

}  // namespace setup
