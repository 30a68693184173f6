#include "setup/study/friction.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "setup/StudyFolder.h"
#include "setup/codes.h"

using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

const std::string FRICTION = studies::PLANE + "/HYDRAULICS/FRICTION";

/// Two triangles of the materials 1 and 2, in this order.
const std::string MESH = R"("MESH": {"file": "m.2dm"}, "REGIONDEF": [
    {"index": 1, "name": "bed"}, {"index": 2, "name": "plain"}, {"index": 3, "name": "none"}])";

class Friction : public ::testing::Test {
 protected:
  Friction() {
    support::writeFile(folder.file("m.2dm"),
                       "MESH2D\nND 1 0 0 0\nND 2 1 0 0\nND 3 1 1 0\nND 4 0 1 0\n"
                       "E3T 1 1 2 3 1\nE3T 2 1 3 4 2\n");
  }

  /// Per material.
  std::array<double, 2> valuesOf(const std::string& friction) const {
    const setup::Domain domain = folder.build("", "\"FRICTION\": " + friction);
    std::array<double, 2> values{};
    for (std::size_t cell = 0; cell < 2; ++cell) {
      values.at(static_cast<std::size_t>(domain.mesh.cells[cell].material) - 1) =
          domain.friction.at(cell);
    }
    return values;
  }

  std::string refusalOf(const std::string& friction) const {
    return folder.refusalOf("", "\"FRICTION\": " + friction);
  }

  const studies::Folder folder{MESH};
};

}  // namespace

TEST_F(Friction, ClosuresHaveTheNumbersOfTheRunFile) {
  for (const auto& [name, type] : {std::pair{"manning", 1},
                                   {"strickler", 2},
                                   {"sand_roughness", 3},
                                   {"sand_roughness_shallow", 4}}) {
    const setup::Study study =
        folder.read("", R"("FRICTION": {"type": ")" + std::string(name) + R"(", "value": 0.5})");
    EXPECT_EQ(codes::numberOf(study.friction->closure), type);
  }
}

TEST_F(Friction, IsTheSameEverywhereIfNoZoneSaysOtherwise) {
  EXPECT_THAT(valuesOf(R"({"type": "manning", "value": 0.03})"), Each(0.03));
}

TEST_F(Friction, LaterZonesReplaceEarlierOnes) {
  EXPECT_THAT(valuesOf(R"({"type": "strickler", "value": 30, "ZONES": [
                  {"box": [0, 0, 1, 1], "value": 20}, {"region": "plain", "value": 15}]})"),
              ElementsAre(20, 15));
}

TEST_F(Friction, IsNotThereIfTheStudyDoesNotAskForIt) {
  const setup::Domain domain = folder.build("", R"("INITIAL": {"water_level": 1})");
  EXPECT_THAT(domain.friction, IsEmpty());
}

TEST_F(Friction, RefusesZonesThatAreNowhere) {
  const std::string start = R"({"type": "manning", "value": 0.03, "ZONES": [)";
  EXPECT_EQ(refusalOf(start + R"({"value": 0.04}]})"),
            "<" + FRICTION + "/ZONES/0> must hold region, box or both");
  EXPECT_EQ(refusalOf(start + R"({"region": "none", "value": 0.1}]})"),
            "region <none> has the index 3, but the mesh has the materials 1, 2");
}
