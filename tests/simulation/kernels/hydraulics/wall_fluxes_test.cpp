#include "simulation/kernels/hydraulics/wall_fluxes.h"

#include <gtest/gtest.h>

#include <array>
#include <type_traits>

#include "simulation/kernels/RunParameters.h"
#include "simulation/kernels/hydraulics/hydrodynamic_solver.h"
#include "simulation/loops/descriptions.h"

static_assert(
    std::is_same_v<decltype(kernels::hydraulics::wall_fluxes), loops::HydWallBFluxes::Body>);

namespace {

using Flux = std::array<double, 5>;

class WallFluxes : public support::Parameters {
 protected:
  WallFluxes() {
    set(ParameterID::Gravity, 8.0);
    set(ParameterID::MinWaterDepth, 0.125);
  }

  Flux flux() const {
    Flux result{9.0, 9.0, 9.0, 9.0, 9.0};
    kernels::hydraulics::wall_fluxes(par(), state.data(), &bed, normal.data(), result.data());
    return result;
  }

  std::array<double, 3> state{4.0, 0.0, 0.0};
  double bed = 1.0;
  std::array<double, 2> normal{0.5, -0.75};
};

TEST_F(WallFluxes, HoldNothingButThePressureOfTheCell) {
  // (0.5 * 4 - 1) * 4 * 8 = 32
  EXPECT_EQ(flux(), (Flux{0.0, 16.0, -24.0, 0.0, 0.0}));
}

TEST_F(WallFluxes, DoNotSeeTheDischarge) {
  state = {4.0, 7.0, -5.0};
  EXPECT_EQ(flux(), (Flux{0.0, 16.0, -24.0, 0.0, 0.0}));
}

TEST_F(WallFluxes, OfADryCellFollowTheSameFormula) {
  state = {1.0, 0.0, 0.0};  // (0.5 - 1) * 8 = -4
  EXPECT_EQ(flux(), (Flux{0.0, -2.0, 3.0, 0.0, 0.0}));
}

// What keeps a lake at rest still next to a wall: an edge between cells pushes just as hard.
TEST_F(WallFluxes, BalanceTheInnerEdgesOfALakeAtRest) {
  const int wet = 1;
  const double otherBed = 2.0;
  Flux inner{};
  kernels::hydraulics::hydrodynamic_solver(par(), normal.data(), state.data(), &bed, &wet,
                                           state.data(), &otherBed, &wet, inner.data());
  EXPECT_EQ(inner[0], 0.0);
  EXPECT_EQ(inner[1], flux()[1]);
  EXPECT_EQ(inner[2], flux()[2]);
}

}  // namespace
