#include "simulation/kernels/hydraulics/boundary.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <initializer_list>
#include <limits>
#include <type_traits>

#include "simulation/kernels/RunParameters.h"
#include "simulation/loops/descriptions.h"

static_assert(
    std::is_same_v<decltype(kernels::hydraulics::boundary), loops::HydBoundaryFluxes::Body>);

namespace {

using Flux = std::array<double, 5>;

constexpr double NOTHING = std::numeric_limits<double>::quiet_NaN();

/// A cell of 2 m depth over a bed at 1 m, so that its celerity is 4 m/s, at an edge that looks
/// along x; a neighbour of 1 m depth over a bed at 0.5 m. Boundary values that no test sets are
/// not numbers.
class HydBoundary : public support::Parameters {
 protected:
  HydBoundary() {
    set(ParameterID::Gravity, 8.0);
    set(ParameterID::MinWaterDepth, 0.25);
  }

  Flux flux(int code) const { return flux(code, &chezy); }
  Flux flux(int code, const double* chezyValue) const {
    const std::array<int, 2> type{code, sign};
    Flux result{9.0, 9.0, 9.0, 9.0, 9.0};
    kernels::hydraulics::boundary(par(), type.data(), D.data(), normal.data(), left.data(),
                                  right.data(), &bedLeft, &bedRight, chezyValue, &size,
                                  result.data());
    return result;
  }

  static double pressure(double surface, double bed) {
    return (0.5 * surface - bed) * (surface * 8.0);
  }
  Flux wall() const { return {0.0, pressure(left[0], bedLeft), 0.0, 0.0, 0.0}; }
  Flux innerWall() const {
    return {0.0, pressure(left[0], bedLeft), 0.0, -pressure(right[0], bedRight), -0.0};
  }

  /// What the Riemann solver gives against a ghost cell.
  Flux solved(const std::array<double, 3>& ghost, double ghostBed, int wetGhost) const {
    const int wet = left[0] - bedLeft > 0.25 ? 1 : 0;
    Flux result{};
    kernels::hydraulics::hydrodynamic_solver(par(), normal.data(), left.data(), &bedLeft, &wet,
                                             ghost.data(), &ghostBed, &wetGhost, result.data());
    return result;
  }

  void dryLeft() { left = {1.0, 0.0, 0.0}; }

