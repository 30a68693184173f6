#include "jsv/BaseSchemaValidator.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "jsv/report.h"

namespace jsv {
namespace {

using nlohmann::json;
using test::schemaFault;
using test::validate;
using ::testing::ElementsAre;

TEST(BaseSchemaValidator, TrueLetsAnythingPass) {
  for (const auto* document : {"3", "null", "[1, {}]", R"({"a": {"b": 1}})"}) {
    const auto report = validate(document, "true");
    EXPECT_EQ(report.verdict, 0);
    EXPECT_EQ(report.text, "");
  }
}

TEST(BaseSchemaValidator, TrueBelowAnItemLetsAnythingPassThere) {
  const auto report =
      validate(R"({"a": {"b": {"c": 1}}})", R"({"required": ["a"], "properties": {"a": true}})");
  EXPECT_EQ(report.verdict, 0);
  EXPECT_EQ(report.text, "");
}

TEST(BaseSchemaValidator, FalseLetsNothingPass) {
  EXPECT_EQ(validate("3", "false").text, "/: This item is invalid.\n");
  const auto report =
      validate(R"({"a": {"b": 1}})", R"({"required": ["a"], "properties": {"a": false}})");
  EXPECT_EQ(report.verdict, 2);
  EXPECT_EQ(report.text, "/a: This item is invalid.\n");
}

TEST(BaseSchemaValidator, ASchemaIsAnObjectOrABoolean) {
  for (const auto* schema : {"1", "[]", "\"type\"", "null"}) {
    const auto report = validate("{}", schema);
    EXPECT_EQ(report.verdict, 2);
    EXPECT_EQ(report.text,
              schemaFault("/: A schema must be defined by either an object or a boolean."));
  }
}

TEST(BaseSchemaValidator, TheEmptySchemaMarksEveryItemAtEveryDepth) {
  const auto report = validate(R"({"a": {"b": {"c": 1}, "d": [{"e": 1}]}, "f": 2})", "{}");
  EXPECT_EQ(report.verdict, 1);
  EXPECT_EQ(report.text,
            "/a: The value of this item will not be used.\n"
            "/a/b: The value of this item will not be used.\n"
            "/a/b/c: The value of this item will not be used.\n"
            "/a/d: The value of this item will not be used.\n"
            "/f: The value of this item will not be used.\n");
}

TEST(BaseSchemaValidator, PropertiesAloneDoNotMakeAnItemUsedButValidateIt) {
  const auto report = validate(R"({"a": 1})", R"({"properties": {"a": {"type": "string"}}})");
  EXPECT_EQ(report.verdict, 2);
  EXPECT_EQ(report.text,
            "/a: This value must be a string.\n"
            "/a: The value of this item will not be used.\n");
}

TEST(BaseSchemaValidator, RequiredOptionalAndOneOfMakeItemsUsed) {
  const auto report = validate(R"({"a": 1, "b": 2, "c": 3, "x": 4})", R"({
      "required": ["a"], "optional": ["b"], "oneOf": [{"required": ["c"]}, {"required": ["d"]}]})");
  EXPECT_EQ(report.verdict, 1);
  EXPECT_EQ(report.text, "/x: The value of this item will not be used.\n");
}

TEST(BaseSchemaValidator, AUsedItemWithoutASchemaHasItsOwnItemsMarked) {
  const auto report = validate(R"({"a": {"b": 1}})", R"({"required": ["a"]})");
  EXPECT_EQ(report.verdict, 1);
  EXPECT_EQ(report.text, "/a/b: The value of this item will not be used.\n");
}

TEST(BaseSchemaValidator, AnItemMissingBelowPropertiesIsReportedAtItsOwnPlace) {
  const auto report = validate(R"({"a": {"b": {}}})", R"({"required": ["a"], "properties": {"a": {
      "required": ["b"], "properties": {"b": {"required": ["c"]}}}}})");
  EXPECT_EQ(report.verdict, 2);
  EXPECT_EQ(report.text, "/a/b/c: This item is required but missing.\n");
}

