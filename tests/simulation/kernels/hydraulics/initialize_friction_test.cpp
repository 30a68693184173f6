#include "simulation/kernels/hydraulics/initialize_friction.h"

#include <gtest/gtest.h>

#include <array>
#include <type_traits>

#include "simulation/kernels/RunParameters.h"
#include "simulation/loops/descriptions.h"

static_assert(std::is_same_v<decltype(kernels::hydraulics::initialize_friction),
                             loops::InitFrictionFeatures::Body>);

namespace {

class InitializeFriction : public support::Parameters {
 protected:
  InitializeFriction() {
    set(ParameterID::InvGravity, 0.125);
    set(ParameterID::MinWaterDepth, 0.5);
  }

  static double chezy(int type, double depth, double roughness) {
    setInt(ParameterID::FrictionType, type);
    const std::array<double, 3> state{2.0 + depth, 7.0, -7.0};
    const double bed = 2.0;
    double result = -1.0;
    kernels::hydraulics::initialize_friction(par(), state.data(), &bed, &roughness, &result);
    return result;
  }
};

TEST_F(InitializeFriction, TakesTheDepthOfTheCell) {
  EXPECT_DOUBLE_EQ(chezy(1, 8.0, 0.5), 1.0);
  EXPECT_DOUBLE_EQ(chezy(2, 8.0, 30.0), 225.0);
  EXPECT_DOUBLE_EQ(chezy(4, 4.0, 1.0), 66.801827281271741);
}

TEST_F(InitializeFriction, ClipsTheDepthForAllClosures) {
  for (const double depth : {0.25, 0.0, -1.0}) {
    EXPECT_EQ(chezy(1, depth, 1.0), chezy(1, 0.5, 1.0)) << depth;
    EXPECT_EQ(chezy(2, depth, 1.0), chezy(2, 0.5, 1.0)) << depth;
    EXPECT_EQ(chezy(3, depth, 0.25), chezy(3, 0.5, 0.25)) << depth;
    EXPECT_NE(chezy(3, depth, 0.25), 38.505650853010394) << depth;
    EXPECT_DOUBLE_EQ(chezy(4, depth, 1.0), 2.2461814778011999) << depth;
  }
}

TEST_F(InitializeFriction, UnknownFrictionTypeGivesZero) {
  EXPECT_EQ(chezy(9, 8.0, 0.5), 0.0);
}

}  // namespace
