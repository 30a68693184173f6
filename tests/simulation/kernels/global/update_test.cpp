#include "simulation/kernels/global/update.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <limits>
#include <string>
#include <type_traits>

#include "simulation/kernels/Notices.h"
#include "simulation/kernels/RunParameters.h"
#include "simulation/loops/descriptions.h"

static_assert(std::is_same_v<decltype(kernels::global::update), loops::Update::Body>);

namespace {

using State = std::array<double, 3>;

/// A cell of 4 m2 with edges of 1 m, 2 m and 4 m; a time step of 0.5 s.
class Update : public support::Parameters {
 protected:
  Update() { set(ParameterID::MinWaterDepth, 0.25); }

  /// @return what the step has to tell
  std::string step() {
    std::array<const double*, 3> lengths{}, fluxesHy{}, fluxesMo{};
    for (std::size_t k = 0; k < 3; ++k) {
      lengths[k] = &length[k];
      fluxesHy[k] = fluxHy[k].data();
      fluxesMo[k] = &fluxMo[k];
    }
    support::Notices notices;
    kernels::global::update(par(), notices.diagnostics(), &cell, &dt, &morphology, &area,
                            lengths.data(), fluxesHy.data(),
                            morphology == 1 ? fluxesMo.data() : nullptr, sign.data(), state.data(),
                            &bed, &wetted, &massKept);
    return notices.text();
  }

  /// Lets the surface fall to the given depth.
  void drainTo(double depth) { state[0] = bed + depth; }

