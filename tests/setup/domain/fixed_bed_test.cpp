#include "setup/domain/cell_values.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "setup/MovingBed.h"
#include "setup/mesh/Mesh.h"

using ::testing::Each;
using ::testing::IsEmpty;

namespace {

/// On a bed of 0 m.
class FixedBed : public studies::MovingBed {
 protected:
  std::string fixed(const std::string& zones, const std::string& sources = "") const {
    return bed(GRAINS + R"(, "FIXED_BED": {"ZONES": [)" + zones + "]}", GRASS, sources);
  }

  setup::FixedCells build(const std::string& zones) const {
    return folder.build(GEOMETRY, FLOW, fixed(zones)).fixedCells;
  }
};

}  // namespace

TEST_F(FixedBed, IsBelowTheBedOrAtAnElevation) {
  const setup::FixedCells everywhere = build(R"({"region": "all", "below_bed": 0.5})");
  EXPECT_EQ(everywhere.cells.size(), 8U);
  EXPECT_THAT(everywhere.elevations, Each(-0.5));
  EXPECT_THAT(build(R"({"region": "all", "elevation": -2})").elevations, Each(-2.0));
}

TEST_F(FixedBed, HoldsTheCellsOfItsZonesOnlyAndInOrder) {
  const setup::FixedCells found = build(R"({"box": [2, 2, 4, 4], "elevation": -2},
                                           {"box": [0, 2, 2, 4], "elevation": -1})");
  EXPECT_EQ(found.cells.size(), 4U);
  EXPECT_TRUE(std::is_sorted(found.cells.begin(), found.cells.end()));
  for (std::size_t k = 0; k < 4; ++k) {
    EXPECT_EQ(found.positionOf(found.cells[k]), static_cast<int>(k));
  }
}

TEST_F(FixedBed, LaterZonesReplaceEarlierOnes) {
  EXPECT_THAT(build(R"({"box": [2, 2, 4, 4], "elevation": -2}, {"region": "all", "below_bed": 1})")
                  .elevations,
              Each(-1.0));
}

TEST_F(FixedBed, IsLoweredToTheBed) {
  const setup::FixedCells found = build(R"({"region": "all", "elevation": -1},
                                           {"box": [0, 0, 2, 4], "elevation": 0.5})");
  EXPECT_EQ(found.loweredToBed, 4);
  EXPECT_EQ(*std::max_element(found.elevations.begin(), found.elevations.end()), 0.0);
}

TEST_F(FixedBed, IsNotThereIfTheStudyDoesNotAskForIt) {
  EXPECT_THAT(folder.build(GEOMETRY, FLOW, bed(GRAINS, GRASS)).fixedCells.cells, IsEmpty());
}

TEST_F(FixedBed, SourcesHaveARowOfTheirOwnThatIsBottomless) {
  const setup::FixedCells found =
      folder
          .build(GEOMETRY, FLOW,
                 fixed(R"({"box": [2, 2, 4, 4], "below_bed": 0})",
                       R"("SOURCE": [{"region": "all", "type": "rise", "rate": -1}])"))
          .fixedCells;
  EXPECT_EQ(found.cells.size(), 8U);
  EXPECT_EQ(std::count(found.elevations.begin(), found.elevations.end(), 0.0), 2);
  EXPECT_EQ(std::count(found.elevations.begin(), found.elevations.end(), setup::BOTTOMLESS), 6);
  EXPECT_EQ(found.loweredToBed, 0);
}

TEST_F(FixedBed, HasSensibleDefaultsAndTakesOthers) {
  const setup::Study study =
      folder.read(GEOMETRY, FLOW, fixed(R"({"region": "all", "below_bed": 0})"));
  EXPECT_EQ(study.morphology.value().fixedBed.value().accuracy, 1e-6);
  EXPECT_EQ(study.morphology->fixedBed->maximumPasses, 100);
  const setup::Study other =
      folder.read(GEOMETRY, FLOW,
                  bed(GRAINS + R"(, "FIXED_BED": {"accuracy": 0.01, "maximum_passes": 3,
                      "ZONES": [{"region": "all", "below_bed": 0}]})",
                      GRASS));
  EXPECT_EQ(other.morphology.value().fixedBed.value().accuracy, 0.01);
  EXPECT_EQ(other.morphology->fixedBed->maximumPasses, 3);
}
