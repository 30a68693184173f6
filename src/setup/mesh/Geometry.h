// Lengths, areas and directions of a mesh.
//
// Everything is computed relative to a corner of the mesh, so that coordinates of a national grid
// cost no digits: the edge vectors of a cell close to rounding, on which a lake at rest depends.
#pragma once

#include <array>
#include <vector>

#include "setup/mesh/Mesh.h"
#include "setup/mesh/Topology.h"

namespace setup {

using Vector2 = std::array<double, 2>;

struct Geometry {
  Vector2 origin{};                ///< what centroids are relative to [m]
  std::vector<Vector2> centroids;  ///< per cell [m]
  std::vector<double> areas;       ///< per cell [m2]
  std::vector<double> lengths;     ///< per edge [m]
  std::vector<Vector2> normals;    ///< per edge, out of the left into the right cell, length 1
  /// Per edge, twice the distance of the left and of the right centroid from the edge [m].
  std::vector<Vector2> charSizes;

  /// The centroid in the coordinates of the mesh.
  Vector2 centroid(std::size_t cell) const {
    return {origin[0] + centroids[cell][0], origin[1] + centroids[cell][1]};
  }
};

/// @param mesh with counter-clockwise cells, the one that `topology` belongs to
Geometry measure(const Mesh& mesh, const Topology& topology);

/// From the left to the right centroid [m]. At a boundary the cell is mirrored at the edge: the
/// vector is normal to the edge and twice as long as the distance of the centroid.
Vector2 centroidVector(const Geometry& geometry, const Topology& topology, std::size_t edge);

}  // namespace setup
