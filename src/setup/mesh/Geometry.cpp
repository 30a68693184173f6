#include "setup/mesh/Geometry.h"

#include <algorithm>
#include <cmath>

namespace setup {

namespace {

Vector2 lowerCorner(const Mesh& mesh) {
  Vector2 corner{mesh.nodes.front().x, mesh.nodes.front().y};
  for (const Node& node : mesh.nodes) {
    corner = {std::min(corner[0], node.x), std::min(corner[1], node.y)};
  }
  return corner;
}

void measureCells(const Mesh& mesh, Geometry& geometry) {
  const auto local = [&mesh, &geometry](int n) {
    const Node& node = mesh.nodes[index(n)];
    return Vector2{node.x - geometry.origin[0], node.y - geometry.origin[1]};
  };
  for (const Triangle& cell : mesh.cells) {
    const Vector2 a = local(cell.nodes[0]);
    const Vector2 b = local(cell.nodes[1]);
    const Vector2 c = local(cell.nodes[2]);
    geometry.centroids.push_back({(a[0] + b[0] + c[0]) / 3.0, (a[1] + b[1] + c[1]) / 3.0});
    geometry.areas.push_back(0.5 * ((b[0] - a[0]) * (c[1] - a[1]) - (b[1] - a[1]) * (c[0] - a[0])));
  }
}

void measureEdges(const Mesh& mesh, const Topology& topology, Geometry& geometry) {
  for (std::size_t edge = 0; edge < topology.edgeNodes.size(); ++edge) {
    const Node& first = mesh.nodes[index(topology.edgeNodes[edge][0])];
    const Node& second = mesh.nodes[index(topology.edgeNodes[edge][1])];
    const double length = std::hypot(second.x - first.x, second.y - first.y);
    geometry.lengths.push_back(length);
    geometry.normals.push_back({(second.y - first.y) / length, (first.x - second.x) / length});

    // The centroid lies at a third of the height over each edge.
    const auto [left, right] = topology.edgeCells[edge];
    geometry.charSizes.push_back({4.0 * geometry.areas[index(left)] / (3.0 * length),
                                  4.0 * geometry.areas[index(right)] / (3.0 * length)});
  }
}

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

Geometry measure(const Mesh& mesh, const Topology& topology) {
  Geometry geometry;
  geometry.origin = lowerCorner(mesh);
  measureCells(mesh, geometry);
  measureEdges(mesh, topology, geometry);
  return geometry;
}

Vector2 centroidVector(const Geometry& geometry, const Topology& topology, std::size_t edge) {
  if (topology.isBoundary(edge)) {
    const Vector2& normal = geometry.normals[edge];
    const double distance = geometry.charSizes[edge][0];
    return {normal[0] * distance, normal[1] * distance};
  }
  const Vector2& left = geometry.centroids[index(topology.edgeCells[edge][0])];
  const Vector2& right = geometry.centroids[index(topology.edgeCells[edge][1])];
  return {right[0] - left[0], right[1] - left[1]};
}

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
