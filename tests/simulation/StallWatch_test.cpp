#include "simulation/StallWatch.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

namespace {

using simulation::StallWatch;

/// What a watch says of `passes` passes of one length.
std::string warning(double start, double end, double step, int passes) {
  ::testing::internal::CaptureStderr();
  StallWatch watch(start, end);
  double time = start;
  for (int i = 0; i < passes; ++i) watch.pass(time += step);
  return ::testing::internal::GetCapturedStderr();
}

const std::string STANDING =
    " -> the run does not get on: its last 100 steps took it 0 s further, to 5 s of 10 s. Check "
    "the output interval and the time step\n";

TEST(StallWatch, WarnsOnceOfATimeThatStandsStill) {
  EXPECT_EQ(warning(5.0, 10.0, 0.0, 99), "");
  EXPECT_EQ(warning(5.0, 10.0, 0.0, 100), STANDING);
  EXPECT_EQ(warning(5.0, 10.0, 0.0, 1000), STANDING);
}

TEST(StallWatch, WarnsOfStepsThatLeadNowhere) {
  EXPECT_NE(warning(0.0, 1.0, 1e-300, 100), "");
  EXPECT_NE(warning(0.0, 1.0, std::numeric_limits<double>::denorm_min(), 100), "");
  EXPECT_NE(warning(0.0, 1.0, -1e-3, 100), "");
}

TEST(StallWatch, IsQuietWhereSmallStepsComeToAnEnd) {
  EXPECT_EQ(warning(0.0, 1.0, 2e-15, 1000), "");
  EXPECT_EQ(warning(0.0, 1.0, std::numeric_limits<double>::quiet_NaN(), 100), "");
}

}  // namespace
