#include "simulation/kernels/hydraulics/time_step.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <limits>
#include <type_traits>

#include "simulation/kernels/RunParameters.h"
#include "simulation/loops/descriptions.h"

static_assert(
    std::is_same_v<decltype(kernels::hydraulics::time_step), loops::TimeStepCalculation::Body>);

namespace {

/// Two cells of 2 m depth, so that sqrt(g h) is 4, over beds of 1 m and 3 m.
class TimeStep : public support::Parameters {
 protected:
  TimeStep() { set(ParameterID::Gravity, 8.0); }

  double bound() { return bound(100.0); }
  double bound(double lowest) {
    kernels::hydraulics::time_step(par(), normal.data(), size.data(), &wettedLeft, &wettedRight,
                                   left.data(), right.data(), &bedLeft, &bedRight, &lowest);
    return lowest;
  }

  std::array<double, 2> normal{0.6, 0.8};
  std::array<double, 2> size{8.0, 4.0};
  int wettedLeft = 1;
  int wettedRight = 1;
  std::array<double, 3> left{3.0, 0.0, 0.0};
  std::array<double, 3> right{5.0, 0.0, 0.0};
  double bedLeft = 1.0;
  double bedRight = 3.0;
};

TEST_F(TimeStep, BetweenDryCellsLeavesTheRunningMinimumAlone) {
  wettedLeft = 0;
  wettedRight = 0;
  EXPECT_EQ(bound(100.0), 100.0);
  EXPECT_EQ(bound(2e12), 1e12);
}

TEST_F(TimeStep, OfACellAtRestIsItsSizeOverTheCelerity) {
  wettedRight = 0;
  EXPECT_EQ(bound(), 8.0 / (4.0 + 1e-12));
}

TEST_F(TimeStep, TakesTheSmallerOfBothSides) {
  EXPECT_EQ(bound(), 4.0 / (4.0 + 1e-12));
  size = {4.0, 8.0};
  EXPECT_EQ(bound(), 4.0 / (4.0 + 1e-12));
}

TEST_F(TimeStep, ADryRightCellLeavesTheLeftOneAsTheOnlyLimit) {
  size = {8.0, 1e-9};
  wettedRight = 0;
  EXPECT_EQ(bound(), 8.0 / (4.0 + 1e-12));
}

TEST_F(TimeStep, ADryLeftCellLeavesTheRightOneAsTheOnlyLimit) {
  size = {1e-9, 4.0};
  wettedLeft = 0;
  EXPECT_EQ(bound(), 4.0 / (4.0 + 1e-12));
}

TEST_F(TimeStep, OnlyTheFlagOneIsWet) {
  wettedLeft = 2;
  wettedRight = -1;
  EXPECT_EQ(bound(), 100.0);
}

TEST_F(TimeStep, TheNormalVelocityShortensItWhateverItsDirection) {
  wettedRight = 0;
  left = {3.0, 6.0, 8.0};  // qn = 10, so the speed is 5
  EXPECT_DOUBLE_EQ(bound(), 8.0 / (4.0 + 5.0 + 1e-12));
  left = {3.0, -6.0, -8.0};
  EXPECT_DOUBLE_EQ(bound(), 8.0 / (4.0 + 5.0 + 1e-12));
}

TEST_F(TimeStep, FlowAlongTheEdgeDoesNotCount) {
  wettedRight = 0;
  normal = {1.0, 0.0};
  left = {3.0, 0.0, 50.0};
  EXPECT_EQ(bound(), 8.0 / (4.0 + 1e-12));
}

TEST_F(TimeStep, ALowerRunningMinimumStays) {
  EXPECT_EQ(bound(0.25), 0.25);
}

TEST_F(TimeStep, ANotANumberAtOneSideDoesNotSetIt) {
  left[1] = std::numeric_limits<double>::quiet_NaN();
  EXPECT_EQ(bound(), 4.0 / (4.0 + 1e-12));
  wettedRight = 0;
  EXPECT_EQ(bound(), 100.0);
}

}  // namespace
