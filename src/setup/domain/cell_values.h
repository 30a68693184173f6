// Bed and water in the cells at the start of a run.
#pragma once

#include <array>
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

/// Bed elevation per cell [m]: the mean of its nodes, or what the bed zones make of it; a later
/// zone goes over an earlier one.
std::vector<double> cellBeds(const Study& study, const Mesh& mesh, const Geometry& geometry);

/// Water surface [m] and specific discharge [m2/s] per cell; a later zone replaces an earlier one.
/// Where the level is not above the bed, the cell is dry: its surface is the bed, its discharge 0.
/// A layer that is not above the minimum water depth is kept, but does not move.
std::vector<std::array<double, 3>> initialFlow(const Study& study, const Mesh& mesh,
                                               const Geometry& geometry,
                                               const std::vector<double>& bed);

}  // namespace setup
