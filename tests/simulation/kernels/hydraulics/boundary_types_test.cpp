#include "simulation/kernels/hydraulics/boundary_types.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>

#include "simulation/kernels/RunParameters.h"

namespace {

using Flux = std::array<double, 5>;
namespace hydraulics = kernels::hydraulics;

class BoundaryTypes : public support::Parameters {
 protected:
  BoundaryTypes() {
    set(ParameterID::Gravity, 8.0);
    set(ParameterID::MinWaterDepth, 0.25);
  }

  static hydraulics::BoundaryCell cell(double H, double qx, double qy, double z) {
    const std::array<double, 2> normal{0.0, 1.0};
    const std::array<double, 3> state{H, qx, qy};
    return hydraulics::boundaryCell(normal.data(), state.data(), z);
  }
};

TEST_F(BoundaryTypes, ACellIsSeenInTheFrameOfTheEdge) {
  const hydraulics::BoundaryCell seen = cell(3.0, 3.0, 4.0, 1.0);
  EXPECT_EQ(seen.H, 3.0);
  EXPECT_EQ(seen.z, 1.0);
  EXPECT_EQ(seen.h, 2.0);
  EXPECT_EQ(seen.qn, 4.0);
  EXPECT_EQ(seen.qt, -3.0);
  EXPECT_EQ(seen.q, 5.0);
}

TEST_F(BoundaryTypes, PressureIsThatOfTheSurfaceOverTheBed) {
  EXPECT_EQ(hydraulics::hydrostaticPressure(par(), 4.0, 1.0), (2.0 - 1.0) * (4.0 * 8.0));
}

TEST_F(BoundaryTypes, TheFroudeNumberIsSpeedOverCelerity) {
  EXPECT_EQ(hydraulics::froudeNumber(par(), cell(3.0, 3.0, 4.0, 1.0)), 5.0 / (4.0 * 2.0));
}

TEST_F(BoundaryTypes, TheFroudeNumberOfNoDepthIsZero) {
  EXPECT_EQ(hydraulics::froudeNumber(par(), cell(1.0, 3.0, 4.0, 1.0)), 0.0);
  EXPECT_EQ(hydraulics::froudeNumber(par(), cell(0.0, 3.0, 4.0, 1.0)), 0.0);
}

TEST_F(BoundaryTypes, TheNormalDepthHasNoSign) {
  EXPECT_EQ(hydraulics::normalDepth(par(), 4.0, 2.0, 0.125), 2.0);
  EXPECT_EQ(hydraulics::normalDepth(par(), -4.0, 2.0, 0.125), 2.0);
}

TEST_F(BoundaryTypes, ADepthBelowTheMinimumHasNoInverse) {
  EXPECT_EQ(hydraulics::inverseWetDepth(par(), 0.25), 4.0);
  EXPECT_EQ(hydraulics::inverseWetDepth(par(), std::nextafter(0.25, 0.0)), 0.0);
}

TEST_F(BoundaryTypes, AOneSidedFluxIsTurnedIntoTheAxesAndSparesTheRightCell) {
  const std::array<double, 2> normal{0.5, -0.25};
  Flux flux{9.0, 9.0, 9.0, 9.0, 9.0};
  hydraulics::oneSidedFlux(normal.data(), 3.0, 8.0, 4.0, flux.data());
  EXPECT_EQ(flux, (Flux{3.0, 0.5 * 8.0 + 0.25 * 4.0, -0.25 * 8.0 + 0.5 * 4.0, 0.0, 0.0}));
}

}  // namespace
