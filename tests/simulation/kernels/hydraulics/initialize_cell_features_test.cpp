#include "simulation/kernels/hydraulics/initialize_cell_features.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <type_traits>

#include "simulation/kernels/RunParameters.h"
#include "simulation/loops/descriptions.h"

static_assert(std::is_same_v<decltype(kernels::hydraulics::initialize_cell_features),
                             loops::InitCellHydFeatures::Body>);

namespace {

class InitializeHydCellFeatures : public support::Parameters {
 protected:
  InitializeHydCellFeatures() { set(ParameterID::MinWaterDepth, 0.5); }

  static int wettedAt(double surface, double bed) {
    const std::array<double, 3> state{surface, 3.0, -4.0};
    int wetted = 9;
    kernels::hydraulics::initialize_cell_features(par(), state.data(), &bed, &wetted);
    return wetted;
  }
};

TEST_F(InitializeHydCellFeatures, ACellAboveTheMinimumDepthIsWet) {
  EXPECT_EQ(wettedAt(std::nextafter(1.5, 2.0), 1.0), 1);
}

TEST_F(InitializeHydCellFeatures, ACellAtTheMinimumDepthIsDry) {
  EXPECT_EQ(wettedAt(1.5, 1.0), 0);
}

TEST_F(InitializeHydCellFeatures, ASurfaceBelowTheBedIsDry) {
  EXPECT_EQ(wettedAt(0.0, 1.0), 0);
}

TEST_F(InitializeHydCellFeatures, WithoutAMinimumAnyWaterIsWet) {
  set(ParameterID::MinWaterDepth, 0.0);
  EXPECT_EQ(wettedAt(1.0, 1.0), 0);
  EXPECT_EQ(wettedAt(std::nextafter(1.0, 2.0), 1.0), 1);
}

}  // namespace
