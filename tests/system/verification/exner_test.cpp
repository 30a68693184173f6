#include "system/verification/exner.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <functional>

namespace verification {
namespace {

constexpr double g = 9.81;
constexpr double STEP = 1e-5;

double slope(const std::function<double(double)>& f, double at) {
  return (f(at + STEP) - f(at - STEP)) / (2.0 * STEP);
}

TEST(FallingBed, FulfilsTheEquationsOfMotionAndOfExner) {
  const FallingBed exact({.discharge = 1.0, .coefficient = 0.005, .porosity = 0.4, .gravity = g},
                         0.005, 0.005);
  for (const double x : {0.5, 3.0, 6.5}) {
    const double force = slope(
        [&exact](double at) {
          const double h = exact.depth(at);
          return exact.velocity(at) * exact.velocity(at) * h + 0.5 * g * h * h;
        },
        x);
    const double bedSlope = slope([&exact](double at) { return exact.bed(at, 2.0); }, x);
    EXPECT_NEAR(force, -g * exact.depth(x) * bedSlope, 1e-8) << x;
    EXPECT_DOUBLE_EQ(exact.depth(x) * exact.velocity(x), 1.0) << x;

    const double rise = slope([&exact, x](double t) { return exact.bed(x, t); }, 2.0);
    const double growth = slope([&exact](double at) { return exact.bedload(at); }, x);
    EXPECT_NEAR(0.6 * rise + growth, 0.0, 1e-8) << x;
    EXPECT_NEAR(exact.bedload(x), 0.005 * std::pow(exact.velocity(x), 3.0), 1e-16) << x;
  }
}

/// Froude number 0.6 in 1 m of water.
TravellingHump hump() {
  return {{.discharge = 0.6 * std::sqrt(g), .coefficient = 0.001, .porosity = 0.4, .gravity = g},
          1.0,
          0.05,
          10.0};
}

TEST(TravellingHump, IsInTheFlowOfEvenEnergy) {
  const TravellingHump exact = hump();
  EXPECT_NEAR(exact.velocity(0.0), 0.6 * std::sqrt(g), 1e-12);
  const double u = exact.velocity(0.05);
  const double depth = 0.6 * std::sqrt(g) / u;
  EXPECT_NEAR(0.5 * u * u + g * (depth + 0.05), 0.5 * 0.36 * g + g, 1e-12);
  EXPECT_LT(depth, 0.95);  // the surface is lower over the hump
}

TEST(TravellingHump, MovesHeightsAtTheSlopeOfTheBedload) {
  const TravellingHump exact = hump();
  for (const double bed : {0.0, 0.02, 0.05}) {
    const double derivative = slope([&exact](double z) { return exact.bedload(z); }, bed) / 0.6;
    EXPECT_NEAR(exact.speed(bed), derivative, 1e-6 * derivative) << bed;
  }
}

TEST(TravellingHump, BeginsInItsShapeAndMovesItsCrestAtTheSpeedOfTheCrest) {
  const TravellingHump exact = hump();
  for (const double x : {-6.0, -2.0, 0.0, 3.0, 5.0}) {
    EXPECT_NEAR(exact.bed(x, 0.0), exact.shape(x), 1e-12);
  }
  EXPECT_NEAR(exact.shape(0.0), 0.05, 1e-15);
  EXPECT_NEAR(exact.shape(2.5), 0.025, 1e-15);
  EXPECT_EQ(exact.shape(5.0), 0.0);
  EXPECT_NEAR(exact.bed(exact.speed(0.05) * 40.0, 40.0), 0.05, 1e-9);
}

TEST(TravellingHump, KeepsVolumeAndMovesItsCentreEvenlyUntilItBreaks) {
  const TravellingHump exact = hump();
  const double time = 0.9 * exact.breakingTime();
  double volume = 0.0;
  double moment = 0.0;
  const double step = 0.05;
  for (double x = -6.0; x < 15.0; x += step) {
    volume += step * exact.bed(x, time);
    moment += step * x * exact.bed(x, time);
  }
  EXPECT_NEAR(volume, 0.05 * 10.0 / 2.0, 1e-4);
  EXPECT_NEAR(moment / volume, exact.centreSpeed() * time, 1e-3);
}

TEST(TravellingHump, BreaksWhereTheFrontIsUpright) {
  const TravellingHump exact = hump();
  const auto steepest = [&exact](double t) {
    double least = 0.0;
    for (double x = 0.0; x < 15.0; x += 0.05) {
      least = std::min(least, (exact.bed(x + 0.05, t) - exact.bed(x, t)) / 0.05);
    }
    return -least;
  };
  EXPECT_LT(steepest(0.5 * exact.breakingTime()), 0.05);
  EXPECT_GT(steepest(0.999 * exact.breakingTime()), 0.1);
}

}  // namespace
}  // namespace verification
