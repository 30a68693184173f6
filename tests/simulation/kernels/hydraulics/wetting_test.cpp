#include "simulation/kernels/hydraulics/wetting.h"

#include <gtest/gtest.h>

#include <array>

#include "simulation/kernels/RunParameters.h"

namespace {

using kernels::hydraulics::settle;

class Wetting : public support::Parameters {
 protected:
  Wetting() { set(model::ParameterID::MinWaterDepth, 0.01); }

  std::array<double, 3> state{1.0, 2.0, 3.0};
  int wetted = 7;
};

TEST_F(Wetting, ACellAboveTheMinimumIsWetAndKeepsItsMotion) {
  EXPECT_TRUE(settle(par(), 0.011, state.data(), &wetted));
  EXPECT_EQ(wetted, 1);
  EXPECT_EQ(state, (std::array<double, 3>{1.0, 2.0, 3.0}));
}

TEST_F(Wetting, ACellAtTheMinimumIsDryAndKeepsItsWaterOnly) {
  EXPECT_TRUE(settle(par(), 0.01, state.data(), &wetted));
  EXPECT_EQ(wetted, 0);
  EXPECT_EQ(state, (std::array<double, 3>{1.0, 0.0, 0.0}));
}

TEST_F(Wetting, RoundOffBelowTheBedIsDry) {
  EXPECT_TRUE(settle(par(), -1e-12, state.data(), &wetted));
  EXPECT_EQ(wetted, 0);
}

TEST_F(Wetting, ANegativeDepthLeavesTheCellAlone) {
  EXPECT_FALSE(settle(par(), -1.1e-12, state.data(), &wetted));
  EXPECT_EQ(wetted, 7);
  EXPECT_EQ(state, (std::array<double, 3>{1.0, 2.0, 3.0}));
}

}  // namespace
