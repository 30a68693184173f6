// Parts of the domain, as a study names them.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "setup/study/document/StudyGroup.h"

namespace setup {

/// A name for the cells of one material.
struct Region {
  int index = 0;  ///< the material
  std::string name;
};

/// A part of the domain: the cells of a region, or with the centroid in a box, or both.
struct Area {
  std::string path;  ///< JSON pointer into the study document, for messages
  std::optional<Region> region;
  std::optional<std::array<double, 4>> box;  ///< xmin, ymin, xmax, ymax [m]; its edges belong to it

  /// Whether a cell of the material with this centroid [m] is in the area.
  bool contains(int material, const std::array<double, 2>& centroid) const;
};

/// Reads the list REGIONDEF of the group GEOMETRY, if it has one.
/// @throws BaseException for an index or a name that stands twice
std::vector<Region> readRegions(const StudyGroup& geometry);

/// The region of a name, none if there is none of it.
std::optional<Region> regionNamed(const std::string& name, const std::vector<Region>& regions);

/// The area that a group of the study describes.
/// @throws BaseException for a group with neither region nor box, and for a box without extent
Area readArea(const StudyGroup& group, const std::vector<Region>& regions);

}  // namespace setup
