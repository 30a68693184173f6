// Nodestrings on the mesh: lines of edges across or along which water is counted or given.
//
// A string has a direction, that of its nodes. Water that crosses it from its left to its right
// side counts as a positive discharge; the cells on its left are the upstream cells.
#pragma once

#include <string>
#include <vector>

#include "setup/mesh/Geometry.h"
#include "setup/mesh/Mesh.h"
#include "setup/mesh/Topology.h"
#include "setup/study/Study.h"

namespace setup {

/// A string on the mesh; all lists have one entry per edge, in the order along the string.
struct EdgeString {
  std::string name;
  std::vector<int> edges;
  std::vector<int> signs;  ///< 1: the edge has its left cell on the left of the string; -1: flipped
  std::vector<int> cells;  ///< on the upstream side; at the boundary the one cell that there is
  double length = 0.0;     ///< [m]
};

/// The strings of the study, in its order.
/// @throws BaseException for a string that the mesh does not have, unknown nodes, consecutive nodes
///         that no edge joins, an edge that is passed twice, and more edges than are possible.
std::vector<EdgeString> findStrings(const Study& study, const Mesh& mesh, const Topology& topology,
                                    const Geometry& geometry);

/// Turns the direction of a string.
void reverse(EdgeString& string, const Topology& topology);

}  // namespace setup
