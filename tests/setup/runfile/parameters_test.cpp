#include "setup/runfile/contents.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "setup/faults.h"

using enum model::ParameterID;
using ::testing::StartsWith;
using ::testing::VariantWith;

TEST(Parameters, ComeFromTheStudy) {
  setup::Study study;
  study.hydraulics = {0.4, 7.0, 0.02, 9.8, false};
  EXPECT_THAT(setup::parameterValue(CFLnumber, study), VariantWith<double>(0.4));
  EXPECT_THAT(setup::parameterValue(DTmax, study), VariantWith<double>(7.0));
  EXPECT_THAT(setup::parameterValue(MinWaterDepth, study), VariantWith<double>(0.02));
  EXPECT_THAT(setup::parameterValue(Gravity, study), VariantWith<double>(9.8));
  EXPECT_THAT(setup::parameterValue(SafeMode, study), VariantWith<int>(0));
}

TEST(Parameters, SafeModeIsOneIfItIsOn) {
  EXPECT_THAT(setup::parameterValue(SafeMode, {}), VariantWith<int>(1));
}

TEST(Parameters, TheBedOfAHydraulicRunNeverStartsToMove) {
  EXPECT_THAT(setup::parameterValue(MorphStart, {}), VariantWith<double>(1e12));
}

TEST(Parameters, FrictionIsOnWhereTheStudyHasAClosure) {
  setup::Study study;
  EXPECT_THAT(setup::parameterValue(FrictionOn, study), VariantWith<int>(0));
  study.friction = setup::Friction{model::FrictionCode::SandRoughness, 0.05, {}};
  EXPECT_THAT(setup::parameterValue(FrictionOn, study), VariantWith<int>(1));
  EXPECT_THAT(setup::parameterValue(FrictionType, study), VariantWith<int>(3));
}

TEST(Parameters, TheFluidIsWater) {
  EXPECT_THAT(setup::parameterValue(FluidDensity, {}), VariantWith<double>(1000.0));
}

TEST(Parameters, ThoseOfTheBedComeFromTheStudy) {
  setup::Study study;
  setup::Morphology& bed = study.morphology.emplace();
  bed.start = 60.0;
  bed.material.porosity = 0.3;
  bed.material.density = 2600.0;
  bed.material.waterDensity = 998.0;
  bed.bedload = {model::BedloadCode::Grass, 0.01, 3.0, 0.4, 0.5, 0.6, {}};
  bed.fixedBed = setup::FixedBed{0.02, 7, {}};
  bed.incipientMotion = setup::IncipientMotion{model::SlopeCorrectionCode::Chen, 0.7};
  const auto expectReal = [&study](model::ParameterID id, double value) {
    EXPECT_THAT(setup::parameterValue(id, study), VariantWith<double>(value));
  };
  const auto expectInt = [&study](model::ParameterID id, int value) {
    EXPECT_THAT(setup::parameterValue(id, study), VariantWith<int>(value));
  };
  expectReal(MorphStart, 60.0);
  expectReal(BedPorosity, 0.3);
  expectReal(SedimentDensity, 2600.0);
  expectReal(FluidDensity, 998.0);
  expectInt(BeadloadType, 3);
  expectReal(BedloadCoeff, 0.01);
  expectReal(BedloadExpon, 3.0);
  expectReal(ThetaCritical, 0.4);
  expectReal(BedloadFactor, 0.5);
  expectReal(BedloadIkeda, 0.6 * 9.81);
  expectReal(BedloadCurvature, 0.0);
  expectReal(FixBedAccuracy, 0.02);
  expectInt(FixBedMaxIter, 7);
  expectReal(ReposeAngle, 0.7);
  expectInt(IncipientMotType, 2);
}

TEST(Parameters, DirectionsAreSwitchedOnByTheirFactors) {
  setup::Study study;
  setup::Bedload& bedload = study.morphology.emplace().bedload;
  using Switches = std::array<int, 2>;
  EXPECT_THAT(setup::parameterValue(BedloadInts, study), VariantWith<Switches>(Switches{0, 0}));
  bedload.lateralSlope = 0.5;
  EXPECT_THAT(setup::parameterValue(BedloadInts, study), VariantWith<Switches>(Switches{1, 0}));
  bedload = {};
  bedload.curvatureFactor = 7.0;
  EXPECT_THAT(setup::parameterValue(BedloadInts, study), VariantWith<Switches>(Switches{0, 1}));
  EXPECT_THAT(setup::parameterValue(BedloadCurvature, study), VariantWith<double>(7.0));
}

TEST(Parameters, RefusesAParameterThatTheStudyDoesNotGive) {
  EXPECT_THAT(faults::messageOf([] { setup::parameterValue(ReposeAngle, {}); }),
              StartsWith("the setup has no value for the parameter <ReposeAngle>, in file: "));
}
