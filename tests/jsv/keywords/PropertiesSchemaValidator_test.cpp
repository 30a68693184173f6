#include "jsv/keywords/PropertiesSchemaValidator.h"

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

TEST(PropertiesSchemaValidator, WalksTheItemsThatAreThere) {
  const auto checked = check<PropertiesSchemaValidator>(
      {{"a", 1}, {"b", 2}}, {{"a", {{"type", "string"}}}, {"b", false}});
  EXPECT_THAT(checked.annotations,
              ElementsAre(at("/value/a", IncorrectType{JsonTypeClass::String}),
                          at("/value/a", RequiredTypeAnnotation{JsonTypeClass::String}),
                          at("/value/b", InvalidItem{})));
}

TEST(PropertiesSchemaValidator, AccountsForNoNames) {
  EXPECT_THAT(check<PropertiesSchemaValidator>({{"a", 1}}, {{"a", true}}).names, IsEmpty());
}

TEST(PropertiesSchemaValidator, AnAbsentItemCouldBeAddedAndIsNotWalked) {
  EXPECT_THAT(
      check<PropertiesSchemaValidator>(json::object(), {{"a", {{"required", {"b"}}}}}).annotations,
      ElementsAre(at("/value", ValidAdditionalKeyAnnotation{"a"})));
}

TEST(PropertiesSchemaValidator, AnAbsentItemIsReportedOnlyIfItIsRequired) {
  EXPECT_EQ(test::validate("{}", R"({"properties": {"a": {"type": "string"}}})").text, "");
  EXPECT_EQ(
      test::validate("{}", R"({"properties": {"a": {"type": "string"}}, "required": ["a"]})").text,
      "/a: This item is required but missing.\n");
}

TEST(PropertiesSchemaValidator, ValuesThatAreNoObjectsPass) {
  EXPECT_THAT(check<PropertiesSchemaValidator>(json::array({1}), {{"0", false}}).annotations,
              IsEmpty());
  EXPECT_THAT(check<PropertiesSchemaValidator>("a", {{"a", false}}).annotations, IsEmpty());
}

TEST(PropertiesSchemaValidator, TheParameterMustBeAnObjectWhateverTheValueIs) {
  EXPECT_EQ(faultOf<PropertiesSchemaValidator>(1, {"a"}),
            "/keyword: This keyword requires an object parameter.");
}

TEST(PropertiesSchemaValidator, FaultsBelowArePlacedInTheSchemaOfTheItem) {
  EXPECT_EQ(faultOf<PropertiesSchemaValidator>({{"a", 1}}, {{"a", {{"type", "boolean"}}}}),
            "/type: The provided type is invalid.");
}

}  // namespace
}  // namespace jsv
