#include "setup/parameters.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "setup/faults.h"

using enum model::ParameterID;
using ::testing::StartsWith;
using ::testing::VariantWith;

TEST(Parameters, comeFromTheStudy) {
  setup::Study study;
  study.hydraulics = {0.4, 7.0, 0.02, 9.8, false};
  EXPECT_THAT(setup::parameterValue(CFLnumber, study), VariantWith<double>(0.4));
  EXPECT_THAT(setup::parameterValue(DTmax, study), VariantWith<double>(7.0));
  EXPECT_THAT(setup::parameterValue(MinWaterDepth, study), VariantWith<double>(0.02));
  EXPECT_THAT(setup::parameterValue(Gravity, study), VariantWith<double>(9.8));
  EXPECT_THAT(setup::parameterValue(SafeMode, study), VariantWith<int>(0));
}

TEST(Parameters, safeModeIsOneIfItIsOn) {
  EXPECT_THAT(setup::parameterValue(SafeMode, {}), VariantWith<int>(1));
}

TEST(Parameters, theBedOfAHydraulicRunNeverStartsToMove) {
  EXPECT_THAT(setup::parameterValue(MorphStart, {}), VariantWith<double>(1e12));
}

TEST(Parameters, frictionIsOnWhereTheStudyHasAClosure) {
  setup::Study study;
  EXPECT_THAT(setup::parameterValue(FrictionOn, study), VariantWith<int>(0));
  study.friction = setup::Friction{3, 0.05, {}};
  EXPECT_THAT(setup::parameterValue(FrictionOn, study), VariantWith<int>(1));
  EXPECT_THAT(setup::parameterValue(FrictionType, study), VariantWith<int>(3));
}

TEST(Parameters, theFluidIsWater) {
  EXPECT_THAT(setup::parameterValue(FluidDensity, {}), VariantWith<double>(1000.0));
}

TEST(Parameters, refusesAParameterThatNoStudyCanGive) {
  EXPECT_THAT(faults::messageOf([] { setup::parameterValue(ReposeAngle, {}); }),
              StartsWith("the setup has no value for the parameter <ReposeAngle>, in file: "));
}
