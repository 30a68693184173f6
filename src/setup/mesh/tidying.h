// Makes a mesh fit for the solver, as far as that can be done without asking: triangles are turned
// counter-clockwise, nodes that no triangle uses are left out, and cells are numbered anew. What is
// wrong is refused.
//
//   tidyMesh(mesh);
//   orderCells(mesh, cuthillMcKee(neighboursOf(findTopology(mesh))));
#pragma once

#include <array>
#include <vector>

#include "setup/mesh/Mesh.h"
#include "setup/mesh/Topology.h"

namespace setup {

struct Tidying {
  int turnedCells = 0;
  int unusedNodes = 0;
};

/// @returns what has been changed.
/// @throws BaseException for two nodes at the same place, a triangle that names a node twice or has
///         no area, and a nodestring over a node that no triangle uses.
Tidying tidyMesh(Mesh& mesh);

/// For each cell the cells beyond its edges; the cell itself where there is none.
using Neighbours = std::vector<std::array<int, 3>>;

Neighbours neighboursOf(const Topology& topology);

/// The old positions of the cells in their new order: from one end of the mesh to the other in
/// fronts one cell deep (reverse Cuthill-McKee). Parts that are not connected follow each other.
/// Neighbours then stand near to each other in memory; in a random order every loop over edges
/// waits for memory, and the solver is several times slower.
std::vector<int> cuthillMcKee(const Neighbours& neighbours);

/// Puts the cells in the given order of their old positions.
void orderCells(Mesh& mesh, const std::vector<int>& order);

/// The greatest distance of two neighbours in the list of cells.
int bandwidth(const Neighbours& neighbours);

}  // namespace setup