TEST(BaseSchemaValidator, AnUnknownKeywordIsAFaultAtItsPlace) {
  const auto report = validate("{}", R"({"pattern": "[a-z]*"})");
  EXPECT_EQ(report.verdict, 2);
  EXPECT_EQ(report.text, schemaFault("/pattern: The keyword 'pattern' is not supported."));
}

TEST(BaseSchemaValidator, ASwitchOfABoundMustBeABoolean) {
  const auto report = validate("1", R"({"minimum": 0, "exclusiveMinimum": 1})");
  EXPECT_EQ(report.verdict, 2);
  EXPECT_EQ(report.text,
            schemaFault("/exclusiveMinimum: This keyword requires a boolean parameter."));
}

TEST(BaseSchemaValidator, ASwitchWithoutItsBoundHasNoEffect) {
  EXPECT_EQ(validate("0", R"({"exclusiveMinimum": true})").verdict, 0);
  EXPECT_EQ(validate("0", R"({"exclusiveMaximum": true})").verdict, 0);
}

TEST(BaseSchemaValidator, FaultsOfASchemaArePlacedInTheInnermostSchema) {
  EXPECT_EQ(validate(R"({"a": {"b": 1}})",
                     R"({"properties": {"a": {"properties": {"b": {"type": "boolean"}}}}})")
                .text,
            schemaFault("/type: The provided type is invalid."));
  EXPECT_EQ(validate("[[1]]", R"({"items": {"items": {"enum": [1]}}})").text,
            schemaFault("/enum/0: This keyword requires a string parameter."));
  EXPECT_EQ(validate(R"({"a": 1})", R"({"properties": {"a": 3}})").text,
            schemaFault("/: A schema must be defined by either an object or a boolean."));
}

TEST(BaseSchemaValidator, TheFirstFaultInTheOrderOfKeysIsReported) {
  EXPECT_EQ(validate("1", R"({"type": "boolean", "enum": 1, "zzz": 1})").text,
            schemaFault("/enum: This keyword requires an array parameter."));
}

TEST(BaseSchemaValidator, AFaultBelowAnAbsentItemIsNotFound) {
  EXPECT_EQ(validate("{}", R"({"properties": {"a": {"type": "boolean"}}})").verdict, 0);
}

TEST(BaseSchemaValidator, AccountsForNoNames) {
  const json document = {{"a", 1}};
  const json schema = {{"required", {"a"}}};
  AnnotationCollection collection;
  EXPECT_THAT(BaseSchemaValidator(document, schema).check(JsonPointer(), JsonPointer(), collection),
              ::testing::IsEmpty());
}

TEST(BaseSchemaValidator, ChecksWithASchemaBelowTheRoot) {
  const json document = {{"a", 1}};
  const json schema = {{"definition", {{"type", "string"}}}};
  FilteredAnnotationCollection<IssueFilter> collection;
  BaseSchemaValidator(document, schema)
      .check(JsonPointer("/a"), JsonPointer("/definition"), collection);
  EXPECT_THAT(collection, ElementsAre(test::at("/a", IncorrectType{JsonTypeClass::String})));
}

TEST(BaseSchemaValidator, ReadsOptionalItems) {
  const json document;
  const json schema = {{"good", {"b", "a"}}, {"bad", {"a", 1}}, {"text", "a"}};
  const BaseSchemaValidator validator(document, schema);
  EXPECT_THAT(validator.readOptionalItems(JsonPointer("/good")), ElementsAre("b", "a"));
  EXPECT_THROW(validator.readOptionalItems(JsonPointer("/bad")), InvalidTypeSchemaException);
  EXPECT_THROW(validator.readOptionalItems(JsonPointer("/text")), InvalidTypeSchemaException);
}

}  // namespace
}  // namespace jsv
