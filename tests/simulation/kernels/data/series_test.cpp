#include "simulation/kernels/data/series.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <cstddef>
#include <limits>
#include <vector>

namespace {

using kernels::data::firstPointAbove;
using kernels::data::seriesValue;
using model::MISSING_VALUE;
using model::SERIES_VALUES;

// Points (1, 10), (2, 30), (4, 20), then the end.
const std::array<double, 10> threePoints{1.0,  10.0,          2.0, 30.0,          4.0,
                                         20.0, MISSING_VALUE, 0.0, MISSING_VALUE, 0.0};

double at(double x) {
  return seriesValue(threePoints.data(), 6, x);
}

TEST(Series, TheMissingValueIsTheSmallestNormalDouble) {
  EXPECT_EQ(MISSING_VALUE, 2.2250738585072014e-308);
}

TEST(Series, IsConstantBeforeTheFirstPoint) {
  EXPECT_EQ(at(-5.0), 10.0);
  EXPECT_EQ(at(0.0), 10.0);
  EXPECT_EQ(at(1.0), 10.0);
}

TEST(Series, IsConstantBehindTheLastPoint) {
  EXPECT_EQ(at(4.0), 20.0);
  EXPECT_EQ(at(4.5), 20.0);
  EXPECT_EQ(at(1e300), 20.0);
}

TEST(Series, IsLinearBetweenThePoints) {
  EXPECT_EQ(at(1.25), 15.0);
  EXPECT_EQ(at(1.75), 25.0);
  EXPECT_EQ(at(3.0), 25.0);
}

TEST(Series, AnInnerPointHasItsOwnValue) {
  EXPECT_EQ(at(2.0), 30.0);
}

TEST(Series, AnInnerPointBelongsToTheIntervalBehindIt) {
  EXPECT_EQ(firstPointAbove(threePoints.data(), 3, 2.0), 2);
  EXPECT_EQ(firstPointAbove(threePoints.data(), 3, 1.999), 1);
  EXPECT_EQ(firstPointAbove(threePoints.data(), 3, 4.0), 3);
}

TEST(Series, OfOnePointIsConstant) {
  const std::array<double, 4> row{3.0, 7.0, MISSING_VALUE, 0.0};
  for (const double x : {-1.0, 0.0, 3.0, 3.5, 1e9}) EXPECT_EQ(seriesValue(row.data(), 2, x), 7.0);
}

TEST(Series, AnOddSizeIsRoundedDownToWholePoints) {
  EXPECT_EQ(seriesValue(threePoints.data(), 7, 3.0), 25.0);
}

TEST(Series, AnEndMarkBeforeTheSizeEndsTheSeries) {
  EXPECT_EQ(firstPointAbove(threePoints.data(), 5, 9.0), 3);
  EXPECT_EQ(seriesValue(threePoints.data(), 10, 3.0), 25.0);
  EXPECT_EQ(seriesValue(threePoints.data(), 10, 9.0), 20.0);
}

TEST(Series, WithoutEndMarkBehindItsSizeRunsToTheNextPair) {
  EXPECT_EQ(seriesValue(threePoints.data(), 4, 3.0), 25.0);
}

TEST(Series, CloseAbscissaeGiveTheLeftOrdinate) {
  std::array<double, 6> row{0.0, 10.0, 5e-13, 30.0, MISSING_VALUE, 0.0};
  EXPECT_EQ(seriesValue(row.data(), 4, 4e-13), 10.0);
  row[2] = 1e-12;
  EXPECT_DOUBLE_EQ(seriesValue(row.data(), 4, 5e-13), 20.0);
}

TEST(Series, AStepHoldsTheRightValueFromItsAbscissaOn) {
  const std::array<double, 10> row{0.0, 1.0, 2.0, 1.0, 2.0, 5.0, 3.0, 5.0, MISSING_VALUE, 0.0};
  EXPECT_EQ(seriesValue(row.data(), 8, 1.5), 1.0);
  EXPECT_EQ(seriesValue(row.data(), 8, 2.0), 5.0);
  EXPECT_EQ(seriesValue(row.data(), 8, 2.5), 5.0);
}

TEST(Series, NegativeAbscissaeAreFound) {
  const std::array<double, 6> row{-4.0, 8.0, -2.0, 4.0, MISSING_VALUE, 0.0};
  EXPECT_EQ(seriesValue(row.data(), 4, -3.0), 6.0);
  EXPECT_EQ(seriesValue(row.data(), 4, 0.0), 4.0);
}

TEST(Series, AStepAtItsStartHoldsTheFirstValueThere) {
  const std::array<double, 8> row{2.0, 1.0, 2.0, 5.0, 3.0, 5.0, MISSING_VALUE, 0.0};
  EXPECT_EQ(seriesValue(row.data(), 6, 2.0), 1.0);
  EXPECT_EQ(seriesValue(row.data(), 6, 2.5), 5.0);
}

TEST(Series, KeepsTheOrderOfItsOperations) {
  const std::array<double, 6> row{0.1, 0.0, 1.2, 1.8, MISSING_VALUE, 0.0};
  const volatile double dx = 1.2 - 0.1;
  const volatile double dy = 1.8 - 0.0;
  const volatile double slope = (1.0 / dx) * dy;
  const volatile double rise = (0.68 - 0.1) * slope;
  EXPECT_EQ(seriesValue(row.data(), 4, 0.68), rise + 0.0);
}

TEST(Series, EveryIntervalOfAFullRowIsFound) {
  std::vector<double> row(std::size_t{SERIES_VALUES});
  const int points = SERIES_VALUES / 2;
  for (std::size_t k = 0; k < row.size() / 2; ++k) {
    row[2 * k] = static_cast<double>(k);
    row[2 * k + 1] = static_cast<double>(3 * k);
  }
  for (int k = 0; k + 1 < points; ++k) {
    ASSERT_EQ(firstPointAbove(row.data(), points, k + 0.5), k + 1);
    ASSERT_EQ(seriesValue(row.data(), SERIES_VALUES, k + 0.5), 3.0 * k + 1.5);
  }
}

}  // namespace
