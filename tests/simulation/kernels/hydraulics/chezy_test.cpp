#include "simulation/kernels/hydraulics/chezy.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "simulation/kernels/RunParameters.h"

namespace {

using namespace kernels::hydraulics;

class Chezy : public support::Parameters {
 protected:
  Chezy() {
    set(ParameterID::InvGravity, 0.125);
    set(ParameterID::MinWaterDepth, 0.001);
  }
};

TEST_F(Chezy, ManningDividesTwiceByTheValue) {
  EXPECT_DOUBLE_EQ(chezyManning(par(), 8.0, 0.5), 1.0);    // 0.125 * 2 * 2 * 2
  EXPECT_DOUBLE_EQ(chezyManning(par(), 27.0, 0.25), 6.0);  // 0.125 * 3 * 4 * 4
}

TEST_F(Chezy, ManningMultipliesByInversesFromLeftToRight) {
  const volatile double depth = 0.7;
  volatile double product = 0.125 * std::cbrt(depth);
  product = product * (1.0 / 0.031);
  product = product * (1.0 / 0.031);
  EXPECT_EQ(chezyManning(par(), depth, 0.031), product);
}

TEST_F(Chezy, StricklerMultipliesFromLeftToRight) {
  const volatile double depth = 0.8;
  volatile double product = 0.125 * std::cbrt(depth);
  product = product * 29.2;
  product = product * 29.2;
  EXPECT_EQ(chezyStrickler(par(), depth, 29.2), product);
}

TEST_F(Chezy, ManningWithoutRoughnessIsZero) {
  EXPECT_EQ(chezyManning(par(), 8.0, 0.0), 0.0);
  EXPECT_EQ(chezyManning(par(), 8.0, 9e-13), 0.0);
  EXPECT_GT(chezyManning(par(), 8.0, 1e-12), 0.0);
  EXPECT_EQ(chezyManning(par(), 8.0, -0.5), 0.0);
}

TEST_F(Chezy, StricklerMultipliesTwiceByTheValue) {
  EXPECT_DOUBLE_EQ(chezyStrickler(par(), 8.0, 30.0), 225.0);  // 0.125 * 2 * 30 * 30
  EXPECT_EQ(chezyStrickler(par(), 8.0, 0.0), 0.0);
}

TEST_F(Chezy, ManningAndStricklerSeeAtLeastTheMinimumDepth) {
  set(ParameterID::MinWaterDepth, 0.125);
  EXPECT_DOUBLE_EQ(chezyManning(par(), 0.0, 1.0), 0.0625);
  EXPECT_DOUBLE_EQ(chezyManning(par(), -3.0, 1.0), 0.0625);
  EXPECT_DOUBLE_EQ(chezyStrickler(par(), 0.1, 2.0), 0.25);
  EXPECT_DOUBLE_EQ(chezyStrickler(par(), -3.0, 2.0), 0.25);
}

TEST_F(Chezy, ANumberBeatsADepthThatIsNone) {
  set(ParameterID::MinWaterDepth, 0.125);
  EXPECT_DOUBLE_EQ(chezyManning(par(), std::numeric_limits<double>::quiet_NaN(), 1.0), 0.0625);
}

TEST_F(Chezy, LogarithmicLawAboveTheRoughness) {
  // 5.75 * log10(120) = 5.75 * 2.0791812460 = 11.9552921648
  EXPECT_DOUBLE_EQ(chezyLogarithmic(1.0, 0.1), 142.92901074510283);
}

TEST_F(Chezy, LogarithmicLawIsConstantFromTheRoughnessDown) {
  // 5.75 * log10(12) = 5.75 * 1.0791812460 = 6.2052921648, whose square is 38.5056508502; the
  // constant is the established one.
  EXPECT_EQ(chezyLogarithmic(0.1, 0.1), 38.505650853010394);
  EXPECT_EQ(chezyLogarithmic(0.01, 0.1), 38.505650853010394);
  EXPECT_EQ(chezyLogarithmic(-0.01, 0.1), 38.505650853010394);
  EXPECT_EQ(chezyLogarithmic(0.0, 0.0), 38.505650853010394);
}

TEST_F(Chezy, LogarithmicLawJustAboveTheRoughnessIsComputed) {
  const double above = chezyLogarithmic(std::nextafter(1.0, 2.0), 1.0);
  EXPECT_NE(above, 38.505650853010394);
  EXPECT_DOUBLE_EQ(above, 38.505650850203651);
}

TEST_F(Chezy, RoughLayerHasThreeRanges) {
  // 2.5 * sqrt(1 - 1/4) * (ln 4 + 2.388762789) = 2.1650635095 * 3.7750571501 = 8.1732384819
  EXPECT_DOUBLE_EQ(chezyRoughLayer(4.0, 1.0), 66.801827281271741);
  EXPECT_DOUBLE_EQ(chezyRoughLayer(2.25, 1.0), 35.548733776494096);
  EXPECT_DOUBLE_EQ(chezyRoughLayer(3.0, 1.0), 50.674103884752718);
  // 1.25 * 1 * (0 + 2.388762789) = 2.9859534862
  EXPECT_DOUBLE_EQ(chezyRoughLayer(1.0, 1.0), 8.9159182220485267);
  EXPECT_EQ(chezyRoughLayer(0.25, 1.0), 2.25);
}

TEST_F(Chezy, RoughLayerTakesTheMiddleRowAtBothOfItsEnds) {
  // 1.25 * sqrt(2) * (0.6931471806 + 2.388762789) = 1.7677669530 * 3.0819099696 = 5.4480985962
  EXPECT_DOUBLE_EQ(chezyRoughLayer(2.0, 1.0), 29.681778313978072);
  // 1.25 * sqrt(0.5) * (-0.6931471806 + 2.388762789) = 0.8838834765 * 1.6956156084 = 1.4987266188
  EXPECT_DOUBLE_EQ(chezyRoughLayer(0.5, 1.0), 2.2461814778011999);
  EXPECT_EQ(chezyRoughLayer(std::nextafter(0.5, 0.0), 1.0), 2.25);
}

TEST_F(Chezy, RoughLayerOfNoOrNegativeRelativeDepthIsTheSmallestRow) {
  EXPECT_EQ(chezyRoughLayer(0.0, 1.0), 2.25);
  EXPECT_EQ(chezyRoughLayer(-1.0, 1.0), 2.25);
  EXPECT_EQ(chezyRoughLayer(1.0, 0.0), 2.25);
}

TEST_F(Chezy, FrictionTypeChoosesTheClosure) {
  setInt(ParameterID::FrictionType, 1);
  EXPECT_EQ(chezySquared(par(), 8.0, 0.5), chezyManning(par(), 8.0, 0.5));
  setInt(ParameterID::FrictionType, 2);
  EXPECT_EQ(chezySquared(par(), 8.0, 0.5), chezyStrickler(par(), 8.0, 0.5));
  setInt(ParameterID::FrictionType, 3);
  EXPECT_EQ(chezySquared(par(), 8.0, 0.5), chezyLogarithmic(8.0, 0.5));
  setInt(ParameterID::FrictionType, 4);
  EXPECT_EQ(chezySquared(par(), 8.0, 0.5), chezyRoughLayer(8.0, 0.5));
}

TEST_F(Chezy, UnknownFrictionTypeGivesZero) {
  for (const int type : {-1, 0, 5, 100}) {
    setInt(ParameterID::FrictionType, type);
    EXPECT_EQ(chezySquared(par(), 8.0, 0.5), 0.0) << type;
  }
}

}  // namespace
