// Where an exported file comes from, for those who find it years later: the program, the results
// and the study that they belong to.
#pragma once

#include <string>
#include <vector>

#include "export/results/Results.h"

namespace exporter {

/// "RHEOMARK v3.0.1"
std::string programName();

/// "2026-11-21T15:32:19Z: export v3.0.1 of run_results.h5", at the time of the call.
/// @param source the results file; its folders are left out
std::string historyOf(const std::string& source);

/// The name of the study, or the name of the results file if it has none.
std::string titleOf(const Results& results);

/// The EPSG code of the coordinate reference system of the mesh; 0 if the study names none.
/// @throws BaseException if what it names is no such code.
int epsgOf(const Results& results);

/// The name of each nodestring that outputs stand on: that in the study, or "nodestring 3" if it
/// has none there. Empty if there are no outputs on nodestrings.
std::vector<std::string> stringNamesOf(const Results& results);

}  // namespace exporter
