#include "jsv/keywords/NonSwitchOneOfSchemaValidator.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "jsv/report.h"

namespace jsv {
namespace {

using nlohmann::json;
using test::at;
using test::check;
using test::faultOf;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

const auto CASES =
    json::parse(R"([{"required": ["c"]}, {"required": ["a"]}, {"required": ["b"]}])");

TEST(NonSwitchOneOfSchemaValidator, ExactlyOneItemPasses) {
  const auto checked = check<NonSwitchOneOfSchemaValidator>({{"b", 1}, {"x", 1}}, CASES);
  EXPECT_THAT(checked.annotations, IsEmpty());
  EXPECT_THAT(checked.names, ElementsAre("b"));
}

TEST(NonSwitchOneOfSchemaValidator, NoItemIsAFaultThatListsAllSorted) {
  const auto checked = check<NonSwitchOneOfSchemaValidator>({{"x", 1}}, CASES);
  EXPECT_THAT(
      checked.annotations,
      ElementsAre(at("/value", MissingExclusiveItemsViolation{makeSortable({"a", "b", "c"})})));
  EXPECT_THAT(checked.names, IsEmpty());
}

TEST(NonSwitchOneOfSchemaValidator, TwoItemsAreAFaultThatNamesBoth) {
  const auto checked = check<NonSwitchOneOfSchemaValidator>({{"c", 1}, {"a", 1}}, CASES);
  EXPECT_THAT(checked.annotations, ElementsAre(at("/value", ExclusiveItemViolation{{"a", "c"}})));
  EXPECT_THAT(checked.names, ElementsAre("a", "c"));
}

TEST(NonSwitchOneOfSchemaValidator, OfThreeItemsTheFirstTwoInSortedOrderAreNamed) {
  const auto checked = check<NonSwitchOneOfSchemaValidator>({{"c", 1}, {"b", 1}, {"a", 1}}, CASES);
  EXPECT_THAT(checked.annotations, ElementsAre(at("/value", ExclusiveItemViolation{{"a", "b"}})));
  EXPECT_THAT(checked.names, ElementsAre("a", "b", "c"));
}

TEST(NonSwitchOneOfSchemaValidator, OtherKeywordsOfTheCasesAreNotApplied) {
  const auto cases = json::parse(R"([{"required": ["a"], "type": "array"}, {"required": ["b"]}])");
  EXPECT_THAT(check<NonSwitchOneOfSchemaValidator>({{"a", 1}}, cases).annotations, IsEmpty());
}

TEST(NonSwitchOneOfSchemaValidator, ValuesThatAreNoObjectsPass) {
  EXPECT_THAT(check<NonSwitchOneOfSchemaValidator>(json::array({"a"}), CASES).annotations,
              IsEmpty());
  EXPECT_THAT(check<NonSwitchOneOfSchemaValidator>(json::array({"a"}), CASES).names, IsEmpty());
}

TEST(NonSwitchOneOfSchemaValidator, EachCaseMustRequireOneName) {
  const auto fault = [](const char* cases) {
    return faultOf<NonSwitchOneOfSchemaValidator>(json::object(), json::parse(cases));
  };
  EXPECT_EQ(fault(R"({})"), "/keyword: This keyword requires an array parameter.");
  EXPECT_EQ(fault(R"([{"required": ["a"]}, {}])"), "/keyword/1/required: This item is required.");
  EXPECT_EQ(fault(R"([{"required": "a"}])"),
            "/keyword/0/required: This keyword requires an array parameter.");
  EXPECT_EQ(fault(R"([{"required": ["a", "b"]}])"),
            "/keyword/0/required: Only single items are supported.");
  EXPECT_EQ(fault(R"([{"required": []}])"),
            "/keyword/0/required: Only single items are supported.");
  EXPECT_EQ(fault(R"([{"required": [1]}])"),
            "/keyword/0/required/0: This keyword requires a string parameter.");
}

}  // namespace
}  // namespace jsv
