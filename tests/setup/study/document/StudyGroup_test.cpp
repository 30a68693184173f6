#include "setup/study/document/StudyGroup.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "setup/faults.h"

using nlohmann::json;
using ::testing::ElementsAre;

namespace {

class StudyGroup : public ::testing::Test {
 protected:
  template <class T>
  std::string refusalOf(const char* key, T value) {
    return faults::messageOf([&] { basin.take(key, value); });
  }

  const json document = json::parse(R"({"BASIN": {"depth": 2.5, "count": 3, "name": "a/b",
      "open": false, "closed": 1, "at": [1, 2.5], "GATES": [{"sill": 1}, {"sill": 2}]}})");
  const setup::StudyGroup basin = setup::StudyGroup("s.json", document).group("BASIN");
};

}  // namespace

TEST_F(StudyGroup, GivesTheValuesOfItsKeys) {
  double depth = 0.0;
  int count = 0;
  std::string name;
  bool open = true;
  std::array<double, 2> at{};
  basin.take("depth", depth);
  basin.take("count", count);
  basin.take("name", name);
  basin.take("open", open);
  basin.take("at", at);
  EXPECT_EQ(depth, 2.5);
  EXPECT_EQ(count, 3);
  EXPECT_EQ(name, "a/b");
  EXPECT_FALSE(open);
  EXPECT_THAT(at, ElementsAre(1.0, 2.5));
}

TEST_F(StudyGroup, LeavesAValueAsItIsIfItLacksTheKey) {
  double width = 7.0;
  std::optional<double> height;
  std::array<int, 2> cells{4, 5};
  basin.take("width", width);
  basin.take("height", height);
  basin.take("cells", cells);
  EXPECT_EQ(width, 7.0);
  EXPECT_FALSE(height);
  EXPECT_THAT(cells, ElementsAre(4, 5));
}

TEST_F(StudyGroup, FillsAnOptionalValueIfItHoldsTheKey) {
  std::optional<std::array<double, 2>> at;
  basin.take("at", at);
  ASSERT_TRUE(at);
  EXPECT_THAT(*at, ElementsAre(1.0, 2.5));
}

TEST_F(StudyGroup, RefusesAListOfAnotherLength) {
  EXPECT_EQ((refusalOf("at", std::array<double, 3>())),
            "study file <s.json>: key </BASIN/at> must be a list of 3 numbers, but is [1,2.5]");
  EXPECT_EQ((refusalOf("at", std::array<double, 1>())),
            "study file <s.json>: key </BASIN/at> must be a list of 1 numbers, but is [1,2.5]");
}

TEST_F(StudyGroup, RefusesAFlagThatIsNeitherTrueNorFalse) {
  EXPECT_EQ(refusalOf("closed", true),
            "study file <s.json>: key </BASIN/closed> must be true or false, but is 1");
}

TEST_F(StudyGroup, GivesTheGroupsOfAListInOrderAndWithTheirPlaces) {
  const std::vector<setup::StudyGroup> gates = basin.groups("GATES");
  ASSERT_EQ(gates.size(), 2U);
  EXPECT_EQ(gates[0].path(), "/BASIN/GATES/0");
  EXPECT_EQ(gates[1].path(), "/BASIN/GATES/1");
  EXPECT_EQ(gates[1]["sill"], 2);
}

TEST_F(StudyGroup, HasNoGroupsInAListThatIsNotThere) {
  EXPECT_TRUE(basin.groups("WEIRS").empty());
}

TEST_F(StudyGroup, NamesItselfInRefusals) {
  EXPECT_EQ(faults::messageOf([this] { basin.refuse("leaks at ", 3, " places"); }),
            "study file <s.json>: </BASIN> leaks at 3 places");
  EXPECT_EQ(faults::messageOf([this] { basin.groups("GATES")[0].refuseKey("sill", "is high"); }),
            "study file <s.json>: key </BASIN/GATES/0/sill> is high");
}
