#include "simulation/kernels/hydraulics/flood_tracking.h"

#include <gtest/gtest.h>

#include <array>
#include <limits>
#include <type_traits>

#include "simulation/loops/descriptions.h"

static_assert(std::is_same_v<decltype(kernels::hydraulics::flood_tracking), loops::HydFlood::Body>);

namespace {

using Flood = std::array<double, 4>;

/// A cell with its bed at 1 m.
class FloodTracking : public ::testing::Test {
 protected:
  void track(double time, int wetted, double depth, double qx, double qy) {
    const double bed = 1.0;
    const std::array<double, 3> state{bed + depth, qx, qy};
    kernels::hydraulics::flood_tracking(&time, state.data(), &bed, &wetted, flood.data());
  }

  Flood flood{};
};

TEST_F(FloodTracking, ADryCellIsPassedOver) {
  track(5.0, 0, 2.0, 3.0, 4.0);
  EXPECT_EQ(flood, (Flood{}));
}

TEST_F(FloodTracking, KeepsArrivalDepthVelocityAndDischarge) {
  track(5.0, 1, 2.0, 3.0, -4.0);
  EXPECT_EQ(flood, (Flood{5.0, 2.0, 2.5, 5.0}));
}

TEST_F(FloodTracking, ArrivalIsTheFirstWetStepAfterTimeZero) {
  track(0.0, 1, 2.0, 0.0, 0.0);
  EXPECT_EQ(flood[0], 0.0);
  track(0.25, 1, 2.0, 0.0, 0.0);
  EXPECT_EQ(flood[0], 0.25);
  track(0.5, 1, 2.0, 0.0, 0.0);
  EXPECT_EQ(flood[0], 0.25);
}

TEST_F(FloodTracking, ACellThatFallsDryAndFloodsAgainKeepsArrivalAndMaxima) {
  track(5.0, 1, 2.0, 3.0, 4.0);
  track(6.0, 0, 0.0, 0.0, 0.0);
  track(7.0, 1, 1.0, 0.0, 0.5);
  EXPECT_EQ(flood, (Flood{5.0, 2.0, 2.5, 5.0}));
}

TEST_F(FloodTracking, EachMaximumHasATimeOfItsOwn) {
  track(5.0, 1, 4.0, 1.0, 0.0);
  track(6.0, 1, 0.5, 0.0, 2.0);
  EXPECT_EQ(flood, (Flood{5.0, 4.0, 4.0, 2.0}));
}

TEST_F(FloodTracking, ADepthNextToZeroHasNoVelocity) {
  const double time = 5.0;
  const double bed = 0.0;
  const int wetted = 1;
  const std::array<double, 3> state{1e-13, 1.0, 0.0};
  kernels::hydraulics::flood_tracking(&time, state.data(), &bed, &wetted, flood.data());
  EXPECT_EQ(flood, (Flood{5.0, 1e-13, 0.0, 1.0}));
}

TEST_F(FloodTracking, ANotANumberDoesNotReplaceAMaximum) {
  track(5.0, 1, 2.0, 3.0, 4.0);
  track(6.0, 1, 1.0, std::numeric_limits<double>::quiet_NaN(), 0.0);
  EXPECT_EQ(flood, (Flood{5.0, 2.0, 2.5, 5.0}));
}

}  // namespace
