// What the study is called, and what is in it.
#pragma once

#include <string>
#include <vector>

#include "export/Results.h"

namespace exporter {

/// The name of the study, or the name of the results file if it has none.
std::string titleOf(const Results& results);

/// The EPSG code of the coordinate reference system of the mesh; 0 if the study names none.
/// @throws BaseException if what it names is no such code.
int epsgOf(const Results& results);

/// The name of each nodestring that outputs stand on: that in the study, or "nodestring 3" if it
/// has none there. Empty if there are no outputs on nodestrings.
std::vector<std::string> stringNamesOf(const Results& results);

}  // namespace exporter
