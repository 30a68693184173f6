// Numbers cells so that neighbours stand near to each other in memory. Meshes come in any order; a
// random one makes every loop over edges wait for memory and the solver several times slower.
//
//   orderCells(mesh, cuthillMcKee(neighbours));
#pragma once

#include <array>
#include <vector>

#include "setup/mesh/Mesh.h"
#include "setup/mesh/Topology.h"

namespace setup {

/// For each cell the cells beyond its edges; the cell itself where there is none.
using Neighbours = std::vector<std::array<int, 3>>;

Neighbours neighboursOf(const Topology& topology);

/// The old positions of the cells in their new order: from one end of the mesh to the other in
/// fronts one cell deep (reverse Cuthill-McKee). Parts that are not connected follow each other.
std::vector<int> cuthillMcKee(const Neighbours& neighbours);

/// Puts the cells in the given order of their old positions.
void orderCells(Mesh& mesh, const std::vector<int>& order);

/// The greatest distance of two neighbours in the list of cells.
int bandwidth(const Neighbours& neighbours);

}  // namespace setup
