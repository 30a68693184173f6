// The console: the only place that knows the prefix " -> ", the banner and the footer.
//
// Standard output takes information, standard error what precedes the end of a run. Each line is
// flushed, so that a log file shows how far a run has come.
//
//   console::info("loading map <", path, "> ...");
//   console::fail("end of simulation not defined: SIMULATION/TIME/end");   // prints and throws
#pragma once

#include <iostream>
#include <sstream>
#include <string>

#include "common/BaseException.h"

namespace common::console {

/// The text of all `parts`, each formatted as a default output stream formats it.
template <class... Parts>
std::string text(const Parts&... parts) {
  std::ostringstream stream;
  (stream << ... << parts);
  return stream.str();
}

/// Writes one line of information to standard output.
void infoLine(const std::string& message);

/// Writes one line that precedes the end of the run to standard error.
void errorLine(const std::string& message);

template <class... Parts>
void info(const Parts&... parts) {
  infoLine(text(parts...));
}

template <class... Parts>
void error(const Parts&... parts) {
  errorLine(text(parts...));
}

/// Writes one line to standard error and gives up.
/// @throws BaseException always.
template <class... Parts>
[[noreturn]] void fail(const Parts&... parts) {
  errorLine(text(parts...));
  throw BaseException();
}

/// The banner at the start of every executable.
/// @param build what kind of build it is, in one word
void printHeader(const char* build);

/// The closing lines of a run that came to its regular end.
void printFooter();

}  // namespace common::console
