// What the code under test writes to the console.
#pragma once

#include <gtest/gtest.h>

#include <regex>
#include <string>

#include "common/BaseException.h"

namespace reports {

/// What `action` writes to standard output.
template <class Action>
std::string outputOf(const Action& action) {
  testing::internal::CaptureStdout();
  action();
  return testing::internal::GetCapturedStdout();
}

/// What `action` writes to standard error before it gives up. Line numbers are replaced by N.
template <class Action>
std::string failureOf(const Action& action) {
  testing::internal::CaptureStderr();
  EXPECT_THROW(action(), BaseException);
  const std::string report = testing::internal::GetCapturedStderr();
  return std::regex_replace(report, std::regex(" on line [0-9]+,"), " on line N,");
}

/// The report of a failed check as failureOf returns it.
inline std::string failedCheck(const std::string& message, const std::string& file) {
  return " -> " + message + ", in file: " + file + " on line N, version v3.0.1\n";
}

}  // namespace reports
