#include "setup/domain/fixed_bed.h"

#include <algorithm>
#include <map>

#include "setup/domain/cell_values.h"
#include "setup/mesh/position.h"
#include "setup/study/Study.h"
#include "setup/study/document/StudyGroup.h"

namespace setup {

FixedBed readFixedBed(const StudyGroup& group, const std::vector<Region>& regions) {
  FixedBed fixed;
  group.take("accuracy", fixed.accuracy);
  group.take("maximum_passes", fixed.maximumPasses);
  for (const StudyGroup& item : group.groups("ZONES")) {
    FixedBedZone zone;
    zone.area = readArea(item, regions);
    item.take("elevation", zone.elevation);
    item.take("below_bed", zone.below);
    fixed.zones.push_back(zone);
  }
  return fixed;
}

int FixedCells::positionOf(int cell) const {
  return static_cast<int>(std::lower_bound(cells.begin(), cells.end(), cell) - cells.begin());
}

FixedCells fixCells(const Study& study, const Mesh& mesh, const Geometry& geometry,
                    const std::vector<double>& bed, const std::vector<int>& sourceCells) {
  std::map<int, double> elevationOf;
  if (study.morphology && study.morphology->fixedBed) {
    for (const FixedBedZone& zone : study.morphology->fixedBed->zones) {
      for (const int cell : cellsOf(zone.area, study, mesh, geometry)) {
        elevationOf[cell] = zone.elevation.value_or(bed[index(cell)] - zone.below);
      }
    }
  }
  for (const int cell : sourceCells) elevationOf.emplace(cell, BOTTOMLESS);
  FixedCells fixed;
  for (const auto& [cell, elevation] : elevationOf) {
    const double atStart = bed[index(cell)];
    if (elevation > atStart) ++fixed.loweredToBed;
    fixed.cells.push_back(cell);
    fixed.elevations.push_back(std::min(elevation, atStart));
  }
  return fixed;
}

}  // namespace setup
