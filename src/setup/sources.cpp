#include "setup/sources.h"

#include <algorithm>
#include <filesystem>

#include "setup/Study.h"
#include "setup/StudyGroup.h"
#include "setup/initialState.h"
#include "setup/position.h"
#include "setup/studyFault.h"

namespace setup {

namespace {

constexpr int SPREAD_OVER_REGION = 6;
constexpr int MILLIMETRES_PER_HOUR = 7;

template <class Items, class NameOf>
int positionOf(const Items& items, const std::string& name, const NameOf& nameOf) {
  const auto found = std::find_if(items.begin(), items.end(),
                                  [&](const auto& item) { return nameOf(item) == name; });
  return static_cast<int>(found - items.begin());
}

Source readSource(const StudyGroup& group, const Study& study) {
  Source source;
  source.path = group.path();
  source.region = regionNamed(group["region"].get<std::string>(), study.regions).value();
  source.type = positionOf(sourceTypes(), group["type"].get<std::string>(),
                           [](const SourceType& type) { return type.name; });
  std::string sink = "available";
  group.take("sink", sink);
  source.sink = positionOf(sinkNames(), sink, [](const std::string& name) { return name; });
  const SourceType& type = sourceTypes()[index(source.type)];
  const std::string fileKey = type.key + "_file";
  if (!group.has(type.key.c_str()) && !group.has(fileKey.c_str())) {
    group.refuse("of type <", type.name, "> must hold either ", type.key, " or ", fileKey);
  }
  group.take(type.key.c_str(), source.value);
  if (group.has(fileKey.c_str())) {
    const std::filesystem::path folder = std::filesystem::path(study.file).parent_path();
    source.file = (folder / group[fileKey.c_str()].get<std::string>()).string();
  }
  return source;
}

class SourceLayer {
 public:
  SourceLayer(const Study& theStudy, const Mesh& theMesh, const Geometry& theGeometry,
              SeriesList& theSeries)
      : study(theStudy), mesh(theMesh), geometry(theGeometry), series(theSeries) {}

  CellSources lay() {
    measureRegions();
    std::vector<int> ownerOf(mesh.cells.size(), -1);
    for (std::size_t k = 0; k < study.sources.size(); ++k) {
      const Source& source = study.sources[k];
      layRate(source);
      for (const int cell : cellsOf({source.path, source.region, {}}, study, mesh, geometry)) {
        int& owner = ownerOf[index(cell)];
        if (owner >= 0) {
          refuseStudy(study.file, "<", source.path, "> is in the region <", source.region.name,
                      "> as is <", study.sources[index(owner)].path,
                      ">, but a region has one source");
        }
        owner = static_cast<int>(k);
        result.cells.push_back(cell);
        result.recordOf.push_back(static_cast<int>(k));
        result.sinkTypes.push_back(typeOf(source).sinkFamily + source.sink);
      }
    }
    return std::move(result);
  }

 private:
  static const SourceType& typeOf(const Source& source) {
    return sourceTypes()[index(source.type)];
  }

  void measureRegions() {
    for (const Region& region : study.regions) {
      double area = 0.0;
      for (std::size_t cell = 0; cell < mesh.cells.size(); ++cell) {
        if (mesh.cells[cell].material == region.index) area += geometry.areas[cell];
      }
      result.regionAreas.push_back(area);
    }
  }

  void layRate(const Source& source) {
    const auto record = static_cast<int>(result.records.size());
    result.records.push_back({source.value, 0.0});
    double strongest = source.value;
    if (!source.file.empty()) {
      const int number = series.add(source.file);
      result.interpolations.push_back({number, record});
      const auto& points = series.at(number).points;
      strongest = (*std::max_element(points.begin(), points.end(),
                                     [](const auto& a, const auto& b) { return a[1] < b[1]; }))[1];
    }
    const int region = positionOf(study.regions, source.region.name,
                                  [](const Region& known) { return known.name; });
    const int modification = typeOf(source).modification;
    result.modifications.push_back({modification, region, record});
    const double divisor =
        modification == SPREAD_OVER_REGION ? result.regionAreas[index(region)] : 3.6e6;
    if (divisor > 0.0) {
      result.strongestRate = std::max(result.strongestRate, strongest / divisor);
    }
  }

  const Study& study;
  const Mesh& mesh;
  const Geometry& geometry;
  SeriesList& series;
  CellSources result;
};

}  // namespace

const std::vector<SourceType>& sourceTypes() {
  // clang-format off
  static const std::vector<SourceType> types = {
    // name       key          modification          exact sink
    {"discharge", "discharge", SPREAD_OVER_REGION,   10},
    {"rain",      "intensity", MILLIMETRES_PER_HOUR, 20},
  };
  // clang-format on
  return types;
}

const std::vector<std::string>& sinkNames() {
  static const std::vector<std::string> names = {"exact", "available", "infinity"};
  return names;
}

void readSources(const StudyGroup& hydraulics, Study& study) {
  for (const StudyGroup& group : hydraulics.groups("SOURCE")) {
    study.sources.push_back(readSource(group, study));
  }
}

CellSources laySources(const Study& study, const Mesh& mesh, const Geometry& geometry,
                       SeriesList& series) {
  return SourceLayer(study, mesh, geometry, series).lay();
}

}  // namespace setup
