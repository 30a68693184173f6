#include "simulation/kernels/morphology/calc_bedload_transport.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <type_traits>

#include "simulation/kernels/RunParameters.h"
#include "simulation/loops/descriptions.h"

static_assert(std::is_same_v<decltype(kernels::morphology::calc_bedload_transport),
                             loops::MorBedloadTransport::Body>);

namespace {

using Vector = std::array<double, 2>;

constexpr int MPM = 1;
constexpr int GRASS = 3;
constexpr int POWER = 4;

/// Water of 0.5 m that flows along x; A = 2, B = 2, Grass form, no corrections of the direction.
class MorCalcBedloadTransport : public support::Parameters {
 protected:
  int friction = 1;
  std::array<double, 3> state{1.5, 1.0, 0.0};
  double bed = 1.0;
  double chezy = 4.0;
  double grainSize = 0.25;
  double critical = 0.5;
  Vector gradient{};
  double curvature = 0.0;
  Vector capacity{99.0, 99.0};
  Vector derivative{99.0, 99.0};

  MorCalcBedloadTransport() {
    set(ParameterID::Gravity, 1.0);
    set(ParameterID::InvGravity, 1.0);
    set(ParameterID::SedRelDensity, 1.0);
    set(ParameterID::BedloadCoeff, 2.0);
    set(ParameterID::BedloadExpon, 2.0);
    setInt(ParameterID::BeadloadType, GRASS);
  }

