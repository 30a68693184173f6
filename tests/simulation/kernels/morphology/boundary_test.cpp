#include "simulation/kernels/morphology/boundary.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <initializer_list>
#include <limits>
#include <type_traits>

#include "simulation/kernels/RunParameters.h"
#include "simulation/loops/descriptions.h"

static_assert(
    std::is_same_v<decltype(kernels::morphology::boundary), loops::MorBoundaryFluxes::Body>);

namespace {

constexpr double NOTHING = std::numeric_limits<double>::quiet_NaN();

/// A cell of 8 m2 with its bed at 1 m and a depth of 4 m; an edge of 2 m, a time step of 0.5 s.
class MorBoundary : public support::Parameters {
 protected:
  double dt = 0.5;
  int sign = 1;
  std::array<double, 7> D{NOTHING, NOTHING, NOTHING, NOTHING, NOTHING, NOTHING, NOTHING};
  double length = 2.0;
  double surface = 5.0;
  double bed = 1.0;
  double chezy = 9.0;
  double area = 8.0;

  MorBoundary() {
    set(ParameterID::InvBedPorosity, 1.5);
    set(ParameterID::BedloadFactor, 2.0);
  }

  double flux(int code) const { return flux(code, &chezy); }
  double flux(int code, const double* chezyValue) const {
    const std::array<int, 2> type{code, sign};
    const std::array<double, 3> state{surface, NOTHING, NOTHING};
    double result = 99.0;
    // What the body does not need is not there.
    kernels::morphology::boundary(par(), &dt, type.data(), D.data(), nullptr, &length, state.data(),
                                  nullptr, &bed, nullptr, chezyValue, &area, nullptr, &result);
    return result;
  }
};

TEST_F(MorBoundary, RaisesALowerCellToTheElevation) {
  D[0] = 1.25;
  EXPECT_EQ(flux(400), -2.0);
}

TEST_F(MorBoundary, DoesNotRaiseACellAtOrAboveTheElevation) {
  D[0] = 1.0;
  EXPECT_EQ(flux(400), 0.0);
  D[0] = 0.75;
  EXPECT_EQ(flux(400), 0.0);
}

TEST_F(MorBoundary, LowersAHigherCellToTheElevation) {
  D[0] = 0.75;
  EXPECT_EQ(flux(402), 2.0);
}

TEST_F(MorBoundary, DoesNotLowerACellAtOrBelowTheElevation) {
  D[0] = 1.0;
  EXPECT_EQ(flux(402), 0.0);
  D[0] = 1.25;
  EXPECT_EQ(flux(402), 0.0);
}

TEST_F(MorBoundary, SetsElevationsWithoutTheFactorsOfTheFormulas) {
  set(ParameterID::InvBedPorosity, 0.0);
  set(ParameterID::BedloadFactor, 0.0);
  D[0] = 1.25;
  EXPECT_EQ(flux(400), -2.0);
  D[0] = 0.75;
  EXPECT_EQ(flux(402), 2.0);
}

TEST_F(MorBoundary, DividesByATimeStepOfZero) {
  dt = 0.0;
  D[0] = 1.25;
  EXPECT_EQ(flux(400), -std::numeric_limits<double>::infinity());
  D[0] = 0.75;
  EXPECT_EQ(flux(402), std::numeric_limits<double>::infinity());
}

TEST_F(MorBoundary, DividesNothingAtTheElevation) {
  dt = 0.0;
  D[0] = bed;
  EXPECT_EQ(flux(400), 0.0);
  EXPECT_EQ(flux(402), 0.0);
}

TEST_F(MorBoundary, DividesByALengthOfZero) {
  length = 0.0;
  D[0] = 1.25;
  EXPECT_EQ(flux(400), -std::numeric_limits<double>::infinity());
  D[0] = 0.75;
  EXPECT_EQ(flux(402), std::numeric_limits<double>::infinity());
}

TEST_F(MorBoundary, BringsInAGivenInflow) {
  D[1] = -0.25;
  EXPECT_EQ(flux(404), -0.75);  // -0.25 * 1.5 * 2
  EXPECT_EQ(flux(406), -3.0);   // times the depth of 4
  EXPECT_EQ(flux(408), -18.0);  // times 4 sqrt(9 * 4)
}

TEST_F(MorBoundary, TurnsTheStoredValueByTheSignOfTheEdge) {
  sign = -1;
  D[1] = 0.25;
  EXPECT_EQ(flux(404), -0.75);
  EXPECT_EQ(flux(406), -3.0);
  EXPECT_EQ(flux(408), -18.0);
}

TEST_F(MorBoundary, NeverTakesOutAGivenInflow) {
  for (const double value : {0.0, 0.25}) {
    for (const int code : {404, 406, 408}) {
      sign = 1;
      D[1] = value;
      EXPECT_EQ(flux(code), 0.0) << code;
      sign = -1;
      D[1] = -value;
      EXPECT_EQ(flux(code), 0.0) << code;
    }
  }
}

TEST_F(MorBoundary, BringsInAShareOfTheCapacity) {
  D[0] = 0.5;
  D[1] = 0.25;
  EXPECT_EQ(flux(410), -0.375);  // -(0.5 * 1.5 * 2) * 0.25
  EXPECT_EQ(flux(412), -1.5);    // times the depth of 4
  EXPECT_EQ(flux(414), -9.0);    // times 4 sqrt(9 * 4)
}

TEST_F(MorBoundary, KeepsTheSignOfAShareOfTheCapacity) {
  D[0] = 0.5;
  D[1] = -0.25;
  EXPECT_EQ(flux(410), 0.375);
  EXPECT_EQ(flux(412), 1.5);
  EXPECT_EQ(flux(414), 9.0);
}

TEST_F(MorBoundary, TakesSharesOfTheCapacityWhateverTheSignOfTheEdge) {
  sign = -1;
  D[0] = 0.5;
  D[1] = 0.25;
  EXPECT_EQ(flux(410), -0.375);
  EXPECT_EQ(flux(412), -1.5);
  EXPECT_EQ(flux(414), -9.0);
}

TEST_F(MorBoundary, WeighsADryCellWithZero) {
  surface = bed;
  D[0] = 0.5;
  D[1] = -0.25;
  for (const int code : {406, 408, 412, 414}) EXPECT_EQ(flux(code), 0.0) << code;
  EXPECT_EQ(flux(404), -0.75);
  EXPECT_EQ(flux(410), 0.375);
}

TEST_F(MorBoundary, HasNoConveyanceAtANegativeDepth) {
  surface = bed - 0.5;
  D[0] = 0.5;
  D[1] = -0.25;
  EXPECT_TRUE(std::isnan(flux(408)));
  EXPECT_TRUE(std::isnan(flux(414)));
  EXPECT_EQ(flux(406), 0.375);
}

TEST_F(MorBoundary, NeedsNoFrictionWithoutConveyance) {
  D[0] = 1.25;
  D[1] = -0.25;
  for (const int code : {400, 404, 406, 410, 412}) {
    EXPECT_NE(flux(code, nullptr), 0.0) << code;
  }
}

TEST_F(MorBoundary, LetsNothingPassForAnyOtherCode) {
  D[0] = 0.5;
  D[1] = -0.25;
  for (const int code : {0, 399, 401, 403, 405, 407, 409, 411, 413, 415, 416, 100, -404}) {
    EXPECT_EQ(flux(code), 0.0) << code;
  }
}

TEST_F(MorBoundary, RoundsTheElevationsInOrder) {
  bed = 0.47;
  D[0] = 0.52;
  area = 2.7;
  dt = 0.27;
  length = 2.1;
  EXPECT_EQ(flux(400), -0.23809523809523828);
  bed = 0.52;
  D[0] = 0.47;
  EXPECT_EQ(flux(402), 0.23809523809523828);
}

TEST_F(MorBoundary, MultipliesByPorosityAndFactorOneAfterTheOther) {
  set(ParameterID::InvBedPorosity, 1.0 / (1.0 - 0.37));
  set(ParameterID::BedloadFactor, 1.48);
  surface = 0.97;
  bed = 0.0;
  chezy = 62.7;
  D[0] = 0.12;
  D[1] = -0.0818;
  EXPECT_EQ(flux(404), -0.19216507936507937);
  EXPECT_EQ(flux(406), -0.186400126984127);
  EXPECT_EQ(flux(408), -1.453670045571942);
  EXPECT_EQ(flux(410), 0.023059809523809521);
  EXPECT_EQ(flux(412), 0.022368015238095233);
  EXPECT_EQ(flux(414), 0.17444040546863307);
}

}  // namespace
