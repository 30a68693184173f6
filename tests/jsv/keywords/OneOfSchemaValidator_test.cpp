#include "jsv/keywords/OneOfSchemaValidator.h"

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

const auto SWITCH = json::parse(R"([
    {"properties": {"kind": {"const": "weir"}}, "required": ["height"]},
    {"properties": {"kind": {"const": "gate"}}}])");
const auto NO_SWITCH = json::parse(R"([{"required": ["file"]}, {"required": ["values"]}])");

TEST(OneOfSchemaValidator, CasesWithPropertiesAreASwitch) {
  const auto checked = check<OneOfSchemaValidator>({{"kind", "gate"}, {"other", 1}}, SWITCH);
  EXPECT_EQ(numberOf(AnnotationType::Error, checked.annotations), 0);
  EXPECT_THAT(checked.names, ElementsAre("kind", "other"));
}

TEST(OneOfSchemaValidator, CasesWithoutThemExcludeEachOther) {
  const auto checked = check<OneOfSchemaValidator>({{"file", "a"}, {"other", 1}}, NO_SWITCH);
  EXPECT_THAT(checked.annotations, IsEmpty());
  EXPECT_THAT(checked.names, ElementsAre("file"));
}

TEST(OneOfSchemaValidator, AMixtureIsAFault) {
  const auto fault =
      "/keyword: The 'properties' keyword must be present in either all or none of the subschemas.";
  EXPECT_EQ(faultOf<OneOfSchemaValidator>(json::object(), {SWITCH[0], NO_SWITCH[0]}), fault);
  EXPECT_EQ(faultOf<OneOfSchemaValidator>(1, {SWITCH[0], true}), fault);
}

TEST(OneOfSchemaValidator, WithoutCasesNothingIsReported) {
  const auto checked = check<OneOfSchemaValidator>({{"a", 1}}, json::array());
  EXPECT_THAT(checked.annotations, IsEmpty());
  EXPECT_THAT(checked.names, IsEmpty());
}

TEST(OneOfSchemaValidator, ValuesThatAreNoObjectsPass) {
  for (const auto& value : {json(1), json("weir"), json(nullptr), json::array({1})}) {
    EXPECT_THAT(check<OneOfSchemaValidator>(value, SWITCH).annotations, IsEmpty());
    EXPECT_THAT(check<OneOfSchemaValidator>(value, NO_SWITCH).annotations, IsEmpty());
  }
}

TEST(OneOfSchemaValidator, TheParameterMustBeAnArrayWhateverTheValueIs) {
  EXPECT_EQ(faultOf<OneOfSchemaValidator>(1, json::object()),
            "/keyword: This keyword requires an array parameter.");
}

TEST(OneOfSchemaValidator, ACaseMustBeASchemaObject) {
  EXPECT_EQ(faultOf<OneOfSchemaValidator>(json::object(), {"properties"}),
            "/keyword/0/required: This item is required.");
}

}  // namespace
}  // namespace jsv
