#include "setup/study/Area.h"

#include "setup/study/document/StudyGroup.h"

namespace setup {

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
