// Weights for the gradient of cell values.
//
// The gradient in a cell is the one that fits best, in the sense of least squares, to the
// differences to its neighbours:
//   grad(phi) = sum over k of W_k (phi_k - phi_0),   W_k = (sum over j of d_j d_j^T)^-1 d_k
// with d_k from the centroid of the cell to that of neighbour k. A linear field is reproduced
// exactly by cells with two neighbours or three.
#pragma once

#include <array>
#include <vector>

#include "setup/mesh/Geometry.h"

namespace setup {

/// Pairs of x and y weights for the three neighbours [1/m].
using GradientWeights = std::array<double, 6>;

/// @param distances from the cell to its neighbours [m]; at most three
/// @returns a row of weights per distance. Where the neighbours lie on one line with the cell, or
///          there is only one, the gradient is the one along this line; the part across is 0.
std::vector<Vector2> leastSquaresWeights(const std::vector<Vector2>& distances);

/// The weights of all cells. A missing neighbour has weight 0.
std::vector<GradientWeights> gradientWeights(const Geometry& geometry, const Topology& topology);

}  // namespace setup
