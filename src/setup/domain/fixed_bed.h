// The fixed bed: an elevation in some cells, rock or paving, below which nothing is eroded.
#pragma once

#include <optional>
#include <vector>

#include "setup/mesh/Geometry.h"
#include "setup/mesh/Mesh.h"
#include "setup/study/Area.h"

namespace setup {

struct Study;
class StudyGroup;

struct FixedBedZone {
  Area area;
  std::optional<double> elevation;  ///< [m]; none: the fixed bed is `below` the bed at the start
  double below = 0.0;               ///< [m]
};

struct FixedBed {
  double accuracy = 1e-6;           ///< by which the bed may fall below the fixed bed in a step [m]
  int maximumPasses = 100;          ///< of the correction in a step
  std::vector<FixedBedZone> zones;  ///< a later one replaces an earlier one
};

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

/// Reads the group FIXED_BED of the bed material.
FixedBed readFixedBed(const StudyGroup& group, const std::vector<Region>& regions);

/// A fixed bed above the bed at the start is lowered to that bed.
/// @param bed per cell [m]; @param sourceCells those that need an elevation in any case
/// @throws BaseException for an area without cells
FixedCells fixCells(const Study& study, const Mesh& mesh, const Geometry& geometry,
                    const std::vector<double>& bed, const std::vector<int>& sourceCells);

}  // namespace setup
