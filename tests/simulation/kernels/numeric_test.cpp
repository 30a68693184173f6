#include "simulation/kernels/numeric.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <limits>

namespace {

using Limits = std::numeric_limits<double>;

constexpr std::array VALUES{-Limits::infinity(),
                            Limits::lowest(),
                            -1.0,
                            -Limits::min(),
                            -Limits::denorm_min(),
                            -0.0,
                            0.0,
                            Limits::denorm_min(),
                            Limits::min(),
                            1.0,
                            1.0 + Limits::epsilon(),
                            Limits::max(),
                            Limits::infinity(),
                            Limits::quiet_NaN(),
                            -Limits::quiet_NaN()};

/// Zeros of either sign count as equal, and so do NaN.
bool same(double a, double b) {
  return a == b || (std::isnan(a) && std::isnan(b));
}

TEST(Fmin, IsThatOfTheLibraryForAllSpecialValues) {
  for (const double x : VALUES) {
    for (const double y : VALUES) {
      EXPECT_TRUE(same(kernels::fmin(x, y), std::fmin(x, y))) << x << ' ' << y;
    }
  }
}

TEST(Fmax, IsThatOfTheLibraryForAllSpecialValues) {
  for (const double x : VALUES) {
    for (const double y : VALUES) {
      EXPECT_TRUE(same(kernels::fmax(x, y), std::fmax(x, y))) << x << ' ' << y;
    }
  }
}

TEST(Inverse, IsZeroBelowTheLimitAndForNegativeValues) {
  EXPECT_EQ(kernels::inverse(4.0), 0.25);
  EXPECT_EQ(kernels::inverse(1e-12), 1.0 / 1e-12);
  EXPECT_EQ(kernels::inverse(std::nextafter(1e-12, 0.0)), 0.0);
  EXPECT_EQ(kernels::inverse(0.0), 0.0);
  EXPECT_EQ(kernels::inverse(-4.0), 0.0);
}

TEST(InverseOfAbsolute, IsZeroNextToZeroOnly) {
  EXPECT_EQ(kernels::inverseOfAbsolute(4.0), 0.25);
  EXPECT_EQ(kernels::inverseOfAbsolute(-4.0), -0.25);
  EXPECT_EQ(kernels::inverseOfAbsolute(-1e-12), -1.0 / 1e-12);
  EXPECT_EQ(kernels::inverseOfAbsolute(std::nextafter(-1e-12, 0.0)), 0.0);
  EXPECT_EQ(kernels::inverseOfAbsolute(0.0), 0.0);
}

TEST(InverseDepth, IsZeroBelowTheMinimumAndNotAtIt) {
  EXPECT_EQ(kernels::inverseDepth(0.5, 0.5), 2.0);
  EXPECT_EQ(kernels::inverseDepth(std::nextafter(0.5, 0.0), 0.5), 0.0);
  EXPECT_EQ(kernels::inverseDepth(-1.0, 0.5), 0.0);
}

}  // namespace
