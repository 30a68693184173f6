#include "setup/SetContent.h"
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
    {NodeStrg, nodeStrg()},
  };
  // clang-format on
  return contents;
}

}  // namespace setup
