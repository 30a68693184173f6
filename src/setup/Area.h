// Parts of the domain, as a study names them.
#pragma once

#include <array>
#include <nlohmann/json_fwd.hpp>
#include <optional>
#include <string>
#include <vector>

namespace setup {

/// A name for the cells of one material.
struct Region {
  int index = 0;  ///< the material
  std::string name;
};

/// A part of the domain: the cells of a region, or with the centroid in a box, or both.
struct Area {
  std::string path;  ///< in the study document, for messages
  std::optional<Region> region;
  std::optional<std::array<double, 4>> box;  ///< xmin, ymin, xmax, ymax [m]
};

/// The region of a name.
/// @param path of the key that holds the name
/// @throws BaseException if no region has the name
Region regionNamed(const std::string& name, const std::string& path,
                   const std::vector<Region>& regions, const std::string& studyFile);

/// The area that a group of the study describes.
/// @param path of the group
/// @throws BaseException for a group with neither region nor box, and for unknown regions
Area readArea(const nlohmann::json& group, const std::string& path,
              const std::vector<Region>& regions, const std::string& studyFile);

}  // namespace setup
