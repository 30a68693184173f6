// Makes a mesh fit for the solver, as far as that can be done without asking: triangles are turned
// counter-clockwise and nodes that no triangle uses are left out. What is wrong is refused.
#pragma once

#include "setup/mesh/Mesh.h"

namespace setup {

struct Tidying {
  int turnedCells = 0;
  int unusedNodes = 0;
};

/// @returns what has been changed.
/// @throws BaseException for two nodes at the same place, a triangle that names a node twice or has
///         no area, and a nodestring over a node that no triangle uses.
Tidying tidyMesh(Mesh& mesh);

}  // namespace setup
