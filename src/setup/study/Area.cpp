#include "setup/study/Area.h"

namespace setup {

bool Area::contains(int material, const std::array<double, 2>& centroid) const {
  if (region && material != region->index) return false;
  if (!box) return true;
  const auto [x, y] = centroid;
  return x >= (*box)[0] && x <= (*box)[2] && y >= (*box)[1] && y <= (*box)[3];
}

std::vector<Region> readRegions(const StudyGroup& geometry) {
  std::vector<Region> regions;
  for (const StudyGroup& group : geometry.groups("REGIONDEF")) {
    Region region;
    group.take("index", region.index);
    group.take("name", region.name);
    for (const Region& other : regions) {
      if (other.index == region.index || other.name == region.name) {
        group.refuse("has the index or the name of another region, index ", other.index,
                     " and name <", other.name, ">");
      }
    }
    regions.push_back(region);
  }
  return regions;
}

std::optional<Region> regionNamed(const std::string& name, const std::vector<Region>& regions) {
  for (const Region& region : regions) {
    if (region.name == name) return region;
  }
  return std::nullopt;
}

Area readArea(const StudyGroup& group, const std::vector<Region>& regions) {
  Area area;
  area.path = group.path();
  group.take("box", area.box);
  if (area.box && !((*area.box)[0] < (*area.box)[2] && (*area.box)[1] < (*area.box)[3])) {
    group.refuseValue("box", "[xmin, ymin, xmax, ymax] with xmin < xmax and ymin < ymax");
  }
  std::string name;
  group.take("region", name);
  area.region = regionNamed(name, regions);
  if (!area.region && !area.box) group.refuse("must hold region, box or both");
  return area;
}

}  // namespace setup
