// Meshes to test with.
#pragma once

#include <algorithm>
#include <array>
#include <random>
#include <vector>

#include "setup/mesh/Mesh.h"
#include "setup/mesh/made_meshes.h"

namespace meshes {

/// A mesh of nodes (x, y, z) and triangles of node positions, with ids and lines as in a file that
/// lists the nodes first.
inline setup::Mesh of(const std::vector<std::array<double, 3>>& nodes,
                      const std::vector<std::array<int, 3>>& cells) {
  setup::Mesh mesh;
  mesh.file = "m.2dm";
  int line = 1;
  for (const auto& [x, y, z] : nodes) {
    mesh.nodes.push_back({static_cast<long>(mesh.nodes.size()) + 1, x, y, z, ++line});
  }
  for (const auto& cell : cells) {
    mesh.cells.push_back({static_cast<long>(mesh.cells.size()) + 1, cell, 1, ++line});
  }
  return mesh;
}

/// A square of two triangles, 2 m by 2 m:
///   3---2
///   | / |      cell 0: 0 1 2, cell 1: 0 2 3
///   0---1
inline setup::Mesh square() {
  return of({{0, 0, 0}, {2, 0, 0.3}, {2, 2, 0.6}, {0, 2, 0.9}}, {{0, 1, 2}, {0, 2, 3}});
}

/// A square of n by n distorted rectangles, nodes and cells in random order. Distortions are
/// multiples of a power of two, so that they can be added to large coordinates without rounding.
inline setup::Mesh random(unsigned seed, int n = 12, double x0 = 0.0, double y0 = 0.0) {
  std::mt19937 generator(seed);
  std::uniform_int_distribution<int> shift(-2, 2);
  std::vector<double> lines;
  for (int i = 0; i <= n; ++i) lines.push_back(i);
  setup::Mesh mesh = setup::gridMesh(
      lines, lines, [](double x, double y) { return 0.01 * x + 0.02 * y; },
      setup::Pattern::Alternating);
  for (setup::Node& node : mesh.nodes) {
    node.x += x0 + shift(generator) / 16.0;
    node.y += y0 + shift(generator) / 16.0;
  }
  std::shuffle(mesh.cells.begin(), mesh.cells.end(), generator);
  for (setup::Triangle& cell : mesh.cells) {
    std::rotate(cell.nodes.begin(), cell.nodes.begin() + (shift(generator) + 2) % 3,
                cell.nodes.end());
  }
  return mesh;
}

}  // namespace meshes
