#include "simulation/kernels/hydraulics/friction.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <type_traits>

#include "simulation/kernels/RunParameters.h"
#include "simulation/loops/descriptions.h"

static_assert(std::is_same_v<decltype(kernels::hydraulics::friction), loops::HydFriction::Body>);

namespace {

class Friction : public support::Parameters {
 protected:
  Friction() {
    set(ParameterID::InvGravity, 0.125);
    set(ParameterID::MinWaterDepth, 0.5);
    setInt(ParameterID::FrictionType, 1);
  }

  /// Runs one step over a bed at 0.
  void step(double dt, double roughness) {
    const double bed = 0.0;
    kernels::hydraulics::friction(par(), &dt, &bed, &roughness, &chezy, state.data());
  }

  std::array<double, 3> state{8.0, 0.0, 0.0};
  double chezy = -1.0;
};

TEST_F(Friction, StoresTheChezyValueOfEveryCell) {
  step(1.0, 0.5);
  EXPECT_DOUBLE_EQ(chezy, 1.0);
  state = {-1.0, 0.0, 0.0};
  step(1.0, 1.0);
  EXPECT_DOUBLE_EQ(chezy, 0.125 * std::cbrt(0.5));
}

TEST_F(Friction, LeavesACellAtRestAlone) {
  step(1.0, 0.5);
  EXPECT_EQ(state, (std::array<double, 3>{8.0, 0.0, 0.0}));
}

TEST_F(Friction, LeavesADryCellWithoutChezyValueAtRest) {
  state = {0.0, 0.0, 0.0};
  step(1.0, 0.0);
  EXPECT_EQ(chezy, 0.0);
  EXPECT_EQ(state, (std::array<double, 3>{0.0, 0.0, 0.0}));
}

TEST_F(Friction, WithoutChezyValueLeavesFiveEighthsOfTheDischarge) {
  state = {8.0, 16.0, 0.0};
  step(0.5, 0.0);
  EXPECT_EQ(chezy, 0.0);
  EXPECT_EQ(state, (std::array<double, 3>{8.0, 10.0, 0.0}));
}

TEST_F(Friction, UnknownClosureActsAsWithoutChezyValue) {
  setInt(ParameterID::FrictionType, 7);
  state = {8.0, 0.0, -16.0};
  step(0.5, 0.5);
  EXPECT_EQ(chezy, 0.0);
  EXPECT_EQ(state, (std::array<double, 3>{8.0, 0.0, -10.0}));
}

TEST_F(Friction, FollowsTheMidpointRule) {
  // C = 1, h = 8, B = 64, |q| = 5, dt = 6.4: D1 = 128, a = 5/128, predictor 0.875 q;
  // |qp| = 4.375, D2 = 120, b = 4.375/120, corrector q (1 - 6.4 b 0.875).
  state = {8.0, 3.0, -4.0};
  step(6.4, 0.5);
  const double left = 1.0 - 6.4 * (4.375 / 120.0) * 0.875;
  EXPECT_EQ(state[0], 8.0);
  EXPECT_DOUBLE_EQ(state[1], 3.0 * left);
  EXPECT_DOUBLE_EQ(state[2], -4.0 * left);
}

/// x times y, rounded at once whatever the compiler would like to do.
double times(double x, double y) {
  const volatile double product = x * y;
  return product;
}

/// The step of a cell of discharge (qx, qy), one operation after the other.
std::array<double, 2> stepByStep(double C, double h, double dt, double qx, double qy) {
  const double B = times(times(C, h), h);
  const double q = std::sqrt(times(qx, qx) + times(qy, qy));
  const double a = times(q, 1.0 / (times(times(2.0, dt), q) + B));
  const double qxp = qx - times(times(a, qx), dt / 2.0);
  const double qyp = qy - times(times(a, qy), dt / 2.0);
  const double qp = std::sqrt(times(qxp, qxp) + times(qyp, qyp));
  const double b = times(qp, 1.0 / (B + times(times(2.0, dt), qp)));
  return {qx - times(times(dt, b), qxp), qy - times(times(dt, b), qyp)};
}

TEST_F(Friction, KeepsTheOrderOfItsOperations) {
  const double dt = 7.3;
  for (int i = 1; i <= 500; ++i) {
    const double h = 0.0031 * i;
    const double qx = 0.77 + 0.0013 * i;
    const double qy = -2.13;
    state = {h, qx, qy};
    step(dt, 0.33);
    const std::array<double, 2> expected = stepByStep(chezy, h, dt, qx, qy);
    ASSERT_EQ(state[1], expected[0]) << h;
    ASSERT_EQ(state[2], expected[1]) << h;
  }
}

TEST_F(Friction, NeverTurnsTheDischargeRound) {
  for (const double h : {0.0, 1e-9, 1e-3, 10.0}) {
    state = {h, 1e3, -1e3};
    step(1e6, 1.0);
    EXPECT_GT(state[1], 0.0) << h;
    EXPECT_LT(state[2], 0.0) << h;
    EXPECT_LE(state[1], 1e3) << h;
  }
}

TEST_F(Friction, LogarithmicClosuresSeeTheRawDepth) {
  setInt(ParameterID::FrictionType, 3);
  state = {0.25, 0.0, 0.0};
  step(1.0, 0.3);
  EXPECT_EQ(chezy, 38.505650853010394);
  state = {-1e-14, 0.0, 0.0};
  step(1.0, 0.3);
  EXPECT_EQ(chezy, 38.505650853010394);

  setInt(ParameterID::FrictionType, 4);
  state = {0.25, 0.0, 0.0};
  step(1.0, 1.0);
  EXPECT_EQ(chezy, 2.25);
  state = {-1e-14, 0.0, 0.0};
  step(1.0, 1.0);
  EXPECT_EQ(chezy, 2.25);
}

TEST_F(Friction, ActsWhetherFrictionOnIsSetOrNot) {
  for (const int on : {0, 1}) {
    setInt(ParameterID::FrictionOn, on);
    state = {8.0, 16.0, 0.0};
    step(0.5, 0.0);
    EXPECT_EQ(state[1], 10.0) << on;
  }
}

TEST_F(Friction, ActsOnDryCellsToo) {
  state = {0.0, 16.0, 0.0};
  step(0.5, 0.5);
  EXPECT_EQ(state[1], 10.0);
}

}  // namespace
