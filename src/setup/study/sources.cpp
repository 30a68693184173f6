#include "setup/study/sources.h"

#include <algorithm>
#include <filesystem>

#include "setup/domain/cell_values.h"
#include "setup/mesh/position.h"
#include "setup/study/Study.h"
#include "setup/study/document/StudyGroup.h"
#include "setup/study/document/study_fault.h"

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

Source readSource(const StudyGroup& group, const std::vector<SourceType>& types,
                  const Study& study) {
  Source source;
  source.path = group.path();
  source.region = regionNamed(group["region"].get<std::string>(), study.regions).value();
  const int number = positionOf(types, group["type"].get<std::string>(),
                                [](const SourceType& type) { return type.name; });
  source.type = &types[index(number)];
  std::string sink = "available";
  group.take("sink", sink);
  source.sink = positionOf(sinkNames(), sink, [](const std::string& name) { return name; });
  const SourceType& type = *source.type;
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
    layList(study.sources, result.flow);
    for (const Source& source : study.sources) {
      result.strongestRate = std::max(result.strongestRate, strongestRateOf(source));
    }
    if (study.morphology) layList(study.morphology->sources, result.bed);
    return std::move(result);
  }

 private:
  void layList(const std::vector<Source>& sources, SourceCells& cells) {
    std::vector<int> ownerOf(mesh.cells.size(), -1);
    for (std::size_t k = 0; k < sources.size(); ++k) {
      const Source& source = sources[k];
      const int record = layRate(source);
      for (const int cell : cellsOf({source.path, source.region, {}}, study, mesh, geometry)) {
        int& owner = ownerOf[index(cell)];
        if (owner >= 0) {
          refuseStudy(study.file, "<", source.path, "> is in the region <", source.region.name,
                      "> as is <", sources[index(owner)].path, ">, but a region has one source");
        }
        owner = static_cast<int>(k);
        cells.cells.push_back(cell);
        cells.recordOf.push_back(record);
        cells.sinkTypes.push_back(source.type->sinkFamily + source.sink);
      }
    }
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

  int regionOf(const Source& source) const {
    return positionOf(study.regions, source.region.name,
                      [](const Region& known) { return known.name; });
  }

  /// @returns the record
  int layRate(const Source& source) {
    const auto record = static_cast<int>(result.records.size());
    result.records.push_back({source.value, 0.0});
    if (!source.file.empty()) result.interpolations.push_back({series.add(source.file), record});
    result.modifications.push_back({source.type->modification, regionOf(source), record});
    return record;
  }

  /// At any time [m/s].
  double strongestRateOf(const Source& source) const {
    double strongest = source.value;
    if (!source.file.empty()) {
      const auto& points = series.at(series.add(source.file)).points;
      strongest = (*std::max_element(points.begin(), points.end(),
                                     [](const auto& a, const auto& b) { return a[1] < b[1]; }))[1];
    }
    const bool isSpread = source.type->modification == SPREAD_OVER_REGION;
    return strongest / (isSpread ? result.regionAreas[index(regionOf(source))] : 3.6e6);
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

const std::vector<SourceType>& bedSourceTypes() {
  // clang-format off
  static const std::vector<SourceType> types = {
    // name       key          modification          exact sink
    {"discharge", "discharge", SPREAD_OVER_REGION,   30},
    {"rise",      "rate",      MILLIMETRES_PER_HOUR, 30},
  };
  // clang-format on
  return types;
}

const std::vector<std::string>& sinkNames() {
  static const std::vector<std::string> names = {"exact", "available", "infinity"};
  return names;
}

std::vector<Source> readSources(const StudyGroup& group, const std::vector<SourceType>& types,
                                const Study& study) {
  std::vector<Source> sources;
  for (const StudyGroup& item : group.groups("SOURCE")) {
    sources.push_back(readSource(item, types, study));
  }
  return sources;
}

void requireBottom(const Study& study, const CellSources& sources, const FixedCells& fixed) {
  for (std::size_t k = 0; k < sources.bed.cells.size(); ++k) {
    const Source& source =
        study.morphology->sources.at(index(sources.bed.recordOf[k]) - study.sources.size());
    if (sinkNames()[index(source.sink)] != "infinity") continue;
    const int position = fixed.positionOf(sources.bed.cells[k]);
    if (fixed.elevations[index(position)] > BOTTOMLESS) continue;
    refuseStudy(study.file, "<", source.path,
                "> with the sink <infinity> needs a fixed bed in all ",
                "cells of its region: it takes all that is above");
  }
}

CellSources laySources(const Study& study, const Mesh& mesh, const Geometry& geometry,
                       SeriesList& series) {
  return SourceLayer(study, mesh, geometry, series).lay();
}

}  // namespace setup
