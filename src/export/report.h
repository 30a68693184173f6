// What a results file holds, for people and for programs.
#pragma once

#include <nlohmann/json.hpp>

#include "export/results/Results.h"

namespace exporter {

/// One object: program, file, cells, nodes, strings, outputs, records, invalid_records,
/// restart_times. Times in s.
nlohmann::ordered_json describe(const Results& results);

/// The same as lines on standard output.
void printReport(const Results& results);

}  // namespace exporter
