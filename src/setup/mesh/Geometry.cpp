#include "setup/mesh/Geometry.h"

#include <algorithm>
#include <cmath>

#include "setup/mesh/position.h"

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

}  // namespace setup
