#include "common/console.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

namespace {

namespace console = common::console;

TEST(Console, InformationGoesToStandardOutputBehindThePrefix) {
  ::testing::internal::CaptureStderr();
  ::testing::internal::CaptureStdout();
  console::info("time: ", 0.125, " of ", 7);
  EXPECT_EQ(::testing::internal::GetCapturedStdout(), " -> time: 0.125 of 7\n");
  EXPECT_EQ(::testing::internal::GetCapturedStderr(), "");
}

TEST(Console, WhatPrecedesAnEndGoesToStandardErrorBehindThePrefix) {
  ::testing::internal::CaptureStderr();
  ::testing::internal::CaptureStdout();
  console::error("file <", "a", "> not found");
  EXPECT_EQ(::testing::internal::GetCapturedStderr(), " -> file <a> not found\n");
  EXPECT_EQ(::testing::internal::GetCapturedStdout(), "");
}

TEST(Console, GivingUpWritesALineAndThrows) {
  ::testing::internal::CaptureStderr();
  EXPECT_THROW(console::fail("no ", 1), BaseException);
  EXPECT_EQ(::testing::internal::GetCapturedStderr(), " -> no 1\n");
}

TEST(Console, NumbersHaveTheFormatOfAStream) {
  EXPECT_EQ(console::text(1e-12, ' ', 1.0 / 3.0, ' ', 1e12), "1e-12 0.333333 1e+12");
}

TEST(Console, TheBannerHasFiveLines) {
  ::testing::internal::CaptureStdout();
  console::printHeader("sequential");
  const std::string banner = ::testing::internal::GetCapturedStdout();
  EXPECT_EQ(banner.rfind("RHEOMARK v3.0.1\nRHEOplane sequential binary\nv3.0.1\n", 0), 0U);
  EXPECT_EQ(banner.substr(banner.size() - 2), "\n\n");
  EXPECT_EQ(std::count(banner.begin(), banner.end(), '\n'), 5);
}

TEST(Console, TheFooterHasALineOfSixtyDashes) {
  ::testing::internal::CaptureStdout();
  console::printFooter();
  EXPECT_EQ(::testing::internal::GetCapturedStdout(),
            "\n------------------------------------------------------------\n"
            " RHEOMARK successfully processed all necessary jobs!\n\n");
}

}  // namespace
