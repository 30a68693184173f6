#include "system/verification/Solution.h"

#include <gtest/gtest.h>

#include <string>

namespace verification {
namespace {

/// Two cells on the beds 1 and 2 with the surfaces of one record.
Solution twoCells(double firstSurface, double secondSurface) {
  Solution run;
  run.cells = {{{{0.0, 0.0}, {3.0, 0.0}, {0.0, 3.0}}}, {{{3.0, 0.0}, {3.0, 3.0}, {0.0, 3.0}}}};
  run.areas = {4.5, 10.0};
  run.bed = {1.0, 2.0};
  run.records = {{0.0, {firstSurface, secondSurface}, {0.0, 0.0}, {0.0, 0.0}}};
  return run;
}

TEST(Solution, HasTheCentroidOfACell) {
  const Solution run = twoCells(1.0, 2.0);
  EXPECT_EQ(run.centroid(0).x, 1.0);
  EXPECT_EQ(run.centroid(1).y, 2.0);
}

TEST(Solution, CountsWaterFromTheBedUp) {
  const Solution run = twoCells(1.5, 2.25);
  EXPECT_EQ(run.depth(run.last(), 1), 0.25);
  EXPECT_EQ(volume(run, run.last()), 4.5 * 0.5 + 10.0 * 0.25);
  EXPECT_EQ(countDeeper(run, run.last(), 0.25), 1U);
}

TEST(Solution, HasAVolumeThatKeepsWhatASumOfDoublesLoses) {
  Solution run = twoCells(1.0, 2.0);
  run.areas = {1.0, 1.0, 1.0};
  run.bed = {0.0, 0.0, 0.0};
  run.records = {{0.0, {1.0, 1e100, -1e100}, {}, {}}};
  EXPECT_EQ(volume(run, run.last()), 1.0);
}

TEST(Solution, TellsTheLeastDepthOfAllRecords) {
  Solution run = twoCells(1.5, 1.75);
  run.records.push_back({1.0, {1.5, 2.5}, {0.0, 0.0}, {0.0, 0.0}});
  EXPECT_EQ(leastDepth(run), -0.25);
}

TEST(CallsOf, ReadsTheNumberBeforeTheNameOfTheKernel) {
  const std::string console =
      " -> simulation finished! (cpu-time = 1s)\n"
      "  count   plan time    kernel name \n"
      "      1;    0.0000;    1.0223;         ;   InitCellHydFeatures \n"
      "   1320;    0.0000;    0.2941;         ;   Update \n";
  EXPECT_EQ(callsOf("Update", console), 1320);
  EXPECT_EQ(callsOf("InitCellHydFeatures", console), 1);
  EXPECT_EQ(callsOf("HydFriction", console), 0);
}

}  // namespace
}  // namespace verification
