// What the nodestrings of a results file are called.
#pragma once

#include <string>
#include <vector>

#include "export/Results.h"

namespace exporter {

/// One for each nodestring that outputs stand on: its name in the study, or "nodestring 3" if it
/// has none there. Empty if there are no outputs on nodestrings.
std::vector<std::string> stringNamesOf(const Results& results);

}  // namespace exporter
