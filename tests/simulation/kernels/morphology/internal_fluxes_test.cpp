#include "simulation/kernels/morphology/internal_fluxes.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <type_traits>

#include "simulation/kernels/RunParameters.h"
#include "simulation/loops/descriptions.h"

static_assert(
    std::is_same_v<decltype(kernels::morphology::internal_fluxes), loops::MorInternalFluxes::Body>);

namespace {

struct Cell {
  int wetted = 1;
  std::array<double, 3> state{};
  double bed = 0.0;
  std::array<double, 2> capacity{};
  std::array<double, 2> derivative{};
};

/// Gravity is 1, so 1 m of water has a celerity of 1 m/s.
class MorInternalFluxes : public support::Parameters {
 protected:
  std::array<double, 2> normal{1.0, 0.0};
  Cell left, right;

  MorInternalFluxes() {
    set(ParameterID::Gravity, 1.0);
    set(ParameterID::InvBedPorosity, 1.0);
    set(ParameterID::BedloadFactor, 1.0);
  }

  double flux() const {
    double result = 99.0;
    kernels::morphology::internal_fluxes(par(), normal.data(), &left.wetted, &right.wetted,
                                         left.state.data(), right.state.data(), &left.bed,
                                         &right.bed, left.capacity.data(), right.capacity.data(),
                                         left.derivative.data(), right.derivative.data(), &result);
    return result;
  }

