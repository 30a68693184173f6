#include "jsv/keywords/RequiredInSchemaValidator.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "jsv/report.h"

namespace jsv {
namespace {

using nlohmann::json;
using test::at;
using test::check;
using test::faultOf;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// Validates the item "use" of a document whose item "a" is an array of named regions.
test::Report validateUse(const std::string& use, const std::string& pointer = "/a/regions",
                         const std::string& property = "name") {
  const json reference = {{"$array_ref", pointer}, {"itemProperty", property}};
  const json schema = {{"required", {"a", "use"}},
                       {"properties", {{"a", true}, {"use", {{"requiredIn", reference}}}}}};
  return test::validate(
      R"({"a": {"regions": [{"name": "river"}, {"name": "bank", "id": 1}, {"id": 2}]}, "use": )" +
          use + "}",
      schema.dump());
}

TEST(RequiredInSchemaValidator, ANameOfTheArrayPasses) {
  EXPECT_EQ(validateUse(R"("river")").text, "");
  EXPECT_EQ(validateUse(R"("bank")").text, "");
}

TEST(RequiredInSchemaValidator, AnotherValueIsAFault) {
  const std::string fault = "/use: This value must match a 'name' in '/a/regions'.\n";
  for (const auto* use : {R"("hill")", "1", "null", R"(["river"])"}) {
    EXPECT_EQ(validateUse(use).text, fault) << use;
  }
}

TEST(RequiredInSchemaValidator, AnItemWithoutANameOffersTheEmptyString) {
  EXPECT_EQ(validateUse(R"("")").text, "");
}

TEST(RequiredInSchemaValidator, AnAbsentArrayOffersNoNames) {
  const auto report = validateUse(R"("river")", "/b/0");
  EXPECT_EQ(report.verdict, 2);
  EXPECT_EQ(report.text, "/use: This value must match a 'name' in '/b/0'.\n");
}

TEST(RequiredInSchemaValidator, NamesThatAreNoStringsMatchNothing) {
  EXPECT_EQ(validateUse("1", "/a/regions", "id").text,
            "/use: This value must match a 'id' in '/a/regions'.\n");
}

TEST(RequiredInSchemaValidator, InformsOfTheNamesSorted) {
  const json document = json::parse(R"({"list": [{"n": "b"}, {"n": "a"}], "use": "b"})");
  const json schema = {{"requiredIn", {{"$array_ref", "/list"}, {"itemProperty", "n"}}}};
  AnnotationCollection collection;
  EXPECT_THAT(RequiredInSchemaValidator(document, schema)
                  .check(JsonPointer("/use"), JsonPointer("/requiredIn"), collection),
              IsEmpty());
  EXPECT_THAT(collection,
              ElementsAre(at("/use", EnumRequiredAnnotation{makeSortable({"a", "b"})})));
}

TEST(RequiredInSchemaValidator, TheReferenceIsIntoTheWholeDocumentAlsoBelowOtherItems) {
  const auto report = test::validate(R"({"list": [{"n": "x"}], "deep": {"uses": ["x", "y"]}})", R"({
      "required": ["list", "deep"], "properties": {"deep": {"required": ["uses"], "properties": {
      "uses": {"items": {"requiredIn": {"$array_ref": "/list", "itemProperty": "n"}}}}}}})");
  EXPECT_EQ(report.text, "/deep/uses/1: This value must match a 'n' in '/list'.\n");
}

TEST(RequiredInSchemaValidator, TheParameterMustHoldTwoStrings) {
  EXPECT_EQ(faultOf<RequiredInSchemaValidator>(1, json::object()),
            "/keyword/$array_ref: This item is required.");
  EXPECT_EQ(faultOf<RequiredInSchemaValidator>(1, "/a"),
            "/keyword/$array_ref: This item is required.");
  EXPECT_EQ(faultOf<RequiredInSchemaValidator>(1, {{"$array_ref", 1}, {"itemProperty", "n"}}),
            "/keyword/$array_ref: This keyword requires a string parameter.");
  EXPECT_EQ(faultOf<RequiredInSchemaValidator>(1, {{"$array_ref", "/a"}}),
            "/keyword/itemProperty: This item is required.");
  EXPECT_EQ(
      faultOf<RequiredInSchemaValidator>(1, {{"$array_ref", "/a"}, {"itemProperty", nullptr}}),
      "/keyword/itemProperty: This keyword requires a string parameter.");
}

TEST(RequiredInSchemaValidator, TheReferenceMustBeAJsonPointer) {
  for (const auto* pointer : {"a", "/a~", "/a~2"}) {
    EXPECT_EQ(
        faultOf<RequiredInSchemaValidator>(1, {{"$array_ref", pointer}, {"itemProperty", "n"}}),
        "/keyword/$array_ref: This JSON pointer is invalid.");
  }
}

}  // namespace
}  // namespace jsv
