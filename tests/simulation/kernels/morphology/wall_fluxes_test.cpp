#include "simulation/kernels/morphology/wall_fluxes.h"

#include <gtest/gtest.h>

#include <type_traits>

#include "simulation/loops/descriptions.h"

static_assert(
    std::is_same_v<decltype(kernels::morphology::wall_fluxes), loops::MorWallBFluxes::Body>);

namespace {

TEST(MorWallFluxes, LetNothingPass) {
  double flux = 3.7;
  kernels::morphology::wall_fluxes(&flux);
  EXPECT_EQ(flux, 0.0);
}

}  // namespace
