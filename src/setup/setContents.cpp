#include "setup/SetContent.h"
#include "setup/position.h"
#include "setup/sets/sets.h"

namespace setup {

const std::map<model::SetID, SetContent>& setContents() {
  using enum model::SetID;
  // clang-format off
  static const std::map<model::SetID, SetContent> contents = {
    {NodesAll, nodesAll()},
    {CellsAll, cellsAll()},
    {EdgesAll, edgesAll()},
    {EdgHydWL, edgHydWL()},
    {EdgesSWE, edgesSWE()},
    {EdgHydBC, edgHydBC()},
    {NodeStrg, nodeStrg()},
    {MatIDRgn, matIDRgn()},
    {ClHydSrc, clHydSrc()},
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

std::vector<int> withoutBoundaries(const std::vector<int>& edges, const Domain& domain) {
  const std::vector<bool> taken = domain.boundaries.taken(domain.topology.edgeCells.size());
  std::vector<int> left;
  for (const int edge : edges) {
    if (!taken[index(edge)]) left.push_back(edge);
  }
  return left;
}

}  // namespace setup
