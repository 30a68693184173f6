// The triangles that results stand on.
#pragma once

#include <array>
#include <vector>

namespace exporter {

struct Mesh {
  std::vector<std::array<int, 3>> cells;     ///< nodes of each triangle, from 0
  std::vector<std::array<double, 3>> nodes;  ///< x, y, z [m]
};

/// Twice the area of a triangle: positive if its corners run counterclockwise [m2].
double signedArea(const std::array<double, 3>& a, const std::array<double, 3>& b,
                  const std::array<double, 3>& c);

/// Whether a triangle contains a point: inside, or on its edge. Its corners may run in any sense.
bool contains(const Mesh& mesh, const std::array<int, 3>& cell, double x, double y);

}  // namespace exporter
