// Which cells an edge lies between, and which edges a cell has.
//
// Edge k of a cell runs from its node k to its node k + 1. The left cell of an edge is the one with
// the smaller position; it runs along the edge from the first to the second node with itself on the
// left. The right cell of a boundary edge is the left cell again, so that a cell on a boundary is
// always on the left. Edges are numbered in the order in which the cells meet them: neighbours in
// the list of cells have their edges near to each other, too.
#pragma once

#include <array>
#include <vector>

#include "setup/mesh/Mesh.h"

namespace setup {

struct Topology {
  std::vector<std::array<int, 2>> edgeNodes;  ///< first and second node
  std::vector<std::array<int, 2>> edgeCells;  ///< left and right cell
  std::vector<std::array<int, 3>> cellEdges;

  bool isBoundary(std::size_t edge) const { return edgeCells[edge][0] == edgeCells[edge][1]; }

  /// The cells beyond the three edges of a cell; the cell itself where there is none.
  std::array<int, 3> neighbours(std::size_t cell) const;

  /// Edges with one cell, ascending; the others with two cells, ascending.
  std::vector<int> boundaryEdges() const { return edgesWhere(true); }
  std::vector<int> innerEdges() const { return edgesWhere(false); }

 private:
  std::vector<int> edgesWhere(bool boundary) const;
};

/// @param mesh with counter-clockwise cells
/// @throws BaseException for an edge with more than two cells or with both on the same side.
Topology findTopology(const Mesh& mesh);

}  // namespace setup
