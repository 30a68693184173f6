#include "simulation/kernels/morphology/calc_bed_gradient.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <type_traits>

#include "simulation/loops/descriptions.h"

static_assert(
    std::is_same_v<decltype(kernels::morphology::calc_bed_gradient), loops::CalcBedGradient::Body>);

namespace {

using Vector = std::array<double, 2>;
using Weights = std::array<double, 6>;

Vector gradientOf(double bed, const std::array<double, 3>& neighbours, const Weights& weights) {
  const std::array<const double*, 3> beds{&neighbours[0], &neighbours[1], &neighbours[2]};
  Vector gradient{99.0, 99.0};
  kernels::morphology::calc_bed_gradient(&bed, beds.data(), weights.data(), gradient.data());
  return gradient;
}

TEST(MorCalcBedGradient, IsZeroOnAHorizontalBed) {
  EXPECT_EQ(gradientOf(2.5, {2.5, 2.5, 2.5}, {1.0, 2.0, 3.0, 4.0, 5.0, 6.0}), (Vector{0.0, 0.0}));
}

TEST(MorCalcBedGradient, TakesOnePairOfWeightsPerNeighbour) {
  const Weights weights{1.0, 10.0, 2.0, 20.0, 4.0, 40.0};
  EXPECT_EQ(gradientOf(1.0, {1.5, 1.0, 1.0}, weights), (Vector{0.5, 5.0}));
  EXPECT_EQ(gradientOf(1.0, {1.0, 1.5, 1.0}, weights), (Vector{1.0, 10.0}));
  EXPECT_EQ(gradientOf(1.0, {1.0, 1.0, 1.5}, weights), (Vector{2.0, 20.0}));
}

TEST(MorCalcBedGradient, PointsUphill) {
  // Neighbours at (1, 0), (-1, 0) and (0, 1) on the plane z = 0.25 x - 0.5 y.
  const Weights weights{0.5, 0.0, -0.5, 0.0, 0.0, 1.0};
  EXPECT_EQ(gradientOf(0.0, {0.25, -0.25, -0.5}, weights), (Vector{0.25, -0.5}));
}

TEST(MorCalcBedGradient, SumsInTheOrderOfTheNeighbours) {
  const Vector gradient = gradientOf(0.2, {0.37, 0.11, 0.53}, {0.1, 0.7, -0.3, 0.2, 1.1, -0.9});
  EXPECT_EQ(gradient, (Vector{0.40700000000000003, -0.19600000000000006}));
}

TEST(MorCalcBedGradient, NeverYieldsANegativeZeroFromAFlatBed) {
  const Vector gradient = gradientOf(1.0, {1.0, 1.0, 1.0}, {-1.0, -1.0, -1.0, -1.0, -1.0, -1.0});
  EXPECT_FALSE(std::signbit(gradient[0]));
  EXPECT_FALSE(std::signbit(gradient[1]));
}

}  // namespace
