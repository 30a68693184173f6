#include "simulation/kernels/morphology/internal_fluxes.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <type_traits>

#include "simulation/Loops.h"
#include "simulation/kernels/Parameters.h"

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
    kernels::morphology::internal_fluxes(normal.data(), &left.wetted, &right.wetted,
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

TEST_F(MorInternalFluxes, averagesTheCapacitiesByTheOuterSpeeds) {
  set(ParameterID::InvBedPorosity, 1.5);
  set(ParameterID::BedloadFactor, 2.0);
  left = {1, {1.0, 3.0, 0.0}, 0.0, {2.0, 0.0}, {3.0, 0.0}};     // speeds -1 and 3
  right = {1, {2.0, -3.0, 0.0}, 1.0, {1.0, 0.0}, {-5.0, 0.0}};  // speeds -5 and 1
  // (2 * 3 + 1 * 5 + 1 * (-5 * 3)) * 3 / 8
  EXPECT_EQ(flux(), -1.5);
}

TEST_F(MorInternalFluxes, hasNoUpwindBranch) {
  setSpeedsOfOneSign();
  EXPECT_EQ(flux(), 2.25);  // (2 * 2.5 - 1 * 0.5) / 2
}

TEST_F(MorInternalFluxes, takesTheSpeedsOfTheOtherSideForANegativeRadicand) {
  setSpeedsOfOneSign();
  left.derivative = {-2.0, 0.0};  // 4 - 8
  EXPECT_EQ(flux(), 2.25);

  setSpeedsOfOneSign();
  right.derivative = {-3.0, 0.0};  // 9 - 12
  EXPECT_EQ(flux(), 2.0 * 1.5 - 1.0 * 0.5);
}

TEST_F(MorInternalFluxes, isNaNIfBothRadicandsAreNegative) {
  setSpeedsOfOneSign();
  left.derivative = {-2.0, 0.0};
  right.derivative = {-3.0, 0.0};
  EXPECT_TRUE(std::isnan(flux()));
}

TEST_F(MorInternalFluxes, letNothingPassToOrFromADryCell) {
  setSpeedsOfOneSign();
  left.wetted = 0;
  EXPECT_EQ(flux(), 0.0);
  left.wetted = 1;
  right.wetted = 0;
  EXPECT_EQ(flux(), 0.0);
  left.wetted = 0;
  EXPECT_EQ(flux(), 0.0);
}

TEST_F(MorInternalFluxes, areZeroInStillWaterOverALevelBed) {
  left.state = right.state = {2.3, 0.0, 0.0};
  left.bed = right.bed = 0.7;
  EXPECT_EQ(flux(), 0.0);
}

TEST_F(MorInternalFluxes, areZeroInStillWaterOverABedStep) {
  left.state = right.state = {2.3, 0.0, 0.0};
  left.bed = 0.7;
  right.bed = 1.9;
  EXPECT_EQ(flux(), 0.0);
}

TEST_F(MorInternalFluxes, areZeroWhereTheSpeedsOfBothSidesCollapse) {
  left = right = {1, {0.5, 0.25, 0.125}, 0.5, {1.0, 1.0}, {1.0, 1.0}};
  EXPECT_EQ(flux(), 0.0);
}

TEST_F(MorInternalFluxes, takeTheSpeedsOfOneSideWhereTheOtherHasNoDepth) {
  left = {1, {1.0, 3.0, 0.0}, 0.0, {2.0, 0.0}, {3.0, 0.0}};  // speeds -1 and 3
  right = {1, {0.0, 0.0, 0.0}, 0.0, {1.0, 0.0}, {1.0, 0.0}};
  EXPECT_EQ(flux(), 1.75);  // (2 * 3 + 1 * 1) / 4
}

TEST_F(MorInternalFluxes, areTheCapacityItselfBetweenEqualStates) {
  set(ParameterID::InvBedPorosity, 1.5);
  set(ParameterID::BedloadFactor, 0.5);
  normal = {0.6, 0.8};
  for (double const discharge : {0.25, 3.0, -2.0}) {
    left = {1, {1.0, discharge, 0.5}, 0.0, {0.75, -0.25}, {0.125, 0.0625}};
    right = left;
    EXPECT_DOUBLE_EQ(flux(), (0.75 * 0.6 - 0.25 * 0.8) * 0.75) << discharge;
  }
}

TEST_F(MorInternalFluxes, projectTheDerivativeOnTheDirectionOfTheFlow) {
  // The flow is at 45 degrees to the normal, so dn = 4 cos(45) and the radicand 1 + 4 dn.
  left = {1, {1.0, 2.0, 2.0}, 0.0, {1.0, 0.0}, {4.0, 7.0}};
  right = {1, {0.0, 0.0, 0.0}, 0.0, {0.0, 0.0}, {0.0, 0.0}};
  double const root = std::sqrt(1.0 + 16.0 * std::sqrt(0.5));
  EXPECT_DOUBLE_EQ(flux(), (1.0 + root) * 0.5 / root);
}

TEST_F(MorInternalFluxes, areZeroOnlyForSpeedsCloserThanTheTolerance) {
  // In still water the speeds are -c and 0: their distance is the celerity.
  left.state = right.state = {1.0, 0.0, 0.0};
  right.capacity = {1.0, 0.0};
  set(ParameterID::Gravity, 1e-24);
  ASSERT_EQ(std::sqrt(1e-24), 1e-12);
  EXPECT_DOUBLE_EQ(flux(), 1.0);
  set(ParameterID::Gravity, 0.99e-24);
  EXPECT_EQ(flux(), 0.0);
}

TEST_F(MorInternalFluxes, roundInOrder) {
  set(ParameterID::Gravity, 9.81);
  set(ParameterID::InvBedPorosity, 1.0 / (1.0 - 0.37));
  set(ParameterID::BedloadFactor, 1.13);
  normal = {0.6, 0.8};
  left = {1, {1.37, 0.31, -0.57}, 1.0, {2.3e-4, -1.7e-4}, {0.0021, -0.0013}};
  right = {1, {1.21, 0.41, 0.17}, 0.93, {3.1e-4, 0.7e-4}, {0.0032, 0.0009}};
  EXPECT_EQ(flux(), 0.0029155474666490476);
}

}  // namespace
