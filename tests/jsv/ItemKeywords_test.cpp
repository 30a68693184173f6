#include "jsv/ItemKeywords.h"

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

TEST(RequiredSchemaValidator, AccountsForTheItemsThatAreThere) {
  const auto checked =
      check<RequiredSchemaValidator>({{"a", nullptr}, {"b", 1}, {"c", 2}}, {"b", "a"});
  EXPECT_THAT(checked.annotations, IsEmpty());
  EXPECT_THAT(checked.names, ElementsAre("a", "b"));
}

TEST(RequiredSchemaValidator, ReportsTheItemsThatAreNotAtTheirPlaces) {
  const auto checked = check<RequiredSchemaValidator>({{"a", 1}}, {"a", "b/c"});
  EXPECT_THAT(checked.annotations, ElementsAre(at("/value", ValidAdditionalKeyAnnotation{"b/c"}),
                                               at("/value/b~1c", MissingItem{})));
  EXPECT_THAT(checked.names, ElementsAre("a"));
}

TEST(RequiredSchemaValidator, ValuesThatAreNoObjectsPass) {
  for (const auto& value : {json::array({"a"}), json("a"), json(nullptr), json(1)}) {
    EXPECT_THAT(check<RequiredSchemaValidator>(value, {"a"}).annotations, IsEmpty());
    EXPECT_THAT(check<RequiredSchemaValidator>(value, {"a"}).names, IsEmpty());
  }
}

TEST(RequiredSchemaValidator, TheParameterMustBeAnArrayWhateverTheValueIs) {
  EXPECT_EQ(faultOf<RequiredSchemaValidator>(1, "a"),
            "/keyword: This keyword requires an array parameter.");
  EXPECT_EQ(faultOf<RequiredSchemaValidator>(json::object(), {{"a", true}}),
            "/keyword: This keyword requires an array parameter.");
}

TEST(RequiredSchemaValidator, NamesMustBeStrings) {
  EXPECT_EQ(faultOf<RequiredSchemaValidator>({{"a", 1}}, {"a", 1}),
            "/keyword/1: This keyword requires a string parameter.");
}

TEST(OptionalSchemaValidator, InformsOfEachItemAndOfThoseThatCouldBeAdded) {
  const auto checked = check<OptionalSchemaValidator>({{"a", 1}}, {"b", "a"});
  EXPECT_THAT(checked.annotations, ElementsAre(at("/value", ValidAdditionalKeyAnnotation{"b"}),
                                               at("/value/a", OptionalItemAnnotation{}),
                                               at("/value/b", OptionalItemAnnotation{})));
  EXPECT_THAT(checked.names, IsEmpty());
}

TEST(OptionalSchemaValidator, ValuesThatAreNoObjectsPass) {
  EXPECT_THAT(check<OptionalSchemaValidator>(json::array({"a"}), {"a"}).annotations, IsEmpty());
  EXPECT_THAT(check<OptionalSchemaValidator>(1, {"a"}).annotations, IsEmpty());
}

TEST(OptionalSchemaValidator, TheParameterMustBeAnArrayOfStringsWhateverTheValueIs) {
  EXPECT_EQ(faultOf<OptionalSchemaValidator>(1, true),
            "/keyword: This keyword requires an array parameter.");
  EXPECT_EQ(faultOf<OptionalSchemaValidator>(1, {"a", json::array()}),
            "/keyword/1: This keyword requires a string parameter.");
}

TEST(ItemsSchemaValidator, WalksEachElement) {
  const auto checked = check<ItemsSchemaValidator>({"a", {{"b", 1}}, 2}, {{"const", "a"}});
  EXPECT_THAT(checked.annotations, ElementsAre(at("/value/1", ConstConstraintViolation{"a"}),
                                               at("/value/1/b", UnusedItem{}),
                                               at("/value/2", ConstConstraintViolation{"a"})));
  EXPECT_THAT(checked.names, IsEmpty());
}

TEST(ItemsSchemaValidator, AnEmptyArrayPasses) {
  EXPECT_THAT(check<ItemsSchemaValidator>(json::array(), false).annotations, IsEmpty());
}

TEST(ItemsSchemaValidator, ValuesThatAreNoArraysPassWhateverTheParameterIs) {
  EXPECT_THAT(check<ItemsSchemaValidator>({{"0", 1}}, 3).annotations, IsEmpty());
  EXPECT_THAT(check<ItemsSchemaValidator>("text", {{"type", "boolean"}}).annotations, IsEmpty());
}

TEST(ItemsSchemaValidator, TheParameterMustBeASchemaIfThereAreElements) {
  EXPECT_EQ(faultOf<ItemsSchemaValidator>({1}, 3),
            "/: A schema must be defined by either an object or a boolean.");
  EXPECT_EQ(faultOf<ItemsSchemaValidator>({1}, {{"type", "boolean"}}),
            "/type: The provided type is invalid.");
}

}  // namespace
}  // namespace jsv
