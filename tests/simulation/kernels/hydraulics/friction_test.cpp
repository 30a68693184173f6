#include "simulation/kernels/hydraulics/friction.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <type_traits>

#include "simulation/Loops.h"
#include "simulation/kernels/Parameters.h"

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
    double const bed = 0.0;
    kernels::hydraulics::friction(&dt, &bed, &roughness, &chezy, state.data());
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
  double const left = 1.0 - 6.4 * (4.375 / 120.0) * 0.875;
  EXPECT_EQ(state[0], 8.0);
  EXPECT_DOUBLE_EQ(state[1], 3.0 * left);
  EXPECT_DOUBLE_EQ(state[2], -4.0 * left);
}

TEST_F(Friction, KeepsTheOrderOfItsOperations) {
  // Values rounded after each single operation.
  double const dt = 0.37;
  state = {1.3, 0.7, 0.11};
  step(dt, 0.033);
  volatile double const h = 1.3;
  volatile double C = 0.125 * std::cbrt(h);
  C = C * (1.0 / 0.033);
  C = C * (1.0 / 0.033);
  volatile double B = C * 1.3;
  B = B * 1.3;
  auto const magnitude = [](double x, double y) {
    volatile double const xx = x * x;
    volatile double const yy = y * y;
    return std::sqrt(xx + yy);
  };
  double const q = magnitude(0.7, 0.11);
  volatile double const D1 = 2.0 * dt * q;
  volatile double const a = q * (1.0 / (D1 + B));
  volatile double const dx = a * 0.7;
  volatile double const dy = a * 0.11;
  volatile double const ddx = dx * (dt / 2.0);
  volatile double const ddy = dy * (dt / 2.0);
  double const qxp = 0.7 - ddx;
  double const qyp = 0.11 - ddy;
  double const qp = magnitude(qxp, qyp);
  volatile double const D2 = 2.0 * dt * qp;
  volatile double const b = qp * (1.0 / (B + D2));
  volatile double const db = dt * b;
  volatile double const cx = db * qxp;
  volatile double const cy = db * qyp;
  EXPECT_EQ(state[1], 0.7 - cx);
  EXPECT_EQ(state[2], 0.11 - cy);
}

TEST_F(Friction, NeverTurnsTheDischargeRound) {
  for (double const h : {0.0, 1e-9, 1e-3, 10.0}) {
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
  for (int const on : {0, 1}) {
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
