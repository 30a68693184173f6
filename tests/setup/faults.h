// What a refused input is answered with.
#pragma once

#include <gtest/gtest.h>

#include <string>

#include "common/BaseException.h"

namespace faults {

/// The line that `action` writes to standard error, without its prefix and line end, before it
/// throws BaseException.
template <class Action>
std::string messageOf(Action&& action) {
  ::testing::internal::CaptureStderr();
  bool thrown = false;
  try {
    action();
  } catch (const BaseException&) {
    thrown = true;
  }
  const std::string text = ::testing::internal::GetCapturedStderr();
  EXPECT_TRUE(thrown) << "BaseException was not thrown";
  EXPECT_TRUE(text.starts_with(" -> ") && text.ends_with('\n')) << text;
  return text.size() > 4 ? text.substr(4, text.size() - 5) : text;
}

}  // namespace faults
