// The content of each set, one function a file.
#pragma once

#include "setup/SetContent.h"

namespace setup {

SetContent nodesAll();  ///< the nodes of the mesh
SetContent cellsAll();  ///< the cells of the mesh
SetContent edgesAll();  ///< the edges of the mesh
SetContent edgHydWL();  ///< the edges that are walls for the flow
SetContent edgesSWE();  ///< the edges that the flow passes
SetContent nodeStrg();  ///< the nodestrings of the study

}  // namespace setup
