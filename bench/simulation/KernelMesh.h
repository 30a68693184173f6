// A made mesh in the mesh-loop runtime: the sets, maps and data that any loop of the numerics needs
// to run by itself.
//
// Cells, edges, walls and their geometry are those of a run file. Sets that a basin with walls does
// not have are stood in for by one of the same nature: each cell has a fixed bed and a source, each
// wall is an open boundary, too. Nodestrings, series and records are a handful.
#pragma once

#include <array>
#include <map>
#include <variant>
#include <vector>

#include "catalogue/IDs.h"
#include "op/core/op_lib_core.h"
#include "setup/domain/Domain.h"

namespace bench {

/// All values of a datum, element by element.
using Values = std::variant<std::vector<int>, std::vector<double>>;

class KernelMesh {
 public:
  /// @param rectangles along and across, each of 1 m by 1 m and two cells
  explicit KernelMesh(const std::array<int, 2>& rectangles);

  // Declared in the runtime on first use. They are valid until the runtime ends, if this object
  // lives as long.
  op_set set(model::SetID id);
  op_map map(model::MapID id);

  /// What a datum holds before a loop has run.
  const Values& values(model::DataID id);

 private:
  int sizeOf(model::SetID id) const;
  std::vector<int> table(model::MapID id) const;
  Values makeValues(model::DataID id) const;

  setup::Domain domain;
  std::map<model::SetID, op_set> sets;
  std::map<model::MapID, op_map> maps;
  std::map<model::MapID, std::vector<int>> tables;
  std::map<model::DataID, Values> cache;
};

}  // namespace bench
