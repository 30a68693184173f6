// What the run file holds of one set: its size, its maps, its data. Each set has a file of its own
// in sets/; a set of a new kind is such a file and a line in set_contents.cpp.
#pragma once

#include <array>
#include <map>
#include <string>
#include <variant>
#include <vector>

#include "catalogue/IDs.h"
#include "setup/domain/Domain.h"

namespace setup {

/// All values of a map or datum, element by element.
template <class T>
using Values = std::vector<T> (*)(const Domain&);

using DataValues = std::variant<Values<int>, Values<double>, Values<std::string>>;

struct SetContent {
  int (*size)(const Domain&);
  std::map<model::MapID, Values<int>> maps;
  std::map<model::DataID, DataValues> data;
};

/// The content of all sets.
const std::map<model::SetID, SetContent>& setContents();

/// The rows one behind the other.
template <class T, std::size_t N>
std::vector<T> flat(const std::vector<std::array<T, N>>& rows) {
  std::vector<T> values;
  values.reserve(N * rows.size());
  for (const std::array<T, N>& row : rows) values.insert(values.end(), row.begin(), row.end());
  return values;
}

/// The cells on the left and on the right of edges, two behind the other.
std::vector<int> cellsBeside(const std::vector<int>& edges, const Domain& domain);

/// Those of the edges that are not among the taken ones.
std::vector<int> without(const std::vector<int>& taken, const std::vector<int>& edges,
                         const Domain& domain);

/// The edges of weirs, pumps and walls through the mesh. A gate lets the bed load pass.
std::vector<int> edgesThatStopBedload(const Domain& domain);

}  // namespace setup
