// The bed and the water at the start, as a study gives them.
#pragma once

#include <array>
#include <optional>
#include <vector>

#include "setup/study/Area.h"

namespace setup {

/// Sets the bed of an area to a plane, or lifts it.
struct BedZone {
  Area area;
  std::optional<double> elevation;   ///< at `at` [m]; none: the bed is lifted by `raise`
  std::array<double, 2> gradient{};  ///< rise per metre along x and y [-]
  std::array<double, 2> at{};        ///< [m]
  double raise = 0.0;                ///< [m]
};

/// Dry, if there is neither a level nor a depth.
struct Water {
  std::optional<double> level;       ///< [m]
  std::optional<double> depth;       ///< [m]
  std::array<double, 2> velocity{};  ///< [m/s]
};

struct WaterZone {
  Area area;
  Water water;
};

/// Reads the list BED of the group GEOMETRY, if it has one.
/// @throws BaseException for a gradient without the place or the elevation that it needs
std::vector<BedZone> readBedZones(const StudyGroup& geometry, const std::vector<Region>& regions);

/// Reads the water that a group describes; the group may hold other keys, too.
/// @throws BaseException for a level beside a depth, and a velocity without either
Water readWater(const StudyGroup& group);

/// Reads the list ZONES of the group INITIAL, if it has one.
std::vector<WaterZone> readWaterZones(const StudyGroup& initial,
                                      const std::vector<Region>& regions);

}  // namespace setup