  std::array<double, 2> normal{1.0, 0.0};
  std::array<double, 7> D{NOTHING, NOTHING, NOTHING, NOTHING, NOTHING, NOTHING, NOTHING};
  int sign = 1;
  std::array<double, 3> left{3.0, 4.0, 6.0};
  std::array<double, 3> right{1.5, 2.0, -1.0};
  double bedLeft = 1.0;
  double bedRight = 0.5;
  double chezy = 2.0;
  double size = 16.0;
};

// -- 100, 102: inflow -----------------------------------------------------------------------------

TEST_F(HydBoundary, InflowTakesTheDepthOfASubcriticalCell) {
  sign = -1;
  D[2] = 4.0;
  EXPECT_EQ(flux(100, nullptr), (Flux{-4.0, 8.0 + pressure(3.0, 1.0), 0.0, 0.0, 0.0}));
}

TEST_F(HydBoundary, InflowIntoADryCellComesAtNormalDepth) {
  dryLeft();
  D[1] = 0.125;  // hn^3 = 16 / (2 * 8 * 0.125) = 8
  D[2] = -4.0;
  EXPECT_EQ(flux(100), (Flux{-4.0, 8.0 + pressure(3.0, 1.0), 0.0, 0.0, 0.0}));
}

TEST_F(HydBoundary, InflowIntoASupercriticalCellComesAtNormalDepth) {
  left = {3.0, 16.0, 0.0};  // Fr = 2
  D[1] = 1.0;               // hn^3 = 16 / 16 = 1
  D[2] = -4.0;
  EXPECT_EQ(flux(100), (Flux{-4.0, 16.0 + pressure(2.0, 1.0), 0.0, 0.0, 0.0}));
}

TEST_F(HydBoundary, InflowAtAFroudeNumberOfOneTakesTheDepthOfTheCell) {
  left = {3.0, 8.0, 0.0};
  D[2] = -4.0;
  EXPECT_EQ(flux(100, nullptr)[1], 8.0 + pressure(3.0, 1.0));
}

TEST_F(HydBoundary, InflowAtANormalDepthBelowTheMinimumBringsNoMomentum) {
  dryLeft();
  D[1] = 64.0;  // hn^3 = v^2 / 1024 = 2^-18
  D[2] = -0.0625;
  const double depth = 0.015625;
  EXPECT_EQ(flux(100), (Flux{-0.0625, pressure(depth + 1.0, 1.0), 0.0, 0.0, 0.0}));
}

TEST_F(HydBoundary, InflowOfNothingIsAWall) {
  for (const double v : {0.0, 1.0}) {
    D[2] = v;
    EXPECT_EQ(flux(100, nullptr), wall()) << v;
    EXPECT_EQ(flux(102, nullptr), wall()) << v;
  }
}

TEST_F(HydBoundary, InflowBelowAFroudeNumberOfOneTakesTheDepthOfTheCell) {
  left = {3.0, 16.0, 0.0};  // the cell's own Froude number plays no part
  D[1] = 0.5;
  D[2] = -4.0;
  EXPECT_EQ(flux(102, nullptr), (Flux{-4.0, 8.0 + pressure(3.0, 1.0), 0.0, 0.0, 0.0}));
}

TEST_F(HydBoundary, InflowAtAFroudeNumberTakesTheDepthThatFollows) {
  set(ParameterID::MinWaterDepth, 0.125);
  D[1] = 2.0;
  D[2] = -1.0;
  const double depth = std::cbrt(1.0 / (4.0 * 8.0));
  const Flux result = flux(102, nullptr);
  EXPECT_EQ(result[0], -1.0);
  EXPECT_DOUBLE_EQ(result[1], 1.0 / depth + pressure(depth + 1.0, 1.0));
  D[1] = 1.0;  // from 1 on
  D[2] = -8.0;
  EXPECT_EQ(flux(102, nullptr)[1], 64.0 / 2.0 + pressure(3.0, 1.0));
}

// -- 104: outflow over a sloping ghost cell -------------------------------------------------------

TEST_F(HydBoundary, OutflowOverASlopeNeedsFlowOutOfTheCell) {
  D[0] = 0.125;
  for (const double qx : {0.0, -1.0}) {
    left[1] = qx;
    EXPECT_EQ(flux(104, nullptr), wall()) << qx;
  }
}

TEST_F(HydBoundary, SubcriticalOutflowOverASlopeMeetsNormalDepthDownTheSlope) {
  left = {3.0, 4.0, 0.0};  // hn^3 = 16 / (2 * 8 * 0.125) = 8; ghost bed 1 - 0.125 * 16 = -1
  D[0] = 0.125;
  EXPECT_EQ(flux(104), solved({1.0, 4.0, 0.0}, -1.0, 1));
}

TEST_F(HydBoundary, SupercriticalOutflowOverASlopeKeepsItsDepth) {
  left = {3.0, 16.0, 0.0};
  D[0] = 0.125;
  EXPECT_EQ(flux(104, nullptr), solved({1.0, 16.0, 0.0}, -1.0, 1));
}

// On level ground at normal depth the ghost cell is the cell: what flows through is u h and
// (0.5 * 3 - 1) * 3 * 8 + u^2 h.
TEST_F(HydBoundary, OutflowAtNormalDepthPassesAsItIs) {
  left = {3.0, 4.0, 0.0};  // hn = 2, u = 2
  D[0] = 0.125;
  size = 0.0;
  EXPECT_EQ(flux(104), (Flux{4.0, 12.0 + 8.0, 0.0, -20.0, 0.0}));
}

// All waves run out: the flux is that of the cell. The step of 2 m down to the ghost bed pushes the
// ghost cell, 0.5 * 8 * (3 + 1) * 2.
TEST_F(HydBoundary, SupercriticalOutflowOverASlopePassesAsItIs) {
  left = {3.0, 16.0, 0.0};  // u = 8, c = 4
  D[0] = 0.125;
  EXPECT_EQ(flux(104, nullptr), (Flux{16.0, 12.0 + 128.0, 0.0, -(140.0 + 32.0), 0.0}));
}

TEST_F(HydBoundary, OutflowOverASlopeFromAThinLayerKeepsItsDepth) {
  left = {1.125, 4.0, 0.0};
  D[0] = 0.125;
  EXPECT_EQ(flux(104, nullptr), solved({-0.875, 4.0, 0.0}, -1.0, 0));
}

TEST_F(HydBoundary, TheNormalDepthOfAnOutflowComesFromTheWholeDischarge) {
  left = {3.0, 3.0, 4.0};
  chezy = 25.0;  // hn^3 = 25 / (25 * 8 * 0.125) = 1
  D[0] = 0.125;
  EXPECT_EQ(flux(104), solved({0.0, 3.0, 4.0}, -1.0, 1));
}

// -- 106 and its like: outflow at a velocity ------------------------------------------------------

TEST_F(HydBoundary, OutflowWithPressureOnlyTakesVelocityTimesDepth) {
  D[3] = 3.0;
  for (const int code : {106, 108, 323, 325}) {
    EXPECT_EQ(flux(code, nullptr), (Flux{6.0, pressure(3.0, 1.0), 0.0, 0.0, 0.0})) << code;
  }
  sign = -1;
  for (const int code : {106, 108, 323, 325}) EXPECT_EQ(flux(code, nullptr), wall()) << code;
  D[3] = 0.0;
  for (const int code : {106, 108, 323, 325}) EXPECT_EQ(flux(code, nullptr), wall()) << code;
}

TEST_F(HydBoundary, OutflowWithMomentumCarriesTheTangentialVelocity) {
  D[1] = 3.0;  // Q = 6, Q^2 / h = 18, T = 6 * 6 / 2
  for (const int code : {110, 327}) {
    EXPECT_EQ(flux(code, nullptr), (Flux{6.0, 18.0 + pressure(3.0, 1.0), 18.0, 0.0, 0.0})) << code;
  }
  D[5] = 1.0;
  EXPECT_EQ(flux(329, nullptr), (Flux{2.0, 2.0 + pressure(3.0, 1.0), 6.0, 0.0, 0.0}));
}

TEST_F(HydBoundary, OutflowWithMomentumOfNothingIsAWall) {
  for (const double v : {0.0, -1.0}) {
    D[1] = v;
    D[5] = v;
    for (const int code : {110, 327, 329}) EXPECT_EQ(flux(code, nullptr), wall()) << code << v;
  }
}

TEST_F(HydBoundary, FreeOutflowLetsOutWhatTheCellHolds) {
  EXPECT_EQ(flux(112, nullptr), (Flux{4.0, 8.0 + pressure(3.0, 1.0), 12.0, 0.0, 0.0}));
  for (const double qx : {0.0, -1.0}) {
    left[1] = qx;
    EXPECT_EQ(flux(112, nullptr), wall()) << qx;
  }
}

TEST_F(HydBoundary, FreeOutflowFromAThinLayerHasNoMomentum) {
  left = {1.125, 4.0, 6.0};
  EXPECT_EQ(flux(112, nullptr), (Flux{4.0, pressure(1.125, 1.0), 0.0, 0.0, 0.0}));
}

TEST_F(HydBoundary, ASlantedEdgeTurnsTheMomentum) {
  normal = {0.0, -1.0};
  left = {3.0, 6.0, -4.0};  // qn = 4, qt = 6
  const double P = 8.0 + pressure(3.0, 1.0);
  EXPECT_EQ(flux(112, nullptr), (Flux{4.0, 12.0, -P, 0.0, 0.0}));
}

// -- 114, 331: imposed levels ---------------------------------------------------------------------

TEST_F(HydBoundary, AnImposedLevelTakesOutflowWithTheDischargeOfTheCell) {
  D[0] = 2.0;
  EXPECT_EQ(flux(114, nullptr), solved({2.0, 4.0, 6.0}, 1.0, 1));
}

TEST_F(HydBoundary, SupercriticalOutflowDoesNotFeelTheLevelOutside) {
  left = {3.0, 16.0, 0.0};  // u = 8, c = 4; outside u = 16 at 1 m: no wave comes back
  D[0] = 2.0;
  EXPECT_EQ(flux(114, nullptr), (Flux{16.0, 12.0 + 128.0, 0.0, -140.0, 0.0}));
  EXPECT_EQ(flux(331, nullptr), (Flux{16.0, 12.0 + 128.0, 0.0, -140.0, 0.0}));
}

// A dam break into a dry cell: h = 2, c = 4 outside. Fronts SL = -2 c = -8 and SR = c = 4, contact
// at -8; star depth 4 * 2 / 12 = 2/3. Mass 0 + 4 (2/3 - 2); momentum 12 + 4 (-8 * 2/3).
TEST_F(HydBoundary, AnImposedLevelFillsADryCellAsADamBreakDoes) {
  dryLeft();
  D[0] = 3.0;
  D[1] = 1.0;
  const Flux result = flux(114, nullptr);
  EXPECT_DOUBLE_EQ(result[0], -16.0 / 3.0);
  EXPECT_DOUBLE_EQ(result[1], 12.0 - 64.0 / 3.0);
  EXPECT_EQ(result[2], 0.0);
}

// Half of a rise comes in, since the water outside is at rest: with the level d above that of the
// cell at rest the mean celerity gives q = -c d / 2.
TEST_F(HydBoundary, AnImposedLevelLetsHalfOfASmallRiseIn) {
  left = {3.0, 0.0, 0.0};  // c = 4
  D[0] = 3.0 + 1e-6;
  D[1] = 1.0;
  EXPECT_NEAR(flux(114, nullptr)[0], -0.5 * 4.0 * 1e-6, 1e-11);
}

TEST_F(HydBoundary, AnImposedLevelWithoutInflowIsAWallForFlowInwards) {
  left[1] = -4.0;
  D[0] = 5.0;
  for (const double admits : {0.0, 2.0, -1.0}) {
    D[1] = admits;
    EXPECT_EQ(flux(114, nullptr), wall()) << admits;
  }
}

TEST_F(HydBoundary, AnImposedLevelWithInflowFeedsTheDomainFromRest) {
  left[1] = -4.0;
  D[0] = 5.0;
  D[1] = 1.0;
  EXPECT_EQ(flux(114, nullptr), solved({5.0, 0.0, 0.0}, 1.0, 1));
  EXPECT_LT(flux(114, nullptr)[0], 0.0);
}

TEST_F(HydBoundary, AnImposedLevelAtTheBedLetsOutOnly) {
  D[1] = 1.0;
  for (const double level : {1.25, 0.0}) {
    D[0] = level;
    left[1] = 4.0;
    EXPECT_EQ(flux(114, nullptr), solved({1.0, 4.0, 6.0}, 1.0, 0)) << level;
    left[1] = 0.0;
    EXPECT_EQ(flux(114, nullptr), wall()) << level;
  }
}

TEST_F(HydBoundary, OutflowAgainstALevelIsAWallForFlowInwards) {
  D[0] = 2.0;
  EXPECT_EQ(flux(331, nullptr), solved({2.0, 4.0, 6.0}, 1.0, 1));
  D[0] = 1.25;
  EXPECT_EQ(flux(331, nullptr), solved({1.25, 4.0, 6.0}, 1.0, 0));
  left[1] = 0.0;
  EXPECT_EQ(flux(331, nullptr), wall());
}

// -- 216, 218, 220: edges inside the domain -------------------------------------------------------

TEST_F(HydBoundary, AShutInnerEdgeIsAWallForBothCells) {
  D[1] = 0.0;
  for (const int code : {216, 218, 220}) EXPECT_EQ(flux(code, nullptr), innerWall()) << code;
  D[1] = -1.0;
  for (const int code : {216, 218, 220}) EXPECT_EQ(flux(code, nullptr), innerWall()) << code;
  D[1] = 1.0;
  EXPECT_EQ(flux(220, nullptr), innerWall());
}

TEST_F(HydBoundary, AnOpenGateIsAnEdgeLikeAnyOther) {
  D[1] = 1.0;
  EXPECT_EQ(flux(218, nullptr), solved(right, 0.5, 1));
  right = {0.625, 5.0, 5.0};  // 0.125 m, dry
  EXPECT_EQ(flux(218, nullptr), solved(right, 0.5, 0));
}

TEST_F(HydBoundary, AnOpenGateInUniformFlowIsNotThere) {
  left = {3.0, 4.0, 0.0};
  right = left;
  bedRight = bedLeft;
  D[1] = 1.0;
  EXPECT_EQ(flux(218, nullptr), (Flux{4.0, 12.0 + 8.0, 0.0, -20.0, 0.0}));
}

TEST_F(HydBoundary, ATransferFromLeftToRightTakesTheMomentumOfTheLeftCell) {
  D[1] = 3.0;  // Q = 6, Q^2 / h = 18, T = 18
  EXPECT_EQ(flux(216, nullptr),
            (Flux{6.0, 18.0 + pressure(3.0, 1.0), 18.0, -pressure(1.5, 0.5), -0.0}));
}

TEST_F(HydBoundary, ATransferFromRightToLeftTakesTheMomentumOfTheRightCell) {
  sign = -1;
  D[1] = 3.0;  // Q = -3 * 1, Q^2 / h = 9, T = -3 * -1
  EXPECT_EQ(flux(216, nullptr),
            (Flux{-3.0, pressure(3.0, 1.0), 0.0, -(9.0 + pressure(1.5, 0.5)), -3.0}));
}

TEST_F(HydBoundary, ATransferAcrossASlantedEdgeTurnsTheMomentum) {
  normal = {0.0, 1.0};
  D[1] = 3.0;  // qt = -4, T = 6 * -4 / 2
  EXPECT_EQ(flux(216, nullptr),
            (Flux{6.0, 12.0, 18.0 + pressure(3.0, 1.0), -0.0, -pressure(1.5, 0.5)}));
  sign = -1;  // right: qt = -2, T = -3 * -2
  EXPECT_EQ(flux(216, nullptr),
            (Flux{-3.0, 0.0, pressure(3.0, 1.0), 6.0, -(9.0 + pressure(1.5, 0.5))}));
}

// -- 322 and on: flows between linked strings -----------------------------------------------------

TEST_F(HydBoundary, InflowByVelocityAndDepthCarriesTheTangentialVelocity) {
  sign = -1;
  D[3] = 3.0;
  D[4] = 0.5;  // Q = -1.5, Q^2 / h = 1.125, T = -1.5 * 6 / 2
  for (const int code : {322, 324}) {
    EXPECT_EQ(flux(code, nullptr), (Flux{-1.5, 1.125 + pressure(3.0, 1.0), -4.5, 0.0, 0.0}))
        << code;
  }
  D[3] = 0.0;
  for (const int code : {322, 324}) EXPECT_EQ(flux(code, nullptr), wall()) << code;
}

TEST_F(HydBoundary, InflowsOfMassBringNoMomentum) {
  sign = -1;
  const Flux expected{-6.0, pressure(3.0, 1.0), 0.0, 0.0, 0.0};
  D[1] = 0.5;
  D[2] = 6.0;
  EXPECT_EQ(flux(326, nullptr), expected);
  D[5] = 2.0;
  D[6] = 3.0;
  EXPECT_EQ(flux(328, nullptr), expected);
  D[1] = 6.0;
  EXPECT_EQ(flux(330, nullptr), expected);
}

TEST_F(HydBoundary, InflowsOfMassOfNothingAreWalls) {
  D = {NOTHING, 0.0, -6.0, NOTHING, NOTHING, 0.0, 3.0};
  for (const int code : {326, 328, 330}) EXPECT_EQ(flux(code, nullptr), wall()) << code;
  D[1] = 1.0;
  D[5] = 1.0;
  for (const int code : {326, 328, 330}) EXPECT_EQ(flux(code, nullptr), wall()) << code;
}

TEST_F(HydBoundary, TheDirectionOfAnInflowIsNotThatOfItsAmount) {
  D[1] = -1.0;
  D[2] = 6.0;
  EXPECT_EQ(flux(326, nullptr)[0], 6.0);
}

TEST_F(HydBoundary, EveryUnknownCodeIsAWall) {
  D.fill(1.0);
  for (const int code : {999, 0, -1, 101, 105, 116, 214, 222, 321, 332}) {
    EXPECT_EQ(flux(code, nullptr), wall()) << code;
  }
}

}  // namespace
