#include <cmath>
#include <functional>
#include <type_traits>

#include "catalogue/Codes.h"
#include "catalogue/Limits.h"
#include "setup/mesh/Geometry.h"
#include "setup/mesh/tidying.h"
#include "setup/runfile/contents.h"

namespace setup {

namespace {

template <class Items>
int count(const Items& items) {
  return static_cast<int>(items.size());
}

/// What `get` gives of each item: the value of a function, or a member.
template <class Item, class Get>
auto each(const std::vector<Item>& items, Get get) {
  std::vector<std::decay_t<std::invoke_result_t<Get, const Item&>>> values;
  values.reserve(items.size());
  for (const Item& item : items) values.push_back(std::invoke(get, item));
  return values;
}

/// The rows one behind the other.
template <class T, std::size_t N>
std::vector<T> flat(const std::vector<std::array<T, N>>& rows) {
  std::vector<T> values;
  values.reserve(N * rows.size());
  for (const std::array<T, N>& row : rows) values.insert(values.end(), row.begin(), row.end());
  return values;
}

std::vector<double> coordinates(const std::vector<Node>& nodes) {
  std::vector<double> values;
  values.reserve(3 * nodes.size());
  for (const Node& node : nodes) values.insert(values.end(), {node.x, node.y, node.z});
  return values;
}

/// 1 where the cell is the left one of its edge, -1 where it is the right one.
std::vector<int> edgeSigns(const Domain& domain) {
  std::vector<int> signs;
  signs.reserve(3 * domain.topology.cellEdges.size());
  for (std::size_t cell = 0; cell < domain.topology.cellEdges.size(); ++cell) {
    for (const int edge : domain.topology.cellEdges[cell]) {
      const int left = domain.topology.edgeCells[index(edge)][0];
      signs.push_back(left == static_cast<int>(cell) ? 1 : -1);
    }
  }
  return signs;
}

/// Between the centroids on both sides of each edge.
std::vector<double> centroidDistances(const Domain& domain) {
  std::vector<double> distances;
  for (std::size_t edge = 0; edge < domain.topology.edgeCells.size(); ++edge) {
    const Vector2 vector = centroidVector(domain.geometry, domain.topology, edge);
    distances.push_back(std::hypot(vector[0], vector[1]));
  }
  return distances;
}

std::vector<double> centroidDirections(const Domain& domain) {
  std::vector<double> directions;
  for (std::size_t edge = 0; edge < domain.topology.edgeCells.size(); ++edge) {
    const Vector2 vector = centroidVector(domain.geometry, domain.topology, edge);
    const double distance = std::hypot(vector[0], vector[1]);
    directions.insert(directions.end(), {vector[0] / distance, vector[1] / distance});
  }
  return directions;
}

/// The list without the edges that are also in `taken`, in its own order.
std::vector<int> without(const std::vector<int>& taken, const std::vector<int>& list,
                         const Domain& domain) {
  std::vector<bool> isTaken(domain.topology.edgeCells.size(), false);
  for (const int edge : taken) isTaken[index(edge)] = true;
  std::vector<int> left;
  for (const int edge : list) {
    if (!isTaken[index(edge)]) left.push_back(edge);
  }
  return left;
}

/// The edges on the boundary that the study leaves to be walls for the flow.
std::vector<int> flowWalls(const Domain& domain) {
  return without(domain.boundaries.flow.edges, domain.topology.boundaryEdges(), domain);
}

/// The edges inside that no boundary of the study takes.
std::vector<int> flowPassages(const Domain& domain) {
  return without(domain.boundaries.flow.edges, domain.topology.innerEdges(), domain);
}

/// The edges of weirs, pumps and walls through the mesh. A gate lets the bed load pass.
std::vector<int> edgesThatStopBedload(const Domain& domain) {
  const BoundaryEdges& flow = domain.boundaries.flow;
  std::vector<int> stopping;
  for (std::size_t k = 0; k < flow.edges.size(); ++k) {
    const auto code = static_cast<model::HydBoundaryCode>(flow.types[k][0]);
    if (code == model::HydBoundaryCode::InnerTransfer ||
        code == model::HydBoundaryCode::InnerWall) {
      stopping.push_back(flow.edges[k]);
    }
  }
  return stopping;
}

/// The edges on the boundary that the study leaves, and what stops the bed load inside.
std::vector<int> bedloadWalls(const Domain& domain) {
  std::vector<int> walls =
      without(domain.boundaries.bed.edges, domain.topology.boundaryEdges(), domain);
  const std::vector<int> inside = edgesThatStopBedload(domain);
  walls.insert(walls.end(), inside.begin(), inside.end());
  return walls;
}

std::vector<int> bedloadPassages(const Domain& domain) {
  return without(edgesThatStopBedload(domain), domain.topology.innerEdges(), domain);
}

std::vector<int> cellsLeftOf(const std::vector<int>& edges, const Domain& domain) {
  return each(edges, [&](int edge) { return domain.topology.edgeCells[index(edge)][0]; });
}

/// The cells on the left and on the right of each edge.
std::vector<int> cellsBeside(const std::vector<int>& edges, const Domain& domain) {
  return flat(each(edges, [&](int edge) { return domain.topology.edgeCells[index(edge)]; }));
}

std::vector<int> edgesOf(const std::vector<int>& cells, const Domain& domain) {
  return flat(each(cells, [&](int cell) { return domain.topology.cellEdges[index(cell)]; }));
}

std::vector<int> fixedCellsOfSources(const Domain& domain) {
  return each(domain.sources.bed.cells,
              [&](int cell) { return domain.fixedCells.positionOf(cell); });
}

/// Rows of the greatest number of edges; what is behind the last edge of a string is 0.
std::vector<int> stringRows(const std::vector<EdgeString>& strings,
                            std::vector<int> EdgeString::*list) {
  std::vector<int> values;
  for (const EdgeString& string : strings) {
    const std::size_t end = values.size() + model::STRING_EDGES;
    values.insert(values.end(), (string.*list).begin(), (string.*list).end());
    values.resize(end, 0);
  }
  return values;
}

std::vector<int> edgeCounts(const std::vector<EdgeString>& strings) {
  return each(strings, [](const EdgeString& string) { return count(string.edges); });
}

/// Behind the last point in use stand missing values.
std::vector<double> seriesRows(const std::vector<Series>& list) {
  std::vector<double> rows;
  for (const Series& series : list) {
    const std::size_t end = rows.size() + model::SERIES_VALUES;
    for (const auto& [x, y] : series.points) rows.insert(rows.end(), {x, y * series.factor});
    rows.resize(end, model::MISSING_VALUE);
  }
  return rows;
}

std::vector<int> seriesSizes(const std::vector<Series>& list) {
  return each(list, [](const Series& series) { return 2 * count(series.points); });
}

std::vector<int> keysAndPositions(const std::vector<EdgeInterpolation>& interpolations) {
  std::vector<int> values;
  for (const EdgeInterpolation& item : interpolations) {
    values.insert(values.end(), {static_cast<int>(item.key), item.position});
  }
  return values;
}

/// Sources know series over time only, which become the rate as given.
std::vector<int> keysAndPositions(const std::vector<CellInterpolation>& interpolations) {
  std::vector<int> values;
  for (std::size_t k = 0; k < interpolations.size(); ++k) {
    values.insert(values.end(), {static_cast<int>(model::InterpolationKey::Time), 0});
  }
  return values;
}

/// Rows of a type, the position that is written and the five that are read.
std::vector<int> modificationRows(const std::vector<EdgeModification>& modifications) {
  std::vector<int> rows;
  for (const auto& [info, strings, record] : modifications) {
    rows.insert(rows.end(), {static_cast<int>(info.type), info.target});
    rows.insert(rows.end(), info.sources.begin(), info.sources.end());
  }
  return rows;
}

/// The rate as given becomes the rate in m/s.
std::vector<int> modificationRows(const std::vector<CellModification>& modifications) {
  std::vector<int> rows;
  for (const CellModification& item : modifications) {
    rows.insert(rows.end(), {static_cast<int>(item.type), 1, 0, 0, 0, 0, 0});
  }
  return rows;
}

using enum model::SetID;
using enum model::MapID;
using enum model::DataID;
using D = const Domain&;

// clang-format off
/// A set is its size, its maps and its data.
const std::map<model::SetID, SetContent> CONTENTS = {
  {NodesAll, {[](D d) { return count(d.mesh.nodes); },
    {},
    {{Coordnts,          [](D d) { return coordinates(d.mesh.nodes); }}}}},
  {CellsAll, {[](D d) { return count(d.mesh.cells); },
    {{CellsAll_EdgesAll, [](D d) { return flat(d.topology.cellEdges); }},
     {CellsAll_NbrCells, [](D d) { return flat(neighboursOf(d.topology)); }}},
    {{HydState,          [](D d) { return flat(d.flow); }},
     {BottomEl,          [](D d) { return d.bed; }},
     {Friction,          [](D d) { return d.friction; }},
     {MSedSize,          [](D d) { return d.grainSizes; }},
     {ThetaCrt,          [](D d) { return d.criticalValues; }},
     {CellsAll_GeomArea, [](D d) { return d.geometry.areas; }},
     {CellsAll_EdgeSign, &edgeSigns},
     {Topology,          [](D d) { return flat(each(d.mesh.cells, &Triangle::nodes)); }},
     {GeomWght,          [](D d) { return flat(gradientWeights(d.geometry, d.topology)); }}}}},
  {EdgesAll, {[](D d) { return count(d.topology.edgeCells); },
    {{EdgesAll_CellsAll, [](D d) { return flat(d.topology.edgeCells); }}},
    {{NormVect,          [](D d) { return flat(d.geometry.normals); }},
     {GeomLeng,          [](D d) { return d.geometry.lengths; }},
     {CharSize,          [](D d) { return flat(d.geometry.charSizes); }},
     {UnitCent,          &centroidDirections},
     {DistCent,          &centroidDistances}}}},
  {EdgHydWL, {[](D d) { return count(flowWalls(d)); },
    {{EdgHydWL_EdgesAll, &flowWalls},
     {EdgHydWL_CellsAll, [](D d) { return cellsLeftOf(flowWalls(d), d); }}},
    {}}},
  {EdgMorWL, {[](D d) { return count(bedloadWalls(d)); },
    {{EdgMorWL_EdgesAll, &bedloadWalls}},
    {}}},
  {EdgesSWE, {[](D d) { return count(flowPassages(d)); },
    {{EdgesSWE_EdgesAll, &flowPassages},
     {EdgesSWE_CellsAll, [](D d) { return cellsBeside(flowPassages(d), d); }}},
    {}}},
  {EdgesEXN, {[](D d) { return count(bedloadPassages(d)); },
    {{EdgesEXN_EdgesAll, &bedloadPassages},
     {EdgesEXN_CellsAll, [](D d) { return cellsBeside(bedloadPassages(d), d); }}},
    {}}},
  {EdgHydBC, {[](D d) { return count(d.boundaries.flow.edges); },
    {{EdgHydBC_EdgesAll, [](D d) { return d.boundaries.flow.edges; }},
     {EdgHydBC_CellsAll, [](D d) { return cellsBeside(d.boundaries.flow.edges, d); }},
     {EdgHydBC_EdgeData, [](D d) { return d.boundaries.flow.recordOf; }}},
    {{HydBType,          [](D d) { return flat(d.boundaries.flow.types); }}}}},
  {EdgMorBC, {[](D d) { return count(d.boundaries.bed.edges); },
    {{EdgMorBC_EdgesAll, [](D d) { return d.boundaries.bed.edges; }},
     {EdgMorBC_CellsAll, [](D d) { return cellsBeside(d.boundaries.bed.edges, d); }},
     {EdgMorBC_EdgeData, [](D d) { return d.boundaries.bed.recordOf; }}},
    {{MorBType,          [](D d) { return flat(d.boundaries.bed.types); }}}}},
  {NodeStrg, {[](D d) { return count(d.strings); },
    {{NodeStrg_EdgesAll, [](D d) { return stringRows(d.strings, &EdgeString::edges); }},
     {NodeStrg_CellsAll, [](D d) { return stringRows(d.strings, &EdgeString::cells); }}},
    {{NodeStrg_ListSize, [](D d) { return edgeCounts(d.strings); }},
     {NodeStrg_EdgeSign, [](D d) { return stringRows(d.strings, &EdgeString::signs); }},
     {TotalLen,          [](D d) { return each(d.strings, &EdgeString::length); }},
     {StrNames,          [](D d) { return each(d.strings, &EdgeString::name); }}}}},
  {MatIDRgn, {[](D d) { return count(d.sources.regionAreas); },
    {},
    {{MatIDRgn_GeomArea, [](D d) { return d.sources.regionAreas; }}}}},
  {CellsFix, {[](D d) { return count(d.fixedCells.cells); },
    {{CellsFix_CellsAll, [](D d) { return d.fixedCells.cells; }},
     {CellsFix_EdgesAll, [](D d) { return edgesOf(d.fixedCells.cells, d); }}},
    {{FixBedEl,          [](D d) { return d.fixedCells.elevations; }}}}},
  {ClHydSrc, {[](D d) { return count(d.sources.flow.cells); },
    {{ClHydSrc_CellsAll, [](D d) { return d.sources.flow.cells; }},
     {ClHydSrc_CellData, [](D d) { return d.sources.flow.recordOf; }}},
    {{ClHydSrc_SinkType, [](D d) { return d.sources.flow.sinkTypes; }}}}},
  {ClMorSrc, {[](D d) { return count(d.sources.bed.cells); },
    {{ClMorSrc_CellsAll, [](D d) { return d.sources.bed.cells; }},
     {ClMorSrc_CellsFix, &fixedCellsOfSources},
     {ClMorSrc_CellData, [](D d) { return d.sources.bed.recordOf; }}},
    {{ClMorSrc_SinkType, [](D d) { return d.sources.bed.sinkTypes; }}}}},
  {EdgeData, {[](D d) { return count(d.boundaries.records); },
    {},
    {{EdgeData_NumValue, [](D d) { return flat(d.boundaries.records); }}}}},
  {CellData, {[](D d) { return count(d.sources.records); },
    {},
    {{CellData_NumValue, [](D d) { return flat(d.sources.records); }}}}},
  {InSeries, {[](D d) { return count(d.series.all()); },
    {},
    {{InSeries_NumValue, [](D d) { return seriesRows(d.series.all()); }},
     {InSeries_ListSize, [](D d) { return seriesSizes(d.series.all()); }}}}},
  {EdInterp, {[](D d) { return count(d.boundaries.interpolations); },
    {{EdInterp_InSeries, [](D d) { return each(d.boundaries.interpolations, &EdgeInterpolation::series); }},
     {EdInterp_NodeStrg, [](D d) { return each(d.boundaries.interpolations, &EdgeInterpolation::string); }},
     {EdInterp_EdgeData, [](D d) { return each(d.boundaries.interpolations, &EdgeInterpolation::record); }}},
    {{EdInterp_KeyPostn, [](D d) { return keysAndPositions(d.boundaries.interpolations); }}}}},
  {ClInterp, {[](D d) { return count(d.sources.interpolations); },
    {{ClInterp_InSeries, [](D d) { return each(d.sources.interpolations, &CellInterpolation::series); }},
     {ClInterp_CellData, [](D d) { return each(d.sources.interpolations, &CellInterpolation::record); }}},
    {{ClInterp_KeyPostn, [](D d) { return keysAndPositions(d.sources.interpolations); }}}}},
  {EdModDat, {[](D d) { return count(d.boundaries.modifications); },
    {{EdModDat_NodeStrg, [](D d) { return flat(each(d.boundaries.modifications, &EdgeModification::strings)); }},
     {EdModDat_EdgeData, [](D d) { return each(d.boundaries.modifications, &EdgeModification::record); }}},
    {{EdModDat_ModfInfo, [](D d) { return modificationRows(d.boundaries.modifications); }}}}},
  {ClModDat, {[](D d) { return count(d.sources.modifications); },
    {{ClModDat_MatIDRgn, [](D d) { return each(d.sources.modifications, &CellModification::region); }},
     {ClModDat_CellData, [](D d) { return each(d.sources.modifications, &CellModification::record); }}},
    {{ClModDat_ModfInfo, [](D d) { return modificationRows(d.sources.modifications); }}}}},
};
// clang-format on

}  // namespace

const std::map<model::SetID, SetContent>& setContents() {
  return CONTENTS;
}

}  // namespace setup
