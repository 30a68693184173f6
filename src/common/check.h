// Assertions that stay in the release build: they guard the run against bad input.
//
//   CHECK_THAT(names.size() == 1, "parameters cannot have length > 1");
//   CHECK_THAT(row != end, "kernel <" << id << "> not found");
//   CHECK_THAT(ready, "");                          // no message: the condition itself is shown
//   CHECK_THAT_AT(dt > 0, "time step ...", 168);    // the line number is part of the interface
//
// A failed check reports on standard error
//   " -> " message ", in file: " path " on line " line ", version " version
// where the path has no extension and starts at the root of the tree, and throws BaseException.
#pragma once

#include <sstream>
#include <string>

namespace common {

/// Reports a failed check.
/// @param condition source text of the condition, shown if `message` is empty
/// @param message what was wrong and what would be right
/// @param file source path relative to the root of the tree; an extension is cut off
/// @throws BaseException always.
[[noreturn]] void failCheck(const std::string& condition, const std::string& message,
                            const std::string& file, int line);

}  // namespace common

#define CHECK_THAT_AT(condition, message, line)                                    \
  do {                                                                             \
    if (!(condition)) {                                                            \
      std::ostringstream checkMessage_;                                            \
      checkMessage_ << message; /* NOLINT(bugprone-macro-parentheses): << chain */ \
      ::common::failCheck(#condition, checkMessage_.str(), __FILE__, line);        \
    }                                                                              \
  } while (false)

#define CHECK_THAT(condition, message) CHECK_THAT_AT(condition, message, __LINE__)
