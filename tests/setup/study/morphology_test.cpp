#include "setup/study/morphology.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <numbers>

#include "setup/MovingBed.h"
#include "setup/codes.h"

using ::testing::Each;
using ::testing::IsEmpty;

namespace {

class Morphology : public studies::MovingBed {
 protected:
  setup::Morphology read(const std::string& further) const {
    return folder.read(GEOMETRY, FLOW, bed(GRAINS, GRASS, further)).morphology.value();
  }
};

}  // namespace

TEST_F(Morphology, IsNotThereIfTheStudyDoesNotAskForIt) {
  EXPECT_FALSE(folder.read(GEOMETRY, FLOW).morphology);
}

TEST_F(Morphology, StartsAtOnceIfNothingElseIsSaid) {
  EXPECT_EQ(read("").start, 0.0);
  EXPECT_EQ(read(R"("PARAMETER": {"start": 600})").start, 600.0);
}

TEST_F(Morphology, SlopeCorrectionsHaveTheNumbersOfTheRunFile) {
  EXPECT_FALSE(read("").incipientMotion);
  for (const auto& [name, type] : {std::pair{"van_rijn_1989", 1}, {"chen_2010", 2}}) {
    const setup::IncipientMotion motion =
        read(R"("INCIPIENT_MOTION": {"angle_of_repose": 30, "type": ")" + std::string(name) + "\"}")
            .incipientMotion.value();
    EXPECT_EQ(codes::numberOf(motion.correction), type);
    EXPECT_DOUBLE_EQ(motion.angleOfRepose, std::numbers::pi / 6.0);
  }
}

TEST_F(Morphology, TheCriticalValueOfTheFormulaIsThatOfAllCells) {
  const setup::Domain domain = folder.build(
      GEOMETRY, FLOW,
      bed(GRAINS,
          R"("FORMULA": {"type": "grass_1981", "coefficient": 1, "critical_velocity": 2})"));
  EXPECT_EQ(domain.criticalValues.size(), 8U);
  EXPECT_THAT(domain.criticalValues, Each(2.0));
  EXPECT_THAT(folder.build(GEOMETRY, FLOW).criticalValues, IsEmpty());
}
