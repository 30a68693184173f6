// What a run file holds of a study on its mesh: each set with its maps and data, and the
// parameters. A set, map, datum or parameter of a new kind is a row in one of two tables,
// set_contents.cpp and parameter_values.cpp.
//
//   const SetContent& cells = setContents().at(model::SetID::CellsAll);
//   cells.size(domain);
//   cells.maps.at(model::MapID::CellsAll_EdgesAll)(domain);
#pragma once

#include <array>
#include <map>
#include <string>
#include <variant>
#include <vector>

#include "catalogue/IDs.h"
#include "setup/domain/Domain.h"
#include "setup/study/Study.h"

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

using ParameterValue = std::variant<int, double, std::array<int, 2>>;

/// @throws BaseException for a parameter that this study does not give
ParameterValue parameterValue(model::ParameterID id, const Study& study);

}  // namespace setup