  /// Speeds (0.5, 1.5) on the left and (0.5, 2.5) on the right.
  void setSpeedsOfOneSign() {
    left = {1, {1.0, 3.0, 0.0}, 0.0, {2.0, 0.0}, {-0.75, 0.0}};
    right = {1, {1.0, 4.0, 0.0}, 0.0, {1.0, 0.0}, {-1.25, 0.0}};
  }
};

TEST_F(MorInternalFluxes, AveragesTheCapacitiesByTheOuterSpeeds) {
  set(ParameterID::InvBedPorosity, 1.5);
  set(ParameterID::BedloadFactor, 2.0);
  left = {1, {1.0, 3.0, 0.0}, 0.0, {2.0, 0.0}, {3.0, 0.0}};     // speeds -1 and 3
  right = {1, {2.0, -3.0, 0.0}, 1.0, {1.0, 0.0}, {-5.0, 0.0}};  // speeds -5 and 1
  // (2 * 3 + 1 * 5 + 1 * (-5 * 3)) * 3 / 8
  EXPECT_EQ(flux(), -1.5);
}

TEST_F(MorInternalFluxes, HasNoUpwindBranch) {
  setSpeedsOfOneSign();
  EXPECT_EQ(flux(), 2.25);  // (2 * 2.5 - 1 * 0.5) / 2
}

TEST_F(MorInternalFluxes, TakesTheSpeedsOfTheOtherSideForANegativeRadicand) {
  setSpeedsOfOneSign();
  left.derivative = {-2.0, 0.0};  // 4 - 8
  EXPECT_EQ(flux(), 2.25);

  setSpeedsOfOneSign();
  right.derivative = {-3.0, 0.0};  // 9 - 12
  EXPECT_EQ(flux(), 2.0 * 1.5 - 1.0 * 0.5);
}

TEST_F(MorInternalFluxes, IsNaNIfBothRadicandsAreNegative) {
  setSpeedsOfOneSign();
  left.derivative = {-2.0, 0.0};
  right.derivative = {-3.0, 0.0};
  EXPECT_TRUE(std::isnan(flux()));
}

TEST_F(MorInternalFluxes, LetNothingPassToOrFromADryCell) {
  setSpeedsOfOneSign();
  left.wetted = 0;
  EXPECT_EQ(flux(), 0.0);
  left.wetted = 1;
  right.wetted = 0;
  EXPECT_EQ(flux(), 0.0);
  left.wetted = 0;
  EXPECT_EQ(flux(), 0.0);
}

TEST_F(MorInternalFluxes, AreZeroInStillWaterOverALevelBed) {
  left.state = right.state = {2.3, 0.0, 0.0};
  left.bed = right.bed = 0.7;
  EXPECT_EQ(flux(), 0.0);
}

TEST_F(MorInternalFluxes, AreZeroInStillWaterOverABedStep) {
  left.state = right.state = {2.3, 0.0, 0.0};
  left.bed = 0.7;
  right.bed = 1.9;
  EXPECT_EQ(flux(), 0.0);
}

TEST_F(MorInternalFluxes, AreZeroWhereTheSpeedsOfBothSidesCollapse) {
  left = right = {1, {0.5, 0.25, 0.125}, 0.5, {1.0, 1.0}, {1.0, 1.0}};
  EXPECT_EQ(flux(), 0.0);
}

TEST_F(MorInternalFluxes, TakeTheSpeedsOfOneSideWhereTheOtherHasNoDepth) {
  left = {1, {1.0, 3.0, 0.0}, 0.0, {2.0, 0.0}, {3.0, 0.0}};  // speeds -1 and 3
  right = {1, {0.0, 0.0, 0.0}, 0.0, {1.0, 0.0}, {1.0, 0.0}};
  EXPECT_EQ(flux(), 1.75);  // (2 * 3 + 1 * 1) / 4
}

TEST_F(MorInternalFluxes, AreTheCapacityItselfBetweenEqualStates) {
  set(ParameterID::InvBedPorosity, 1.5);
  set(ParameterID::BedloadFactor, 0.5);
  normal = {0.6, 0.8};
  for (const double discharge : {0.25, 3.0, -2.0}) {
    left = {1, {1.0, discharge, 0.5}, 0.0, {0.75, -0.25}, {0.125, 0.0625}};
    right = left;
    EXPECT_DOUBLE_EQ(flux(), (0.75 * 0.6 - 0.25 * 0.8) * 0.75) << discharge;
  }
}

TEST_F(MorInternalFluxes, ProjectTheDerivativeOnTheDirectionOfTheFlow) {
  // The flow is at 45 degrees to the normal, so dn = 4 cos(45) and the radicand 1 + 4 dn.
  left = {1, {1.0, 2.0, 2.0}, 0.0, {1.0, 0.0}, {4.0, 7.0}};
  right = {1, {0.0, 0.0, 0.0}, 0.0, {0.0, 0.0}, {0.0, 0.0}};
  const double root = std::sqrt(1.0 + 16.0 * std::sqrt(0.5));
  EXPECT_DOUBLE_EQ(flux(), (1.0 + root) * 0.5 / root);
}

/// With weak transport the bed itself moves at d c^2 u / (c^2 - u^2).
TEST_F(MorInternalFluxes, TakeAFasterBedThanThereIsTheMoreTheSlowerTheFlow) {
  const double weak = 1e-9;
  for (const double froude : {0.1, 0.2, 0.4, 0.6}) {
    const std::array<double, 3> state{1.0, froude, 0.0};  // the celerity is 1
    const std::array<double, 2> derivative{weak, 0.0};
    const double bed = weak * froude / (1.0 - froude * froude);
    const double along =
        kernels::morphology::bedWaves(par(), normal.data(), state.data(), 0.0, derivative.data())
            .high;
    EXPECT_NEAR(along / bed, (1.0 + froude) / froude, 1e-4) << froude;
    const std::array<double, 2> back{-1.0, 0.0};
    const double against =
        kernels::morphology::bedWaves(par(), back.data(), state.data(), 0.0, derivative.data())
            .high;
    EXPECT_NEAR(against / bed, (1.0 - froude) / froude, 1e-4) << froude;
  }
}

TEST_F(MorInternalFluxes, AreZeroOnlyForSpeedsCloserThanTheTolerance) {
  // In still water the speeds are -c and 0: their distance is the celerity.
  left.state = right.state = {1.0, 0.0, 0.0};
  right.capacity = {1.0, 0.0};
  set(ParameterID::Gravity, 1e-24);
  ASSERT_EQ(std::sqrt(1e-24), 1e-12);
  EXPECT_DOUBLE_EQ(flux(), 1.0);
  set(ParameterID::Gravity, 0.99e-24);
  EXPECT_EQ(flux(), 0.0);
}

TEST_F(MorInternalFluxes, RoundInOrder) {
  set(ParameterID::Gravity, 9.81);
  set(ParameterID::InvBedPorosity, 1.0 / (1.0 - 0.37));
  normal = {0.6, 0.8};

  set(ParameterID::BedloadFactor, 0.8);
  left = {1, {1.38, 0.16, -0.02}, 1.09, {5e-5, 1e-5}, {-0.0037, -0.0042}};
  right = {1, {1.33, -0.02, 0.87}, 0.96, {1.4e-4, -9e-5}, {-0.0045, 0.0044}};
  EXPECT_EQ(flux(), 0.0045090861715540676);

  set(ParameterID::BedloadFactor, 1.78);
  left = {1, {1.41, 0.87, 0.59}, 1.1, {-2e-5, 7e-5}, {-0.0002, 0.0012}};
  right = {1, {0.96, -0.4, 0.49}, 0.81, {-2.1e-4, -2.8e-4}, {-0.0047, -0.004}};
  EXPECT_EQ(flux(), 0.13678263616211692);

  set(ParameterID::BedloadFactor, 1.85);
  left = {1, {1.3, 0.86, 0.13}, 0.98, {2.5e-4, 1.9e-4}, {0.0015, -0.0043}};
  right = {1, {1.39, -0.98, 0.89}, 0.82, {-2e-5, 2.1e-4}, {-0.0012, -0.0019}};
  EXPECT_EQ(flux(), 0.052712533809834414);
}

}  // namespace
