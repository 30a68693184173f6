// Lengths, areas, directions and gradients of a mesh.
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

/// Pairs of x and y weights for the three neighbours of a cell [1/m].
using GradientWeights = std::array<double, 6>;

/// Weights W_k for the gradient of cell values that fits best, in the sense of least squares, to
/// the differences of a cell to its neighbours:
///   grad(phi) = sum over k of W_k (phi_k - phi_0),   W_k = (sum over j of d_j d_j^T)^-1 d_k
/// with d_k from the centroid of the cell to that of neighbour k. A linear field is reproduced
/// exactly by cells with two neighbours or three.
/// @param distances from the cell to its neighbours [m]; at most three
/// @returns a row of weights per distance. Where the neighbours lie on one line with the cell, or
///          there is only one, the gradient is the one along this line; the part across is 0.
std::vector<Vector2> leastSquaresWeights(const std::vector<Vector2>& distances);

/// The weights of all cells. A missing neighbour has weight 0.
std::vector<GradientWeights> gradientWeights(const Geometry& geometry, const Topology& topology);

}  // namespace setup
