#include "simulation/kernels/hydraulics/internal_fluxes.h"

#include <gtest/gtest.h>

#include <array>
#include <type_traits>

#include "simulation/kernels/RunParameters.h"
#include "simulation/loops/descriptions.h"

static_assert(
    std::is_same_v<decltype(kernels::hydraulics::internal_fluxes), loops::HydInternalFluxes::Body>);

namespace {

class InternalFluxes : public support::Parameters {};

TEST_F(InternalFluxes, AreThoseOfTheSolverForTheTwoCells) {
  set(ParameterID::Gravity, 9.81);
  set(ParameterID::MinWaterDepth, 0.001);
  const std::array<double, 2> normal{0.6, -0.8};
  const std::array<double, 3> left{2.0, 0.5, 0.25};
  const std::array<double, 3> right{1.5, -0.25, 1.0};
  const double bedLeft = 0.25;
  const double bedRight = 0.5;
  for (const int wetLeft : {0, 1}) {
    for (const int wetRight : {0, 1}) {
      std::array<double, 5> expected{};
      kernels::hydraulics::hydrodynamic_solver(par(), normal.data(), left.data(), &bedLeft,
                                               &wetLeft, right.data(), &bedRight, &wetRight,
                                               expected.data());
      std::array<double, 5> flux{};
      kernels::hydraulics::internal_fluxes(par(), normal.data(), &wetLeft, &wetRight, left.data(),
                                           right.data(), &bedLeft, &bedRight, flux.data());
      EXPECT_EQ(flux, expected) << wetLeft << wetRight;
    }
  }
}

}  // namespace
