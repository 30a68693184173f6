#include "common/check.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "common/BaseException.h"

namespace {

/// What a failing check writes to standard error.
template <class Action>
std::string failureOf(Action&& action) {
  ::testing::internal::CaptureStderr();
  EXPECT_THROW(action(), BaseException);
  return ::testing::internal::GetCapturedStderr();
}

TEST(Check, WithoutMessageShowsItsCondition) {
  const std::vector<int> data(2);
  EXPECT_EQ(failureOf([&] { CHECK_THAT_AT(data.size() == 1, "", 7); }),
            " -> data.size() == 1, in file: tests/common/check_test on line 7, version v3.0.1\n");
}

TEST(Check, WithMessageShowsItInPlaceOfTheCondition) {
  const int id = 12;
  EXPECT_EQ(failureOf([&] { CHECK_THAT_AT(id < 0, "kernel <" << id << "> not " << 0.5, 411); }),
            " -> kernel <12> not 0.5, in file: tests/common/check_test on line 411, version "
            "v3.0.1\n");
}

TEST(Check, WithoutALineNumberShowsItsOwn) {
  const int line = __LINE__ + 1;
  EXPECT_EQ(failureOf([] { CHECK_THAT(false, "no"); }),
            " -> no, in file: tests/common/check_test on line " + std::to_string(line) +
                ", version v3.0.1\n");
}

TEST(Check, ThatHoldsDoesNothing) {
  int formatted = 0;
  const auto text = [&] {
    ++formatted;
    return "text";
  };
  ::testing::internal::CaptureStderr();
  CHECK_THAT(formatted == 0, text());
  EXPECT_EQ(::testing::internal::GetCapturedStderr(), "");
  EXPECT_EQ(formatted, 0);
}

TEST(FailCheck, TakesASourceWithoutExtensionAsItIs) {
  EXPECT_EQ(failureOf([] { common::failCheck("a == b", "", "src/main_simulation", 37); }),
            " -> a == b, in file: src/main_simulation on line 37, version v3.0.1\n");
  EXPECT_EQ(failureOf([] { common::failCheck("a == b", "", "src/model/Model.cpp", 1); }),
            " -> a == b, in file: src/model/Model on line 1, version v3.0.1\n");
}

TEST(FailCheck, CutsNothingButTheExtension) {
  EXPECT_EQ(failureOf([] { common::failCheck("a == b", "", "src/v3.0/Model.test.cpp", 1); }),
            " -> a == b, in file: src/v3.0/Model.test on line 1, version v3.0.1\n");
  EXPECT_EQ(failureOf([] { common::failCheck("a == b", "", "src/v3.0/Model", 1); }),
            " -> a == b, in file: src/v3.0/Model on line 1, version v3.0.1\n");
}

}  // namespace
