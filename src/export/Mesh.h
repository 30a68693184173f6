// The triangles that results stand on.
#pragma once

#include <array>
#include <vector>

namespace exporter {

struct Mesh {
  std::vector<std::array<int, 3>> cells;     ///< nodes of each triangle, from 0
  std::vector<std::array<double, 3>> nodes;  ///< x, y, z [m]
};

}  // namespace exporter
