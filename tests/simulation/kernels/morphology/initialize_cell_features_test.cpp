#include "simulation/kernels/morphology/initialize_cell_features.h"

#include <gtest/gtest.h>

#include <array>
#include <type_traits>

#include "simulation/loops/descriptions.h"

static_assert(std::is_same_v<decltype(kernels::morphology::initialize_cell_features),
                             loops::InitCellMorFeatures::Body>);

namespace {

TEST(MorInitializeCellFeatures, ClearsCurvatureAndBothComponentsOfTheGradient) {
  const double bed = 4.2;
  double curvature = 1.5;
  std::array<double, 2> gradient{0.3, -0.4};
  kernels::morphology::initialize_cell_features(&bed, &curvature, gradient.data());
  EXPECT_EQ(curvature, 0.0);
  EXPECT_EQ(gradient, (std::array<double, 2>{0.0, 0.0}));
}

}  // namespace
