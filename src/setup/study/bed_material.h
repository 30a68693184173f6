// What the bed is made of: its pores, its density, and the grain size in each cell.
#pragma once

#include <optional>
#include <vector>

#include "setup/mesh/Geometry.h"
#include "setup/mesh/Mesh.h"
#include "setup/study/Area.h"

namespace setup {

struct Study;
class StudyGroup;

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

/// Reads the group BEDMATERIAL without its fixed bed.
/// @throws BaseException for zones without a size where there is none, and for grains that float
BedMaterial readBedMaterial(const StudyGroup& group, const std::vector<Region>& regions);

/// The median grain size of each cell [m], 0 where the study gives none; a later zone replaces an
/// earlier one. Empty without morphology.
/// @throws BaseException for an area without cells
std::vector<double> cellGrainSizes(const Study& study, const Mesh& mesh, const Geometry& geometry);

}  // namespace setup
