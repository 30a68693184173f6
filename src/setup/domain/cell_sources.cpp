#include "setup/domain/cell_sources.h"

#include <algorithm>

#include "setup/domain/areas.h"

namespace setup {

namespace {

class SourceLayer {
 public:
  SourceLayer(const Study& newStudy, const Mesh& newMesh, const Geometry& newGeometry,
              SeriesList& newSeries)
      : study(newStudy), mesh(newMesh), geometry(newGeometry), series(newSeries) {}

  CellSources lay() {
    result.regionAreas = regionAreas(study, mesh, geometry);
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
        cells.sinkTypes.push_back(static_cast<int>(source.sink));
      }
    }
  }

  int regionOf(const Source& source) const {
    const auto found =
        std::find_if(study.regions.begin(), study.regions.end(),
                     [&source](const Region& known) { return known.name == source.region.name; });
    return static_cast<int>(found - study.regions.begin());
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
    const bool isSpread = source.type->modification == model::CellModificationCode::OverRegionArea;
    return strongest / (isSpread ? result.regionAreas[index(regionOf(source))] : 3.6e6);
  }

  const Study& study;
  const Mesh& mesh;
  const Geometry& geometry;
  SeriesList& series;
  CellSources result;
};

}  // namespace

CellSources laySources(const Study& study, const Mesh& mesh, const Geometry& geometry,
                       SeriesList& series) {
  return SourceLayer(study, mesh, geometry, series).lay();
}

void requireBottom(const Study& study, const CellSources& sources, const FixedCells& fixed) {
  for (std::size_t k = 0; k < sources.bed.cells.size(); ++k) {
    const Source& source =
        study.morphology->sources.at(index(sources.bed.recordOf[k]) - study.sources.size());
    if (source.sink != model::SinkCode::SedimentInfinity) continue;
    const int position = fixed.positionOf(sources.bed.cells[k]);
    if (fixed.elevations[index(position)] > BOTTOMLESS) continue;
    refuseStudy(study.file, "<", source.path,
                "> with the sink <infinity> needs a fixed bed in all ",
                "cells of its region: it takes all that is above");
  }
}

}  // namespace setup
