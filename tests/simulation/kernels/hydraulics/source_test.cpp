#include "simulation/kernels/hydraulics/source.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <string>
#include <type_traits>

#include "simulation/kernels/Notices.h"
#include "simulation/kernels/RunParameters.h"
#include "simulation/loops/descriptions.h"

static_assert(std::is_same_v<decltype(kernels::hydraulics::source), loops::HydSource::Body>);

namespace {

class HydraulicSource : public support::Parameters {
 protected:
  HydraulicSource() { set(ParameterID::MinWaterDepth, 0.25); }

  /// Runs one element over a bed at 1; returns what it has to tell.
  std::string add(int type, double rate, double dt = 1.0, double bed = 1.0) {
    const std::array<double, 2> data{1e30, rate};
    support::Notices notices;
    kernels::hydraulics::source(par(), notices.diagnostics(), &dt, data.data(), &type, &bed,
                                state.data(), &wetted, &massKept);
    return notices.text();
  }

  void start(double H) {
    state = {H, 3.0, -4.0};
    wetted = -7;
    massKept = -7;
  }

  std::array<double, 3> state{2.0, 3.0, -4.0};
  int wetted = -7;
  int massKept = -7;
};

TEST_F(HydraulicSource, APositiveRateActsAlikeForAllTypes) {
  for (const int type : {10, 11, 12, 20, 21, 22}) {
    start(2.0);
    EXPECT_EQ(add(type, 0.5, 4.0), "") << type;
    EXPECT_EQ(state, (std::array<double, 3>{4.0, 3.0, -4.0})) << type;
    EXPECT_EQ(wetted, 1) << type;
    EXPECT_EQ(massKept, 1) << type;
  }
}

TEST_F(HydraulicSource, ARateOfZeroAddsNothingForAllTypes) {
  for (const int type : {10, 11, 12, 20, 21, 22}) {
    start(2.0);
    add(type, 0.0);
    EXPECT_EQ(state[0], 2.0) << type;
    start(2.0);
    add(type, -0.0);
    EXPECT_EQ(state[0], 2.0) << type;
  }
}

TEST_F(HydraulicSource, AnExactSinkMayTakeMoreThanThereIs) {
  for (const int type : {10, 20}) {
    start(2.0);
    EXPECT_EQ(add(type, -0.75, 2.0), "MASS BALANCE PROBLEM: h = -0.5 < 0.0\n") << type;
    EXPECT_EQ(state, (std::array<double, 3>{0.5, 3.0, -4.0})) << type;
    EXPECT_EQ(wetted, -7) << type;
    EXPECT_EQ(massKept, 0) << type;
  }
}

TEST_F(HydraulicSource, NamesNoCellInDebugMode) {
  G_Debug = 1;
  EXPECT_EQ(add(10, -1.5), "MASS BALANCE PROBLEM: h = -0.5 < 0.0\n");
}

TEST_F(HydraulicSource, AnExactSinkWithinTheDepthKeepsTheCellWet) {
  start(2.0);
  EXPECT_EQ(add(10, -0.5), "");
  EXPECT_EQ(state, (std::array<double, 3>{1.5, 3.0, -4.0}));
  EXPECT_EQ(wetted, 1);
}

TEST_F(HydraulicSource, AnAvailableSinkTakesAtMostTheWater) {
  for (const int type : {11, 21}) {
    start(2.0);
    EXPECT_EQ(add(type, -5.0), "") << type;
    EXPECT_EQ(state, (std::array<double, 3>{1.0, 0.0, 0.0})) << type;
    EXPECT_EQ(wetted, 0) << type;
    EXPECT_EQ(massKept, 1) << type;
    start(2.0);
    add(type, -0.5);
    EXPECT_EQ(state[0], 1.5) << type;
  }
}

TEST_F(HydraulicSource, AnAvailableSinkLeavesADryCellDry) {
  start(1.0);
  add(11, -5.0);
  EXPECT_EQ(state, (std::array<double, 3>{1.0, 0.0, 0.0}));
  EXPECT_EQ(wetted, 0);
}

TEST_F(HydraulicSource, AnAvailableSinkLiftsTheSurfaceToTheBedFromBelowIt) {
  start(std::nextafter(1.0, 0.0));
  add(11, -5.0);
  EXPECT_EQ(state[0], 1.0);
  EXPECT_EQ(massKept, 1);
}

TEST_F(HydraulicSource, AnInfiniteSinkEmptiesTheCellHoweverSmallItsRate) {
  for (const int type : {12, 22}) {
    start(2.0);
    EXPECT_EQ(add(type, -1e-300), "") << type;
    EXPECT_EQ(state, (std::array<double, 3>{1.0, 0.0, 0.0})) << type;
    EXPECT_EQ(wetted, 0) << type;
    EXPECT_EQ(massKept, 1) << type;
  }
}

TEST_F(HydraulicSource, UnknownTypesAddNothingButClassifyTheCell) {
  for (const int type : {-10, 0, 9, 13, 19, 23, 30}) {
    start(2.0);
    add(type, -5.0);
    EXPECT_EQ(state, (std::array<double, 3>{2.0, 3.0, -4.0})) << type;
    EXPECT_EQ(wetted, 1) << type;
    EXPECT_EQ(massKept, 1) << type;
    start(1.125);
    add(type, 5.0);
    EXPECT_EQ(state, (std::array<double, 3>{1.125, 0.0, 0.0})) << type;
    EXPECT_EQ(wetted, 0) << type;
  }
}

TEST_F(HydraulicSource, ADryCellAccumulatesUntilItsDepthExceedsTheMinimum) {
  start(1.0);
  add(10, 0.125);
  EXPECT_EQ(state, (std::array<double, 3>{1.125, 0.0, 0.0}));
  EXPECT_EQ(wetted, 0);
  add(10, 0.125);
  EXPECT_EQ(state[0], 1.25);
  EXPECT_EQ(wetted, 0);
  add(10, 0.125);
  EXPECT_EQ(state[0], 1.375);
  EXPECT_EQ(wetted, 1);
}

TEST_F(HydraulicSource, ANegativeDepthOfRoundingIsADryCell) {
  start(0.0);
  EXPECT_EQ(add(10, -1e-12, 1.0, 0.0), "");
  EXPECT_EQ(state, (std::array<double, 3>{-1e-12, 0.0, 0.0}));
  EXPECT_EQ(wetted, 0);
  EXPECT_EQ(massKept, 1);

  start(0.0);
  EXPECT_NE(add(10, std::nextafter(-1e-12, -1.0), 1.0, 0.0), "");
  EXPECT_EQ(massKept, 0);
  EXPECT_EQ(state[1], 3.0);
}

TEST_F(HydraulicSource, TheFlagTellsOnlyOfTheLastElement) {
  start(2.0);
  add(10, -5.0);
  EXPECT_EQ(massKept, 0);
  state = {2.0, 0.0, 0.0};
  add(10, 0.0);
  EXPECT_EQ(massKept, 1);
}

}  // namespace
