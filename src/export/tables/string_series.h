// The discharges across the nodestrings as a table: a row for each record, a column for each
// string.
//
//   # RHEOMARK v3.0.1
//   # 2026-11-21T15:32:19Z: export v3.0.1 of run_results.h5
//   time [s],inlet [m3/s],outlet [m3/s],inlet sediment [m3/s],outlet sediment [m3/s]
//   0,50,12.5,0,0
#pragma once

#include <string>

#include "export/results/Results.h"

namespace exporter {

/// The columns of sediment stand where the run was asked for ns_mor_discharge.
/// @throws BaseException if the results hold no discharges of nodestrings, or on a write failure.
void writeStringSeries(const Results& results, const std::string& file);

}  // namespace exporter
