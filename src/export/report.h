// What a results file holds, for people and for programs.
#pragma once

#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "export/Results.h"

namespace exporter {

/// Times from which a run can be continued [s]: `start` must be above 0, and the simulation reads a
/// file only if no more than one of its records is marked as not valid.
std::vector<double> restartTimes(const Results& results);

/// One object: program, file, cells, nodes, strings, outputs, records, invalid_records,
/// restart_times. Times in s.
nlohmann::ordered_json describe(const Results& results);

/// The same as lines on standard output.
void printReport(const Results& results);

}  // namespace exporter
