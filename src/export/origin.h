// Where an exported file comes from: for those who find it years later.
#pragma once

#include <string>

namespace exporter {

/// "RHEOMARK v3.0.1"
std::string programName();

/// "2026-11-21T15:32:19Z: export v3.0.1 of run_results.h5", at the time of the call.
/// @param source the results file; its folders are left out
std::string historyOf(const std::string& source);

}  // namespace exporter
