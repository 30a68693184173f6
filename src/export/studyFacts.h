// What the archived study document says about the study as a whole.
#pragma once

#include <string>

#include "export/Results.h"

namespace exporter {

/// The name of the study, or the name of the results file if it has none.
std::string titleOf(const Results& results);

/// The EPSG code of the coordinate reference system of the mesh; 0 if the study names none.
/// @throws BaseException if what it names is no such code.
int epsgOf(const Results& results);

}  // namespace exporter
