// Runs a program in which calls of the operating system that change a file fail, by the library
// failing_calls.
//
//   const std::vector<std::string> calls = support::callsOf(dir.path(), SETUP_EXE, arguments);
//   support::runWithFailure(dir.path(), SETUP_EXE, arguments, {.call = 3, .error = ENOSPC});
#pragma once

#include <string>
#include <vector>

#include "support/Process.h"

namespace support {

struct FailingCall {
  std::size_t call = 1;  ///< its number, from 1
  int error = 0;         ///< what errno is then
  bool lasts = false;    ///< whether all later calls fail, too
};

/// The names of the calls of a run in which none fails.
/// @throws std::runtime_error if the run itself fails
std::vector<std::string> callsOf(const std::string& folder, const std::string& program,
                                 const std::vector<std::string>& arguments);

Outcome runWithFailure(const std::string& folder, const std::string& program,
                       const std::vector<std::string>& arguments, const FailingCall& failing);

}  // namespace support
