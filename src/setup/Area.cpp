#include "setup/Area.h"

#include <algorithm>
#include <nlohmann/json.hpp>

#include "setup/studyFault.h"

namespace setup {

Region regionNamed(const std::string& name, const std::string& path,
                   const std::vector<Region>& regions, const std::string& studyFile) {
  const auto found = std::find_if(regions.begin(), regions.end(),
                                  [&name](const Region& region) { return region.name == name; });
  if (found == regions.end()) {
    refuseStudy(studyFile, "key <", path, "> names <", name,
                ">, which is not in <SETUP/DOMAIN/RHEOPLANE_2D/GEOMETRY/REGIONDEF>");
  }
  return *found;
}

Area readArea(const nlohmann::json& group, const std::string& path,
              const std::vector<Region>& regions, const std::string& studyFile) {
  Area area;
  area.path = path;
  if (group.contains("box")) area.box = group.at("box").get<std::array<double, 4>>();
  if (group.contains("region")) {
    area.region =
        regionNamed(group.at("region").get<std::string>(), path + "/region", regions, studyFile);
  }
  if (!area.region && !area.box) {
    refuseStudy(studyFile, "<", path, "> must hold region, box or both");
  }
  return area;
}

}  // namespace setup
