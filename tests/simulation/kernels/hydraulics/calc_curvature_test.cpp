#include "simulation/kernels/hydraulics/calc_curvature.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <type_traits>

#include "simulation/kernels/RunParameters.h"
#include "simulation/loops/descriptions.h"

static_assert(
    std::is_same_v<decltype(kernels::hydraulics::calc_curvature), loops::CalCCurvature::Body>);

namespace {

/// A cell of 2 m depth over a bed at 1 m among three neighbours like it.
class CalcCurvature : public support::Parameters {
 protected:
  struct Neighbour {
    std::array<double, 2> unit;
    double distance;
    std::array<double, 3> state;
    double bed;
  };

  CalcCurvature() { set(ParameterID::MinWaterDepth, 0.25); }

  double curvature() const {
    std::array<const double*, 3> units{}, distances{}, states{}, beds{};
    for (std::size_t k = 0; k < 3; ++k) {
      units[k] = neighbours[k].unit.data();
      distances[k] = &neighbours[k].distance;
      states[k] = neighbours[k].state.data();
      beds[k] = &neighbours[k].bed;
    }
    double result = 99.0;
    kernels::hydraulics::calc_curvature(par(), units.data(), distances.data(), state.data(), &bed,
                                        states.data(), beds.data(), weight.data(), &result);
    return result;
  }

  std::array<double, 3> state{3.0, 2.0, 0.0};  // u = 1, v = 0
  double bed = 1.0;
  std::array<Neighbour, 3> neighbours{{{{1.0, 0.0}, 2.0, {3.0, 2.0, 0.0}, 1.0},
                                       {{-0.6, 0.8}, 5.0, {3.0, 2.0, 0.0}, 1.0},
                                       {{0.0, -1.0}, 4.0, {3.0, 2.0, 0.0}, 1.0}}};
  std::array<double, 6> weight{0.5, 0.25, -0.25, 1.0, 2.0, 4.0};
};

TEST_F(CalcCurvature, OfUniformFlowIsZero) {
  EXPECT_EQ(curvature(), 0.0);
}

TEST_F(CalcCurvature, OfACellAtRestIsZero) {
  state = {3.0, 0.0, 0.0};
  neighbours[0].state = {3.0, 5.0, 6.0};
  EXPECT_EQ(curvature(), 0.0);
}

TEST_F(CalcCurvature, OfADryCellIsZeroWhateverItsDischarge) {
  state = {1.125, 2.0, 1.0};
  neighbours[0].state = {3.0, 5.0, 6.0};
  EXPECT_EQ(curvature(), 0.0);
}

TEST_F(CalcCurvature, CountsADifferenceByItsProjectionOnTheFlow) {
  neighbours[0].state = {3.0, 2.0, 1.0};  // dv = 0.5, straight ahead at 2 m
  EXPECT_EQ(curvature(), 0.5 * (0.5 * 2.0));
  neighbours[0].state = {3.0, 2.0, 0.0};
  neighbours[2].state = {3.0, 2.0, 7.0};  // square to the flow
  EXPECT_EQ(curvature(), 0.0);
}

TEST_F(CalcCurvature, TheProjectionHasNoSign) {
  neighbours[1].state = {3.0, 2.0, 1.0};  // behind: |-0.6 * 5| = 3
  EXPECT_DOUBLE_EQ(curvature(), -0.25 * (0.5 * 3.0));
}

TEST_F(CalcCurvature, ADryNeighbourCountsWithVelocityZero) {
  state = {3.0, 2.0, 2.0};  // u = v = 1, U^2 = 2
  for (Neighbour& neighbour : neighbours) neighbour.state = state;
  neighbours[0].state = {1.125, 2.0, 2.0};
  // du = dv = -1 times a, so u dv - v du vanishes; only a turn counts.
  EXPECT_EQ(curvature(), 0.0);
  neighbours[0].state = {3.0, 2.0, 0.0};
  EXPECT_NE(curvature(), 0.0);
}

TEST_F(CalcCurvature, ADepthAtTheMinimumStillFlows) {
  state = {1.25, 0.25, 0.0};  // u = 1
  neighbours[0].state = {1.25, 0.25, 0.125};
  neighbours[1].state = {1.25, 0.25, 0.0};
  neighbours[2].state = {1.25, 0.25, 0.0};
  EXPECT_EQ(curvature(), 0.5 * (0.5 * 2.0));
}

TEST_F(CalcCurvature, TakesAllNeighboursWeightsAndDirections) {
  state = {3.0, 1.0, 2.0};  // u = 0.5, v = 1
  const double u = 0.5;
  const double v = 1.0;
  const double U = std::sqrt(u * u + v * v);
  neighbours[0].state = {5.0, 4.0, -8.0};  // depth 4: (1, -2)
  neighbours[1].state = {2.0, 3.0, 1.0};   // depth 1: (3, 1)
  neighbours[2].state = {1.5, 0.25, 0.5};  // depth 0.5: (0.5, 1)
  const std::array<double, 3> a{std::fabs(1.0 * u * 2.0 / U),
                                std::fabs((-0.6 * u + 0.8 * v) * 5.0 / U),
                                std::fabs(-1.0 * v * 4.0 / U)};
  const std::array<double, 3> du{0.5 * a[0], 2.5 * a[1], 0.0};
  const std::array<double, 3> dv{-3.0 * a[0], 0.0, 0.0};
  const double dudx = 0.5 * du[0] - 0.25 * du[1];
  const double dudy = 0.25 * du[0] + 1.0 * du[1];
  const double dvdx = 0.5 * dv[0];
  const double dvdy = 0.25 * dv[0];
  const double turn = u * (u * dvdx - v * dudx) + v * (u * dvdy - v * dudy);
  EXPECT_NEAR(curvature(), turn / (U * U * U), 1e-14);
}

TEST_F(CalcCurvature, OfAVelocityNextToZeroIsZero) {
  state = {3.0, 1e-4, 0.0};  // U^3 is below 1e-12, U is not
  neighbours[0].state = {3.0, 1e-4, 1.0};
  EXPECT_EQ(curvature(), 0.0);
}

}  // namespace