  int cell = 17;
  double dt = 0.5;
  int morphology = 0;
  double area = 4.0;
  std::array<double, 3> length{1.0, 2.0, 4.0};
  std::array<std::array<double, 5>, 3> fluxHy{};
  std::array<double, 3> fluxMo{};
  std::array<int, 3> sign{1, 1, 1};
  State state{3.0, 1.0, -1.0};
  double bed = 1.0;
  int wetted = 9;
  int massKept = 9;
};

TEST_F(Update, WithoutFluxesKeepsTheStateAndFlagsTheCellWet) {
  EXPECT_EQ(step(), "");
  EXPECT_EQ(state, (State{3.0, 1.0, -1.0}));
  EXPECT_EQ(bed, 1.0);
  EXPECT_EQ(wetted, 1);
  EXPECT_EQ(massKept, 1);
}

TEST_F(Update, TakesWhatLeavesThroughTheEdgesByLengthTimeAndArea) {
  fluxHy[0] = {1.0, 8.0, 16.0, 99.0, 99.0};
  fluxHy[1] = {2.0, 4.0, -8.0, 99.0, 99.0};
  fluxHy[2] = {-1.0, 2.0, 4.0, 99.0, 99.0};
  step();
  EXPECT_EQ(state, (State{3.0 - 0.125 * 1.0, 1.0 - 0.125 * 24.0, -1.0 - 0.125 * 16.0}));
}

TEST_F(Update, ACellOnTheRightReadsItsOwnMomentumAndGetsTheMass) {
  sign = {-1, 1, -1};
  fluxHy[0] = {1.0, 99.0, 99.0, 8.0, 16.0};
  fluxHy[1] = {2.0, 4.0, -8.0, 99.0, 99.0};
  fluxHy[2] = {0.5, 99.0, 99.0, 2.0, 4.0};
  step();
  EXPECT_EQ(state, (State{3.0 - 0.125 * 1.0, 1.0 - 0.125 * 24.0, -1.0 - 0.125 * 16.0}));
}

TEST_F(Update, ACellOnTheRightOfAWallFeelsNoPressure) {
  sign = {-1, 1, 1};
  fluxHy[0] = {0.0, 8.0, 16.0, 0.0, 0.0};
  step();
  EXPECT_EQ(state, (State{3.0, 1.0, -1.0}));
}

TEST_F(Update, ADepthAtTheMinimumIsDryAndAtRest) {
  drainTo(0.25);
  step();
  EXPECT_EQ(wetted, 0);
  EXPECT_EQ(state, (State{1.25, 0.0, 0.0}));
  drainTo(std::nextafter(1.25, 2.0) - 1.0);
  state[1] = 1.0;
  step();
  EXPECT_EQ(wetted, 1);
  EXPECT_EQ(state[1], 1.0);
}

TEST_F(Update, AMomentumFluxIntoACellThatFallsDryIsDiscarded) {
  drainTo(0.5);
  fluxHy[2] = {0.75, -50.0, 50.0, 0.0, 0.0};
  EXPECT_EQ(step(), "");
  EXPECT_EQ(state, (State{1.5 - 0.375, 0.0, 0.0}));
  EXPECT_EQ(wetted, 0);
}

TEST_F(Update, ASurfaceAHairBelowTheBedIsDryAndStaysThere) {
  bed = 0.0;
  drainTo(-1e-13);
  EXPECT_EQ(step(), "");
  EXPECT_EQ(state, (State{-1e-13, 0.0, 0.0}));
  EXPECT_EQ(wetted, 0);
  EXPECT_EQ(massKept, 1);
  drainTo(-1e-12);
  EXPECT_EQ(step(), "");
  EXPECT_EQ(massKept, 1);
}

TEST_F(Update, ANegativeDepthIsReportedAndLeavesTheCellAsComputed) {
  drainTo(0.5);
  fluxHy[2] = {2.0, 4.0, 8.0, 0.0, 0.0};
  EXPECT_EQ(step(), "MASS BALANCE PROBLEM: h = -0.5 < 0.0\n");
  EXPECT_EQ(state, (State{0.5, 1.0 - 2.0, -1.0 - 4.0}));
  EXPECT_EQ(wetted, 9);
  EXPECT_EQ(massKept, 0);
}

TEST_F(Update, ANegativeDepthNamesTheCellInDebugMode) {
  G_Debug = 1;
  drainTo(-0.125);
  EXPECT_EQ(step(), "MASS BALANCE PROBLEM: h = -0.125 < 0.0\n... in cell 17\n");
}

TEST_F(Update, TheLimitOfTheReportIsStrict) {
  bed = 0.0;
  state[0] = std::nextafter(-1e-12, -1.0);
  EXPECT_EQ(step(), "MASS BALANCE PROBLEM: h = -1e-12 < 0.0\n");
  EXPECT_EQ(massKept, 0);
}

TEST_F(Update, TheVerdictOfACellReplacesThatOfTheOneBefore) {
  massKept = 0;
  step();
  EXPECT_EQ(massKept, 1);
}

TEST_F(Update, ANotANumberCountsAsDry) {
  state[0] = std::numeric_limits<double>::quiet_NaN();
  EXPECT_EQ(step(), "");
  EXPECT_EQ(wetted, 0);
  EXPECT_EQ(state[1], 0.0);
  EXPECT_EQ(massKept, 1);
}

TEST_F(Update, BeforeTheBedMovesBedFluxesAreNotLookedAt) {
  fluxMo = {1.0, 1.0, 1.0};
  step();
  EXPECT_EQ(state[0], 3.0);
  EXPECT_EQ(bed, 1.0);
}

TEST_F(Update, ABedFluxLiftsTheWaterWithTheBed) {
  morphology = 1;
  fluxMo = {2.0, -1.0, 0.5};
  step();
  EXPECT_EQ(bed, 1.0 - 0.125 * 2.0);
  EXPECT_EQ(state, (State{3.0 - 0.125 * 2.0, 1.0, -1.0}));
  EXPECT_EQ(wetted, 1);
}

TEST_F(Update, ABedFluxFollowsTheSignOfTheEdge) {
  morphology = 1;
  sign = {-1, -1, 1};
  fluxMo = {2.0, -1.0, 0.5};
  step();
  EXPECT_EQ(bed, 1.0 - 0.125 * 2.0);
  EXPECT_EQ(state[0], 3.0 - 0.125 * 2.0);
}

TEST_F(Update, OnlyTheLiquidFluxChangesTheDepth) {
  morphology = 1;
  fluxMo = {2.0, -1.0, 0.5};
  fluxHy[0][0] = 2.0;
  step();
  EXPECT_EQ(state[0] - bed, 2.0 - 0.125 * 2.0);
}

TEST_F(Update, KeepsTheOrderOfItsOperations) {
  dt = 0.0137;
  area = 0.71;
  length = {0.11, 1.3, 0.97};
  sign = {1, -1, 1};
  fluxHy = {
      {{0.013, 1.7, -0.3, 9.0, 9.0}, {-0.21, 9.0, 9.0, 3.1, 0.77}, {0.37, -2.3, 5.9, 9.0, 9.0}}};
  fluxMo = {0.0031, -0.0017, 0.00073};
  const double r = dt / area;
  const State before = state;
  const double qx = before[1] - r * ((1.7 * 0.11 + 3.1 * 1.3) + -2.3 * 0.97);
  const double qy = before[2] - r * ((-0.3 * 0.11 + 0.77 * 1.3) + 5.9 * 0.97);
  step();
  EXPECT_EQ(state, (State{3.0 - r * ((0.11 * 0.013 + 1.3 * 0.21) + 0.97 * 0.37), qx, qy}));

  state = before;
  morphology = 1;
  step();
  EXPECT_EQ(state[0], 3.0 - r * (0.11 * (0.013 + 0.0031) + -1.3 * (-0.21 + -0.0017) +
                                 0.97 * (0.37 + 0.00073)));
  EXPECT_EQ(bed, 1.0 - r * (0.11 * 0.0031 + -1.3 * -0.0017 + 0.97 * 0.00073));
}

}  // namespace