  void run() { run(&chezy); }
  void run(const double* chezyValue) {
    kernels::morphology::calc_bedload_transport(par(), &friction, state.data(), &bed, chezyValue,
                                                &grainSize, &critical, gradient.data(), &curvature,
                                                capacity.data(), derivative.data());
  }
};

TEST_F(MorCalcBedloadTransport, PointsAlongTheFlowWithoutCorrections) {
  gradient = {0.25, 0.5};
  curvature = 0.5;
  run();
  // u = 2, T = 1.5
  EXPECT_EQ(capacity, (Vector{4.5, 0.0}));
  EXPECT_EQ(derivative, (Vector{12.0, 0.0}));  // 2 * 2 * 1.5 * 2
}

TEST_F(MorCalcBedloadTransport, FollowsAnObliqueFlow) {
  state = {1.5, -0.6, 0.8};
  run();
  EXPECT_DOUBLE_EQ(capacity[0], -0.6 * 4.5);
  EXPECT_DOUBLE_EQ(capacity[1], 0.8 * 4.5);
  EXPECT_DOUBLE_EQ(derivative[0], -0.6 * 12.0);
  EXPECT_DOUBLE_EQ(derivative[1], 0.8 * 12.0);
}

TEST_F(MorCalcBedloadTransport, IsZeroWithoutDepth) {
  state[0] = bed;
  for (const int type : {MPM, GRASS}) {
    setInt(ParameterID::BeadloadType, type);
    run();
    EXPECT_EQ(capacity, (Vector{0.0, 0.0})) << type;
    EXPECT_EQ(derivative, (Vector{0.0, 0.0})) << type;
  }
}

TEST_F(MorCalcBedloadTransport, IsZeroAtRestWhateverTheFormula) {
  state = {1.5, 0.0, 0.0};
  gradient = {0.25, 0.5};
  curvature = 0.5;
  critical = -1.0;
  setInt(ParameterID::BedloadInts, 0, 1);
  setInt(ParameterID::BedloadInts, 1, 1);
  set(ParameterID::BedloadIkeda, 0.5);
  set(ParameterID::BedloadCurvature, 8.0);
  for (const int type : {MPM, GRASS, POWER}) {
    setInt(ParameterID::BeadloadType, type);
    run();
    EXPECT_EQ(capacity, (Vector{0.0, 0.0})) << type;
    EXPECT_EQ(derivative, (Vector{0.0, 0.0})) << type;
  }
}

TEST_F(MorCalcBedloadTransport, TakesThinFilmsForWhatTheyAre) {
  set(ParameterID::MinWaterDepth, 0.1);
  bed = 0.0;
  state = {1e-12, 1e-12, 0.0};  // 1 m/s in a film that still counts as water
  run();
  EXPECT_DOUBLE_EQ(capacity[0], 0.5);
  state[0] = std::nextafter(1e-12, 0.0);
  run();
  EXPECT_EQ(capacity, (Vector{0.0, 0.0}));
}

TEST_F(MorCalcBedloadTransport, ReadsNoChezyValueWithoutFriction) {
  setInt(ParameterID::BeadloadType, MPM);
  friction = 0;
  run(nullptr);
  EXPECT_EQ(capacity, (Vector{0.0, 0.0}));
  EXPECT_EQ(derivative, (Vector{0.0, 0.0}));
}

TEST_F(MorCalcBedloadTransport, UsesTheStressOfTheMpmForm) {
  setInt(ParameterID::BeadloadType, MPM);
  run();
  // E = 0.125, K1 = 0.25 / 0.25, t = 4, T = 3.5: 2 * 0.125 * 12.25
  EXPECT_EQ(capacity, (Vector{3.0625, 0.0}));
  EXPECT_EQ(derivative, (Vector{14.0, 0.0}));  // 0.25 * 2 * 3.5 * 1 * 8
}

TEST_F(MorCalcBedloadTransport, IsZeroForACellWithoutChezyValue) {
  chezy = 0.0;
  for (const int type : {MPM, POWER}) {
    setInt(ParameterID::BeadloadType, type);
    run();
    EXPECT_EQ(capacity, (Vector{0.0, 0.0})) << type;
  }
}

TEST_F(MorCalcBedloadTransport, TurnsDownALateralSlope) {
  setInt(ParameterID::BedloadInts, 0, 1);
  set(ParameterID::BedloadIkeda, 3.0);
  gradient = {0.0, 0.5};  // rises to the left; the lateral stress is 4
  run();
  // tangent -0.75: cosine 0.8
  EXPECT_DOUBLE_EQ(capacity[0], 4.5 * 0.8);
  EXPECT_DOUBLE_EQ(capacity[1], -4.5 * 0.6);
  EXPECT_DOUBLE_EQ(derivative[0], 12.0 * 0.8);
  EXPECT_DOUBLE_EQ(derivative[1], -12.0 * 0.6);
}

TEST_F(MorCalcBedloadTransport, IsNotTurnedByASlopeAlongTheFlow) {
  setInt(ParameterID::BedloadInts, 0, 1);
  set(ParameterID::BedloadIkeda, 3.0);
  gradient = {0.5, 0.0};
  run();
  EXPECT_EQ(capacity, (Vector{4.5, 0.0}));
}

TEST_F(MorCalcBedloadTransport, SeesASlopeInXAcrossAFlowInY) {
  setInt(ParameterID::BedloadInts, 0, 1);
  set(ParameterID::BedloadIkeda, 3.0);
  state = {1.5, 0.0, 1.0};
  gradient = {0.5, 0.0};  // rises to the right of the flow
  run();
  EXPECT_DOUBLE_EQ(capacity[0], -4.5 * 0.6);
  EXPECT_DOUBLE_EQ(capacity[1], 4.5 * 0.8);
}

TEST_F(MorCalcBedloadTransport, TurnsByTheCurvatureOfTheFlow) {
  setInt(ParameterID::BedloadInts, 1, 1);
  set(ParameterID::BedloadCurvature, 3.0);
  curvature = 0.5;
  run();
  EXPECT_DOUBLE_EQ(capacity[0], 4.5 * 0.8);
  EXPECT_DOUBLE_EQ(capacity[1], 4.5 * 0.6);
}

TEST_F(MorCalcBedloadTransport, DoesNotApplyTheCalibrationFactor) {
  set(ParameterID::BedloadFactor, 100.0);
  set(ParameterID::InvBedPorosity, 100.0);
  run();
  EXPECT_EQ(capacity, (Vector{4.5, 0.0}));
}

TEST_F(MorCalcBedloadTransport, PassesOnACriticalValueThatIsNoNumberAsZero) {
  critical = std::nan("");
  for (const int type : {MPM, GRASS}) {
    setInt(ParameterID::BeadloadType, type);
    run();
    EXPECT_EQ(capacity, (Vector{0.0, 0.0})) << type;
  }
}

TEST_F(MorCalcBedloadTransport, RoundsInOrder) {
  set(ParameterID::Gravity, 9.81);
  set(ParameterID::InvGravity, 1.0 / 9.81);
  set(ParameterID::SedRelDensity, 1.65);
  set(ParameterID::BedloadCoeff, 7.93);
  set(ParameterID::BedloadExpon, 1.0);
  set(ParameterID::BedloadIkeda, 0.47);
  set(ParameterID::BedloadCurvature, 7.3);
  setInt(ParameterID::BedloadInts, 0, 1);
  setInt(ParameterID::BedloadInts, 1, 1);
  setInt(ParameterID::BeadloadType, MPM);
  state = {1.37, 0.31, -0.57};
  chezy = 83.7;
  grainSize = 0.0123;
  critical = 0.047;
  gradient = {0.021, -0.034};
  curvature = -0.0213;
  run();
  EXPECT_EQ(capacity, (Vector{0.0025518944316960295, -0.0054148861297544379}));
  EXPECT_EQ(derivative, (Vector{0.010553865929340142, -0.022394336351167325}));
}

}  // namespace
