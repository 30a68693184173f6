// What the zones of a study make of the cells: bed and water at the start of a run, friction, grain
// sizes and the fixed bed.
#pragma once

#include <array>
#include <vector>

#include "setup/mesh/Geometry.h"
#include "setup/mesh/Mesh.h"
#include "setup/study/Study.h"

namespace setup {

/// Bed elevation per cell [m]: the mean of its nodes, or what the bed zones make of it; a later
/// zone goes over an earlier one.
std::vector<double> cellBeds(const Study& study, const Mesh& mesh, const Geometry& geometry);

/// Water surface [m] and specific discharge [m2/s] per cell; a later zone replaces an earlier one.
/// Where the level is not above the bed, the cell is dry: its surface is the bed, its discharge 0.
/// A layer that is not above the minimum water depth is kept, but does not move.
std::vector<std::array<double, 3>> initialFlow(const Study& study, const Mesh& mesh,
                                               const Geometry& geometry,
                                               const std::vector<double>& bed);

/// The friction value of each cell; a later zone replaces an earlier one. Empty without friction.
/// @throws BaseException for an area without cells; so do the two below.
std::vector<double> cellFriction(const Study& study, const Mesh& mesh, const Geometry& geometry);

/// The median grain size of each cell [m], 0 where the study gives none; a later zone replaces an
/// earlier one. Empty without morphology.
std::vector<double> cellGrainSizes(const Study& study, const Mesh& mesh, const Geometry& geometry);

/// Stands for cells that can be eroded without a limit [m].
constexpr double BOTTOMLESS = -1e9;

/// The cells with a fixed bed in the run file. All cells with a source of sediment are among them.
struct FixedCells {
  std::vector<int> cells;          ///< ascending
  std::vector<double> elevations;  ///< [m]
  int loweredToBed = 0;            ///< of how many the zone lies above the bed at the start

  /// The position of a cell that is among them.
  int positionOf(int cell) const;
};

/// A fixed bed above the bed at the start is lowered to that bed.
/// @param bed per cell [m]; @param sourceCells those that need an elevation in any case
FixedCells fixCells(const Study& study, const Mesh& mesh, const Geometry& geometry,
                    const std::vector<double>& bed, const std::vector<int>& sourceCells);

}  // namespace setup
