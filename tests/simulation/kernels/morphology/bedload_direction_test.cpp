#include "simulation/kernels/morphology/bedload_direction.h"

#include <gtest/gtest.h>

#include <cmath>

#include "simulation/kernels/RunParameters.h"

namespace {

using kernels::morphology::curvatureDeviation;
using kernels::morphology::Direction;
using kernels::morphology::lateralSlopeDeviation;
using kernels::morphology::lateralStress;
using kernels::morphology::turned;

class MorBedloadDirection : public support::Parameters {
 protected:
  MorBedloadDirection() {
    setInt(ParameterID::BedloadInts, 0, 1);
    setInt(ParameterID::BedloadInts, 1, 1);
  }
};

TEST_F(MorBedloadDirection, LateralStressWeighsWithTheInverseOfGravity) {
  set(ParameterID::Gravity, 1e9);
  set(ParameterID::InvGravity, 0.5);
  set(ParameterID::SedRelDensity, 4.0);
  EXPECT_EQ(lateralStress(par(), 4.0, 0.5, 0.25, 0.125), 4.0);  // 16 * 0.25 * 0.25 / 0.25
}

TEST_F(MorBedloadDirection, LateralStressIsZeroOnlyForAWeightBelowTheTolerance) {
  set(ParameterID::InvGravity, 1.0);
  set(ParameterID::SedRelDensity, 1.0);
  EXPECT_DOUBLE_EQ(lateralStress(par(), 1.0, 1.0, 1.0, 1e-12), 1e12);
  EXPECT_EQ(lateralStress(par(), 1.0, 1.0, 1.0, std::nextafter(1e-12, 0.0)), 0.0);
}

TEST_F(MorBedloadDirection, LateralStressRoundsInOrder) {
  set(ParameterID::InvGravity, 1.0 / 9.81);
  set(ParameterID::SedRelDensity, 1.65);
  EXPECT_EQ(lateralStress(par(), 0.73, 1.0 / 0.37, 1.0 / 83.7, 0.0123), 22.480023755886553);
}

TEST_F(MorBedloadDirection, CurvatureDeviatesByDepthOverRadius) {
  set(ParameterID::BedloadCurvature, 8.0);
  EXPECT_EQ(curvatureDeviation(par(), 0.5, 0.125), 0.5);
  EXPECT_EQ(curvatureDeviation(par(), 0.5, -0.125), -0.5);
}

TEST_F(MorBedloadDirection, CurvatureCountsOnlyIfItsSwitchIsOne) {
  set(ParameterID::BedloadCurvature, 8.0);
  for (const int value : {0, 2, -1}) {
    setInt(ParameterID::BedloadInts, 1, value);
    EXPECT_EQ(curvatureDeviation(par(), 0.5, 0.125), 0.0) << value;
  }
}

TEST_F(MorBedloadDirection, LateralSlopeDeviatesDownslope) {
  set(ParameterID::BedloadIkeda, 0.5);
  EXPECT_EQ(lateralSlopeDeviation(par(), 0.25, 4.0), -0.0625);
  EXPECT_EQ(lateralSlopeDeviation(par(), -0.25, 4.0), 0.0625);
}

/// The formula is f / sqrt(t) times the slope, with the Shields parameter t.
TEST_F(MorBedloadDirection, LateralSlopeTakesTheFactorOfTheLiteratureTimesGravity) {
  set(ParameterID::InvGravity, 1.0 / 9.81);
  set(ParameterID::SedRelDensity, 1.65);
  set(ParameterID::BedloadIkeda, 0.5 * 9.81);
  const double q = 1.5;
  const double depth = 1.25;
  const double chezySquared = 150.0;
  const double grainSize = 0.004;
  const double shields =
      q * q / (depth * depth) / chezySquared / (1.65 * 9.81 * grainSize);  // 0.148
  const double stress = lateralStress(par(), q, 1.0 / depth, 1.0 / chezySquared, grainSize);
  EXPECT_NEAR(lateralSlopeDeviation(par(), 0.02, stress), -0.5 / std::sqrt(shields) * 0.02, 1e-15);
}

TEST_F(MorBedloadDirection, LateralSlopeCountsOnlyIfItsSwitchIsOne) {
  set(ParameterID::BedloadIkeda, 0.5);
  for (const int value : {0, 2, -1}) {
    setInt(ParameterID::BedloadInts, 0, value);
    EXPECT_EQ(lateralSlopeDeviation(par(), 0.25, 4.0), 0.0) << value;
  }
}

TEST_F(MorBedloadDirection, LateralSlopeIsZeroOnlyForARootOfTheStressBelowTheTolerance) {
  set(ParameterID::BedloadIkeda, 0.5);
  ASSERT_EQ(std::sqrt(1e-24), 1e-12);
  EXPECT_DOUBLE_EQ(lateralSlopeDeviation(par(), 0.25, 1e-24), -0.125e12);
  EXPECT_EQ(lateralSlopeDeviation(par(), 0.25, 0.99e-24), 0.0);
  EXPECT_EQ(lateralSlopeDeviation(par(), 0.25, 0.0), 0.0);
}

TEST_F(MorBedloadDirection, DeviationsRoundInOrder) {
  set(ParameterID::BedloadCurvature, 7.0);
  set(ParameterID::BedloadIkeda, 0.4);
  EXPECT_EQ(curvatureDeviation(par(), 0.94, -0.0374), -0.24609200000000003);
  EXPECT_EQ(lateralSlopeDeviation(par(), -0.152, 19.35), 0.013821751946601596);
}

TEST_F(MorBedloadDirection, ATangentOfZeroKeepsTheFlowDirection) {
  const Direction direction = turned({0.6, 0.8}, 0.0);
  EXPECT_EQ(direction.x, 0.6);
  EXPECT_EQ(direction.y, 0.8);
}

TEST_F(MorBedloadDirection, APositiveTangentTurnsToTheLeft) {
  const Direction direction = turned({1.0, 0.0}, 0.75);
  EXPECT_DOUBLE_EQ(direction.x, 0.8);
  EXPECT_DOUBLE_EQ(direction.y, 0.6);
}

TEST_F(MorBedloadDirection, WhatDoesNotFlowIsNotTurned) {
  const Direction direction = turned({0.0, 0.0}, 0.75);
  EXPECT_EQ(direction.x, 0.0);
  EXPECT_EQ(direction.y, 0.0);
}

TEST_F(MorBedloadDirection, TurningRoundsInOrder) {
  const Direction direction = turned({0.6, 0.8}, 0.046329755242763296);
  EXPECT_EQ(direction.x, 0.56233301052582585);
  EXPECT_EQ(direction.y, 0.82691086900158806);
}

}  // namespace
