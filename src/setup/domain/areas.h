// Areas of a study on the cells of the mesh.
#pragma once

#include <vector>

#include "setup/mesh/Geometry.h"
#include "setup/mesh/Mesh.h"
#include "setup/study/Study.h"

namespace setup {

/// Positions of the cells of an area.
/// @throws BaseException if the area's region is a material that the mesh does not have, or if
///         there is no cell in the area.
std::vector<int> cellsOf(const Area& area, const Study& study, const Mesh& mesh,
                         const Geometry& geometry);

/// The areas of the regions of the study [m2]; 0 for a material that the mesh does not have.
std::vector<double> regionAreas(const Study& study, const Mesh& mesh, const Geometry& geometry);

}  // namespace setup
