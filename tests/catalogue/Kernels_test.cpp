#include "catalogue/Kernels.h"

#include <gtest/gtest.h>

#include "catalogue/keys.h"

namespace model {
namespace {

TEST(Kernels, HaveAPropertyAndADescriptionEach) {
  EXPECT_EQ(KernelProps.size(), 26U);
  EXPECT_EQ(catalogue::keysOf(KernelDescription), catalogue::keysOf(KernelProps));
}

TEST(Kernels, HaveThreeTimingValuesOfTypeDouble) {
  for (const auto& [id, property] : KernelProps) {
    EXPECT_EQ(property.size, 3) << property.name;
    EXPECT_EQ(property.type, DataType::Double) << property.name;
  }
}

TEST(Kernels, AreNumberedFromZeroWithoutAGap) {
  int expected = 0;
  for (const auto& [id, property] : KernelProps) EXPECT_EQ(static_cast<int>(id), expected++);
}

TEST(Kernels, NameTheCurvatureAsRunFilesDo) {
  EXPECT_EQ(KernelProps.at(KernelID::CalCCurvature).name, "CalCCurvature");
}

TEST(Kernels, TellWhatTheyAreFor) {
  EXPECT_EQ(KernelDescription.at(KernelID::TimeStepCalculation),
            "This kernel finds the smallest integration timestep that satisfies the stability "
            "condition (CFL condition) for         explicit schemes.");
}

}  // namespace
}  // namespace model
