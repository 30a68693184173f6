#include "system/verification/exact.h"

#include <gtest/gtest.h>

#include <cmath>

namespace verification {
namespace {

constexpr double EARTH = 9.81;

TEST(Ritter, HasFourNinthsOfTheDepthAtTheDamAtAllTimes) {
  const Ritter wave(9.0, EARTH);
  for (const double t : {0.1, 1.0, 50.0}) {
    EXPECT_NEAR(wave.at(0.0, t).depth, 4.0, 1e-14);
    EXPECT_NEAR(wave.at(0.0, t).velocity, 2.0 / 3.0 * std::sqrt(EARTH * 9.0), 1e-14);
  }
}

TEST(Ritter, ReachesFromOneCelerityBehindTheDamToTwoBeforeIt) {
  const Ritter wave(4.0, 4.0);  // celerity 4 m/s
  EXPECT_EQ(wave.frontSpeed(), 8.0);
  EXPECT_EQ(wave.at(-8.01, 2.0).depth, 4.0);
  EXPECT_EQ(wave.at(-8.01, 2.0).velocity, 0.0);
  EXPECT_LT(wave.at(-7.99, 2.0).depth, 4.0);
  EXPECT_GT(wave.at(15.99, 2.0).depth, 0.0);
  EXPECT_EQ(wave.at(16.01, 2.0).depth, 0.0);
  EXPECT_EQ(wave.at(16.01, 2.0).velocity, 0.0);
}

TEST(Ritter, HasAQuarterOfTheDepthHalfACelerityBeforeTheDam) {
  const Ritter wave(4.0, 4.0);
  EXPECT_NEAR(wave.at(4.0, 2.0).depth, 1.0, 1e-15);
  EXPECT_NEAR(wave.at(4.0, 2.0).velocity, 4.0, 1e-15);
}

// Found by solving for the speed of the bore instead of the depth behind it.
TEST(Stoker, AgreesWithTheTenToOneDamBreak) {
  const Stoker wave(10.0, 1.0, EARTH);
  EXPECT_NEAR(wave.middleDepth(), 3.961748167994428, 1e-12);
  EXPECT_NEAR(wave.middleVelocity(), 7.340769044034992, 1e-12);
  EXPECT_NEAR(wave.boreSpeed(), 9.819294775345174, 1e-12);
}

TEST(Stoker, IsRittersWaveAtTheDamIfTheWaterBeforeItIsBelowTheCriticalRatio) {
  constexpr double criticalRatio = 0.13827014109599195;
  EXPECT_NEAR(Stoker(1.0, criticalRatio, EARTH).middleDepth(), 4.0 / 9.0, 1e-14);
  EXPECT_NEAR(Stoker(1.0, 0.13, EARTH).at(0.0, 1.0).depth, 4.0 / 9.0, 1e-14);
  EXPECT_GT(Stoker(1.0, 0.15, EARTH).at(0.0, 1.0).depth, 4.0 / 9.0 + 1e-3);
}

TEST(Stoker, ConservesMassAndMomentumOverTheBore) {
  const Stoker wave(2.0, 0.3, EARTH);
  const double h = wave.middleDepth();
  const double u = wave.middleVelocity();
  EXPECT_NEAR(wave.boreSpeed() * (h - 0.3), h * u, 1e-13);
  EXPECT_NEAR(wave.boreSpeed() * h * u, h * u * u + 0.5 * EARTH * (h * h - 0.3 * 0.3), 1e-12);
}

TEST(Stoker, HasStillWaterOnBothSidesOfItsWavesAndNoStepAtTheRarefaction) {
  const Stoker wave(1.0, 0.1, EARTH);
  EXPECT_EQ(wave.at(-100.0, 1.0).depth, 1.0);
  EXPECT_EQ(wave.at(100.0, 1.0).depth, 0.1);
  EXPECT_EQ(wave.at(100.0, 1.0).velocity, 0.0);
  const double edge = wave.middleVelocity() - std::sqrt(EARTH * wave.middleDepth());
  EXPECT_NEAR(wave.at(edge - 1e-9, 1.0).depth, wave.middleDepth(), 1e-8);
  EXPECT_NEAR(wave.at(edge - 1e-9, 1.0).velocity, wave.middleVelocity(), 1e-8);
  EXPECT_EQ(wave.at(edge + 1e-9, 1.0).depth, wave.middleDepth());
}

}  // namespace
}  // namespace verification
