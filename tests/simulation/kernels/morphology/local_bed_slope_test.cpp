#include "simulation/kernels/morphology/local_bed_slope.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <type_traits>

#include "simulation/kernels/RunParameters.h"
#include "simulation/loops/descriptions.h"

static_assert(
    std::is_same_v<decltype(kernels::morphology::local_bed_slope), loops::LocalBedSlope::Body>);

namespace {

constexpr int VAN_RIJN_TYPE = 1;
constexpr int CHEN_TYPE = 2;
constexpr double REPOSE = 0.6;
constexpr double CRITICAL = 0.047;

/// Flow in direction x, 1 m deep.
class MorLocalBedSlope : public support::Parameters {
 protected:
  std::array<double, 3> state{3.0, 0.5, 0.0};
  double bed = 2.0;
  double critical = 99.0;

  MorLocalBedSlope() {
    set(ParameterID::MinWaterDepth, 0.25);
    set(ParameterID::ThetaCritical, CRITICAL);
    set(ParameterID::ReposeAngle, REPOSE);
    setInt(ParameterID::IncipientMotType, VAN_RIJN_TYPE);
  }

  double on(const std::array<double, 2>& gradient) {
    kernels::morphology::local_bed_slope(par(), state.data(), &bed, gradient.data(), &critical);
    return critical;
  }
};

TEST_F(MorLocalBedSlope, KeepsTheCriticalValueOnAHorizontalBed) {
  EXPECT_DOUBLE_EQ(on({0.0, 0.0}), CRITICAL);
}

TEST_F(MorLocalBedSlope, KeepsTheCriticalValueOnAHorizontalBedAfterChen) {
  setInt(ParameterID::IncipientMotType, CHEN_TYPE);
  // c is the cosine of the double next to pi/2; X is a rounding away from tan(p)^2.
  EXPECT_NEAR(on({0.0, 0.0}), CRITICAL, 1e-15);
}

TEST_F(MorLocalBedSlope, LeavesADryCellAlone) {
  state[0] = bed + 0.125;
  EXPECT_EQ(on({0.1, 0.0}), 99.0);
}

TEST_F(MorLocalBedSlope, ADepthOfTheMinimumIsDry) {
  state[0] = bed + 0.25;
  EXPECT_EQ(on({0.1, 0.0}), 99.0);
  state[0] = std::nextafter(state[0], 10.0);
  EXPECT_NE(on({0.1, 0.0}), 99.0);
}

TEST_F(MorLocalBedSlope, AWetCellAtRestHasNoCriticalValue) {
  state = {3.0, 0.0, 0.0};
  EXPECT_TRUE(std::isnan(on({0.1, 0.0})));
  critical = 99.0;
  setInt(ParameterID::IncipientMotType, CHEN_TYPE);
  EXPECT_TRUE(std::isnan(on({0.1, 0.0})));
}

TEST_F(MorLocalBedSlope, IsHigherUpslopeAndLowerDownslope) {
  EXPECT_DOUBLE_EQ(on({0.1, 0.0}), 0.05360262453204253);
  EXPECT_DOUBLE_EQ(on({-0.1, 0.0}), 0.039930871347696441);
}

TEST_F(MorLocalBedSlope, IsLowerOnALateralSlopeToEitherSide) {
  EXPECT_DOUBLE_EQ(on({0.1, 0.2}), 0.05026552405106665);
  EXPECT_DOUBLE_EQ(on({0.1, -0.2}), 0.05026552405106665);
}

TEST_F(MorLocalBedSlope, SplitsTheGradientByTheFlowDirection) {
  state = {3.0, 0.0, -0.5};  // along -y, so the slope along is -Gy
  EXPECT_DOUBLE_EQ(on({0.2, -0.1}), 0.05026552405106665);
  state = {3.0, 3.0, 4.0};  // 0.1 along (0.6, 0.8), 0.2 along (-0.8, 0.6)
  EXPECT_DOUBLE_EQ(on({0.06 - 0.16, 0.08 + 0.12}), 0.05026552405106665);
}

TEST_F(MorLocalBedSlope, AddsTheCosineAfterChenWithoutAFactor) {
  setInt(ParameterID::IncipientMotType, CHEN_TYPE);
  EXPECT_DOUBLE_EQ(on({0.1, 0.0}), 0.14627046696086851);
  EXPECT_DOUBLE_EQ(on({-0.1, 0.0}), -0.052736971081129409);
  EXPECT_DOUBLE_EQ(on({0.1, 0.2}), 0.1433875826880564);
}

TEST_F(MorLocalBedSlope, IsVanRijnForEveryTypeButChens) {
  for (const int type : {-2, 0, 1, 3}) {
    setInt(ParameterID::IncipientMotType, type);
    EXPECT_DOUBLE_EQ(on({0.1, 0.0}), 0.05360262453204253) << type;
  }
}

TEST_F(MorLocalBedSlope, HasNoCriticalValueBeyondTheAngleOfRepose) {
  const double steep = std::tan(REPOSE) * 1.01;
  EXPECT_TRUE(std::isnan(on({0.0, steep})));
  setInt(ParameterID::IncipientMotType, CHEN_TYPE);
  EXPECT_TRUE(std::isnan(on({0.0, steep})));
}

TEST_F(MorLocalBedSlope, IgnoresAnAngleOfReposeNextToZero) {
  for (const double angle : {1e-13, -1e-13}) {
    set(ParameterID::ReposeAngle, angle);
    EXPECT_DOUBLE_EQ(on({0.0, 1.0}), CRITICAL / std::sqrt(2.0)) << angle;
  }
}

TEST_F(MorLocalBedSlope, CountsANegativeAngleOfReposeByItsSize) {
  set(ParameterID::ReposeAngle, -REPOSE);
  EXPECT_TRUE(std::isnan(on({0.0, std::tan(REPOSE) * 1.01})));
}

}  // namespace
