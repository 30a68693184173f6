// What the bed is made of: its pores, its density, the size of its grains, and rock or paving below
// which nothing is eroded.
#pragma once

#include <optional>
#include <vector>

#include "setup/study/Area.h"

namespace setup {

struct GrainZone {
  Area area;
  double size = 0.0;  ///< [m]
};

struct BedMaterial {
  double porosity = 0.4;            ///< share of the pores in the volume of the bed [-]
  double density = 2650.0;          ///< of the grains [kg/m3]
  double waterDensity = 1000.0;     ///< [kg/m3]
  std::optional<double> grainSize;  ///< median, where no zone says otherwise [m]
  std::vector<GrainZone> zones;
};

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

/// Reads the group BEDMATERIAL without its fixed bed.
/// @throws BaseException for zones without a size where there is none, and for grains that float
BedMaterial readBedMaterial(const StudyGroup& group, const std::vector<Region>& regions);

/// Reads the group FIXED_BED of the bed material.
FixedBed readFixedBed(const StudyGroup& group, const std::vector<Region>& regions);

}  // namespace setup
