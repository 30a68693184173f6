#include "simulation/kernels/morphology/bedload_formulas.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "simulation/kernels/RunParameters.h"

namespace {

using kernels::morphology::bedload;
using kernels::morphology::BedloadCell;
using kernels::morphology::BedloadRate;
using kernels::morphology::grassBedload;
using kernels::morphology::inverseChezy;
using kernels::morphology::mpmBedload;
using kernels::morphology::powerLawBedload;

constexpr double NaN = std::numeric_limits<double>::quiet_NaN();

class MorBedloadFormulas : public support::Parameters {
 protected:
  /// A and B of A (T - Tc)^B.
  static void setPower(double A, double B) {
    set(ParameterID::BedloadCoeff, A);
    set(ParameterID::BedloadExpon, B);
  }
  static void setSediment(double gravity, double inverseGravity, double relativeDensity) {
    set(ParameterID::Gravity, gravity);
    set(ParameterID::InvGravity, inverseGravity);
    set(ParameterID::SedRelDensity, relativeDensity);
  }
};

TEST_F(MorBedloadFormulas, InverseChezyIsTheSmallestNormalNumberWithoutFriction) {
  const double chezy = 4.0;
  EXPECT_EQ(inverseChezy(0, nullptr), 2.2250738585072014e-308);
  EXPECT_EQ(inverseChezy(2, &chezy), 2.2250738585072014e-308);
  EXPECT_EQ(inverseChezy(1, &chezy), 0.25);
}

TEST_F(MorBedloadFormulas, InverseChezyIsZeroOnlyBelowTheTolerance) {
  double chezy = 1e-12;
  EXPECT_EQ(inverseChezy(1, &chezy), 1.0 / 1e-12);
  chezy = std::nextafter(chezy, 0.0);
  EXPECT_EQ(inverseChezy(1, &chezy), 0.0);
  chezy = -4.0;
  EXPECT_EQ(inverseChezy(1, &chezy), 0.0);
}

TEST_F(MorBedloadFormulas, GrassIsAPowerOfTheExcessVelocity) {
  setPower(2.0, 2.0);
  const BedloadRate rate = grassBedload(par(), {2.0, 0.5, NaN, NaN, 0.5});
  EXPECT_EQ(rate.capacity, 0.5);    // 2 * 0.5^2
  EXPECT_EQ(rate.derivative, 1.0);  // 2 * 2 * 0.5 * 0.5
}

TEST_F(MorBedloadFormulas, GrassIsZeroAtAndBelowTheThreshold) {
  for (const double B : {0.5, 1.0, 1.5, 3.0}) {
    setPower(2.0, B);
    EXPECT_EQ(grassBedload(par(), {1.0, 0.5, NaN, NaN, 0.5}).capacity, 0.0) << B;
    EXPECT_EQ(grassBedload(par(), {1.0, 0.5, NaN, NaN, 0.75}).capacity, 0.0) << B;
  }
}

TEST_F(MorBedloadFormulas, DerivativesAreZeroAtTheThresholdForEveryExponent) {
  setSediment(1.0, 1.0, 1.0);
  for (const double B : {-1.0, 0.0, 0.5, 1.0, 3.0}) {
    setPower(2.0, B);
    EXPECT_EQ(grassBedload(par(), {1.0, 0.5, NaN, NaN, 0.5}).derivative, 0.0) << B;
    EXPECT_EQ(mpmBedload(par(), {1.0, 1.0, 1.0, 1.0, 1.0}).derivative, 0.0) << B;
  }
}

TEST_F(MorBedloadFormulas, DerivativesAreNotCappedJustAboveTheThreshold) {
  setPower(2.0, 0.5);
  EXPECT_DOUBLE_EQ(grassBedload(par(), {4e-12, 1.0, NaN, NaN, 0.0}).derivative, 5e5);
  EXPECT_DOUBLE_EQ(grassBedload(par(), {1e-12, 1.0, NaN, NaN, 0.0}).derivative, 1e6);
  const double below = std::nextafter(1e-12, 0.0);
  EXPECT_EQ(grassBedload(par(), {below, 1.0, NaN, NaN, 0.0}).derivative, 0.0);
  EXPECT_GT(grassBedload(par(), {below, 1.0, NaN, NaN, 0.0}).capacity, 0.0);
}

TEST_F(MorBedloadFormulas, ACriticalValueThatIsNoNumberStopsTheTransport) {
  setPower(2.0, 1.5);
  setSediment(1.0, 1.0, 1.0);
  for (const BedloadRate rate : {grassBedload(par(), {3.0, 1.0, 1.0, 1.0, NaN}),
                                 mpmBedload(par(), {3.0, 1.0, 1.0, 1.0, NaN})}) {
    EXPECT_EQ(rate.capacity, 0.0);
    EXPECT_EQ(rate.derivative, 0.0);
  }
}

TEST_F(MorBedloadFormulas, PowerLawIsQuadraticInTheDischarge) {
  setSediment(NaN, 2.0, 4.0);
  // E = 2 * (0.05 * 2) * sqrt(4) / 0.5 = 0.8, Ec = 0.25 * 0.8 * 0.5 = 0.1
  const BedloadRate rate = powerLawBedload(par(), {2.0, 0.5, 0.25, 0.5, NaN});
  EXPECT_DOUBLE_EQ(rate.capacity, 0.1 * 4.0 / 32.0);
  EXPECT_DOUBLE_EQ(rate.derivative, 0.1 * 4.0 / 32.0);
  EXPECT_DOUBLE_EQ(powerLawBedload(par(), {4.0, 0.5, 0.25, 0.5, NaN}).capacity, 0.1 * 16.0 / 32.0);
}

TEST_F(MorBedloadFormulas, PowerLawUsesNeitherThresholdNorCoefficients) {
  setSediment(NaN, 2.0, 4.0);
  setPower(NaN, NaN);
  EXPECT_GT(powerLawBedload(par(), {2.0, 0.5, 0.25, 0.5, 1e9}).capacity, 0.0);
}

TEST_F(MorBedloadFormulas, PowerLawIsZeroOnlyForGrainsBelowTheTolerance) {
  setSediment(NaN, 2.0, 4.0);
  EXPECT_GT(powerLawBedload(par(), {2.0, 0.5, 0.25, 1e-12, NaN}).capacity, 0.0);
  const double below = std::nextafter(1e-12, 0.0);
  EXPECT_EQ(powerLawBedload(par(), {2.0, 0.5, 0.25, below, NaN}).capacity, 0.0);
  EXPECT_EQ(powerLawBedload(par(), {2.0, 0.5, 0.25, below, NaN}).derivative, 0.0);
}

TEST_F(MorBedloadFormulas, MpmIsAPowerOfTheExcessStress) {
  setSediment(2.0, 0.5, 2.0);
  setPower(3.0, 2.0);
  // E = sqrt(1 * 2 * 2) = 2, K1 = 0.5 * 0.5 / 2 = 0.125, t = 16 * 0.125 = 2, K2 = 8
  const BedloadRate rate = mpmBedload(par(), {4.0, 1.0, 0.5, 1.0, 0.5});
  EXPECT_EQ(rate.capacity, 13.5);    // 3 * 2 * 1.5^2
  EXPECT_EQ(rate.derivative, 18.0);  // 3 * 2 * 2 * 1.5 * 0.125 * 8
}

TEST_F(MorBedloadFormulas, MpmIsZeroAtAndBelowTheThreshold) {
  setSediment(1.0, 1.0, 1.0);
  for (const double B : {0.5, 1.0, 1.5, 3.0}) {
    setPower(2.0, B);
    EXPECT_EQ(mpmBedload(par(), {1.0, 1.0, 1.0, 1.0, 1.0}).capacity, 0.0) << B;
    EXPECT_EQ(mpmBedload(par(), {1.0, 1.0, 1.0, 1.0, 2.0}).capacity, 0.0) << B;
  }
}

TEST_F(MorBedloadFormulas, MpmVanishesWithoutFriction) {
  setSediment(9.81, 1.0 / 9.81, 1.65);
  setPower(8.0, 1.5);
  const BedloadRate rate = mpmBedload(par(), {5.0, 1.0, inverseChezy(0, nullptr), 0.01, 0.047});
  EXPECT_EQ(rate.capacity, 0.0);
  EXPECT_EQ(rate.derivative, 0.0);
}

TEST_F(MorBedloadFormulas, MpmIsNotGuardedAgainstGrainsWithoutSize) {
  setSediment(9.81, 1.0 / 9.81, 1.65);
  setPower(8.0, 1.5);
  EXPECT_TRUE(std::isnan(mpmBedload(par(), {5.0, 1.0, 0.01, 0.0, 0.047}).capacity));
}

TEST_F(MorBedloadFormulas, AllAreZeroWithoutDepth) {
  setSediment(1.0, 1.0, 1.0);
  setPower(2.0, 1.5);
  const BedloadCell cell{3.0, 0.0, 1.0, 1.0, 0.047};
  for (const BedloadRate rate :
       {grassBedload(par(), cell), powerLawBedload(par(), cell), mpmBedload(par(), cell)}) {
    EXPECT_EQ(rate.capacity, 0.0);
    EXPECT_EQ(rate.derivative, 0.0);
  }
}

TEST_F(MorBedloadFormulas, GrassMovesWithoutDepthBelowANegativeThreshold) {
  setPower(2.0, 1.0);
  EXPECT_EQ(grassBedload(par(), {3.0, 0.0, 1.0, 1.0, -0.5}).capacity, 1.0);
}

TEST_F(MorBedloadFormulas, DerivativesAreThoseOfTheCapacities) {
  setSediment(9.81, 1.0 / 9.81, 1.65);
  setPower(4.0, 1.5);
  const double q = 2.0;
  const double step = 1e-6;
  for (auto* const formula : {grassBedload, powerLawBedload, mpmBedload}) {
    const auto capacity = [formula](double discharge) {
      return formula(par(), {discharge, 1.25, 0.02, 0.01, 0.05}).capacity;
    };
    const double slope = (capacity(q + step) - capacity(q - step)) / (2.0 * step);
    EXPECT_NEAR(formula(par(), {q, 1.25, 0.02, 0.01, 0.05}).derivative, slope, 1e-6 * slope);
  }
}

TEST_F(MorBedloadFormulas, RoundInOrder) {
  setSediment(9.81, 1.0 / 9.81, 1.65);
  setPower(0.0037, 1.0);
  const BedloadRate grass = grassBedload(par(), {0.73, 1.0 / 0.37, NaN, NaN, 0.21});
  EXPECT_EQ(grass.capacity, 0.0065230000000000002);
  EXPECT_EQ(grass.derivative, 0.01);
  const BedloadRate power = powerLawBedload(par(), {0.73, 1.0 / 0.37, 1.0 / 83.7, 0.0123, NaN});
  EXPECT_EQ(power.capacity, 0.0054452492410258704);
  EXPECT_EQ(power.derivative, 0.014918491071303754);
  setPower(7.72, 1.0);
  const BedloadRate mpm = mpmBedload(par(), {0.98, 1.0 / 0.93, 1.0 / 52.9, 0.0197, 0.047});
  EXPECT_EQ(mpm.capacity, 0.0016169623446696427);
  EXPECT_EQ(mpm.derivative, 0.01153741301765839);
}

TEST_F(MorBedloadFormulas, AreChosenByTheType) {
  setSediment(9.81, 1.0 / 9.81, 1.65);
  setPower(4.0, 1.5);
  const BedloadCell cell{2.0, 1.25, 0.02, 0.01, 0.05};
  setInt(ParameterID::BeadloadType, 3);
  EXPECT_EQ(bedload(par(), cell).capacity, grassBedload(par(), cell).capacity);
  setInt(ParameterID::BeadloadType, 4);
  EXPECT_EQ(bedload(par(), cell).capacity, powerLawBedload(par(), cell).capacity);
  for (const int type : {-1, 0, 1, 2, 5}) {
    setInt(ParameterID::BeadloadType, type);
    EXPECT_EQ(bedload(par(), cell).capacity, mpmBedload(par(), cell).capacity) << type;
  }
}

}  // namespace
