#include "setup/mesh/position.h"
#include "setup/runfile/contents.h"
#include "setup/runfile/sets/sets.h"

namespace setup {

const std::map<model::SetID, SetContent>& setContents() {
  using enum model::SetID;
  // clang-format off
  static const std::map<model::SetID, SetContent> contents = {
    {NodesAll, nodesAll()},
    {CellsAll, cellsAll()},
    {EdgesAll, edgesAll()},
    {EdgHydWL, edgHydWL()},
    {EdgMorWL, edgMorWL()},
    {EdgesSWE, edgesSWE()},
    {EdgesEXN, edgesEXN()},
    {EdgHydBC, edgHydBC()},
    {EdgMorBC, edgMorBC()},
    {NodeStrg, nodeStrg()},
    {MatIDRgn, matIDRgn()},
    {CellsFix, cellsFix()},
    {ClHydSrc, clHydSrc()},
    {ClMorSrc, clMorSrc()},
    {EdgeData, edgeData()},
    {CellData, cellData()},
    {InSeries, inSeries()},
    {EdInterp, edInterp()},
    {ClInterp, clInterp()},
    {EdModDat, edModDat()},
    {ClModDat, clModDat()},
  };
  // clang-format on
  return contents;
}

std::vector<int> cellsBeside(const std::vector<int>& edges, const Domain& domain) {
  std::vector<int> cells;
  cells.reserve(2 * edges.size());
  for (const int edge : edges) {
    for (const int cell : domain.topology.edgeCells[index(edge)]) cells.push_back(cell);
  }
  return cells;
}

std::vector<int> without(const std::vector<int>& taken, const std::vector<int>& edges,
                         const Domain& domain) {
  std::vector<bool> isTaken(domain.topology.edgeCells.size(), false);
  for (const int edge : taken) isTaken[index(edge)] = true;
  std::vector<int> left;
  for (const int edge : edges) {
    if (!isTaken[index(edge)]) left.push_back(edge);
  }
  return left;
}

std::vector<int> edgesThatStopBedload(const Domain& domain) {
  constexpr int WEIR_OR_PUMP = 216;
  constexpr int WALL = 220;
  const BoundaryEdges& flow = domain.boundaries.flow;
  std::vector<int> stopping;
  for (std::size_t k = 0; k < flow.edges.size(); ++k) {
    const int code = flow.types[k][0];
    if (code == WEIR_OR_PUMP || code == WALL) stopping.push_back(flow.edges[k]);
  }
  return stopping;
}

}  // namespace setup
