#include "jsv/ValueKeywords.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "jsv/report.h"

namespace jsv {
namespace {

using ExclusiveMaximum = ExtremumSchemaValidator<ExtremumType::ExclusiveMaximum>;
using ExclusiveMinimum = ExtremumSchemaValidator<ExtremumType::ExclusiveMinimum>;
using Maximum = ExtremumSchemaValidator<ExtremumType::Maximum>;
using Minimum = ExtremumSchemaValidator<ExtremumType::Minimum>;
using nlohmann::json;
using test::at;
using test::check;
using test::faultOf;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

TEST(TypeSchemaValidator, AFittingValueGetsInformationOnly) {
  EXPECT_THAT(check<TypeSchemaValidator>(3, "number").annotations,
              ElementsAre(at("/value", RequiredTypeAnnotation{JsonTypeClass::Number})));
}

TEST(TypeSchemaValidator, AnotherValueIsAFault) {
  EXPECT_THAT(check<TypeSchemaValidator>("3", "number").annotations,
              ElementsAre(at("/value", IncorrectType{JsonTypeClass::Number}),
                          at("/value", RequiredTypeAnnotation{JsonTypeClass::Number})));
}

TEST(TypeSchemaValidator, IntegersAreNumbersButNotTheOtherWayRound) {
  EXPECT_THAT(check<TypeSchemaValidator>(3, "number").annotations.size(), 1);
  EXPECT_THAT(check<TypeSchemaValidator>(3.5, "number").annotations.size(), 1);
  EXPECT_THAT(check<TypeSchemaValidator>(3, "integer").annotations.size(), 1);
  EXPECT_THAT(check<TypeSchemaValidator>(3.0, "integer").annotations.size(), 2);
}

TEST(TypeSchemaValidator, BooleansAndNullFitNothing) {
  for (const auto* word : {"integer", "number", "string", "object", "array"}) {
    EXPECT_EQ(check<TypeSchemaValidator>(true, word).annotations.size(), 2) << word;
    EXPECT_EQ(check<TypeSchemaValidator>(nullptr, word).annotations.size(), 2) << word;
  }
}

TEST(TypeSchemaValidator, AccountsForNoNames) {
  EXPECT_THAT(check<TypeSchemaValidator>({{"a", 1}}, "object").names, IsEmpty());
}

TEST(TypeSchemaValidator, AWordThatIsNoClassIsAFaultOfTheSchema) {
  for (const auto* word : {"boolean", "null", "unknown", ""}) {
    EXPECT_EQ(faultOf<TypeSchemaValidator>(3, word), "/keyword: The provided type is invalid.");
  }
}

TEST(TypeSchemaValidator, TheParameterMustBeAString) {
  for (const auto& parameter : {json(3), json(nullptr), json::array({"string", "number"})}) {
    EXPECT_EQ(faultOf<TypeSchemaValidator>(3, parameter),
              "/keyword: This keyword requires a string parameter.");
  }
}

TEST(ConstSchemaValidator, AnEqualStringPasses) {
  EXPECT_THAT(check<ConstSchemaValidator>("weir", "weir").annotations, IsEmpty());
}

TEST(ConstSchemaValidator, AnythingElseIsAFault) {
  for (const auto& value : {json("gate"), json(""), json("weir "), json(3), json(nullptr),
                            json::array({"weir"}), json{{"weir", 1}}}) {
    const auto checked = check<ConstSchemaValidator>(value, "weir");
    EXPECT_THAT(checked.annotations, ElementsAre(at("/value", ConstConstraintViolation{"weir"})));
    EXPECT_THAT(checked.names, IsEmpty());
  }
}

TEST(ConstSchemaValidator, ANumberNeverMatches) {
  EXPECT_THAT(check<ConstSchemaValidator>(3, "3").annotations,
              ElementsAre(at("/value", ConstConstraintViolation{"3"})));
  EXPECT_EQ(faultOf<ConstSchemaValidator>(3, 3),
            "/keyword: This keyword requires a string parameter.");
}

TEST(EnumSchemaValidator, OneOfTheStringsGetsInformationOnly) {
  EXPECT_THAT(check<EnumSchemaValidator>("a", {"b", "a"}).annotations,
              ElementsAre(at("/value", EnumRequiredAnnotation{makeSortable({"a", "b"})})));
}

TEST(EnumSchemaValidator, AnotherStringIsAFaultThatCarriesTheOptionsSorted) {
  EXPECT_THAT(check<EnumSchemaValidator>("d", {"b", "c", "a"}).annotations,
              ElementsAre(at("/value", EnumConstraintViolation{makeSortable({"a", "b", "c"})}),
                          at("/value", EnumRequiredAnnotation{makeSortable({"a", "b", "c"})})));
}

TEST(EnumSchemaValidator, AValueThatIsNoStringIsAFaultToo) {
  for (const auto& value : {json(1), json(true), json::array({"1"}), json{{"1", 1}}}) {
    const auto checked = check<EnumSchemaValidator>(value, {"1"});
    EXPECT_EQ(numberOf(AnnotationType::Error, checked.annotations), 1);
    EXPECT_THAT(checked.names, IsEmpty());
  }
}

TEST(EnumSchemaValidator, NothingIsAmongNoStrings) {
  EXPECT_EQ(check<EnumSchemaValidator>("", json::array()).annotations.size(), 2);
}

TEST(EnumSchemaValidator, TheParameterMustBeAnArrayOfStrings) {
  EXPECT_EQ(faultOf<EnumSchemaValidator>("a", "a"),
            "/keyword: This keyword requires an array parameter.");
  EXPECT_EQ(faultOf<EnumSchemaValidator>("a", {"a", 1}),
            "/keyword/1: This keyword requires a string parameter.");
}

template <ExtremumType TYPE>
auto violation(double extremum) {
  return ElementsAre(at("/value", ExtremumConstraintViolation<TYPE>{extremum}));
}

TEST(ExtremumSchemaValidator, AMinimumTakesItsBound) {
  EXPECT_THAT(check<Minimum>(2.5, 2.5).annotations, IsEmpty());
  EXPECT_THAT(check<Minimum>(3, 2.5).annotations, IsEmpty());
  EXPECT_THAT(check<Minimum>(2, 2.5).annotations, violation<ExtremumType::Minimum>(2.5));
}

TEST(ExtremumSchemaValidator, AnExclusiveMinimumDoesNot) {
  EXPECT_THAT(check<ExclusiveMinimum>(1e-300, 0).annotations, IsEmpty());
  EXPECT_THAT(check<ExclusiveMinimum>(0, 0).annotations,
              violation<ExtremumType::ExclusiveMinimum>(0));
  EXPECT_THAT(check<ExclusiveMinimum>(-0.0, 0).annotations,
              violation<ExtremumType::ExclusiveMinimum>(0));
}

TEST(ExtremumSchemaValidator, AMaximumTakesItsBound) {
  EXPECT_THAT(check<Maximum>(-1, -1.0).annotations, IsEmpty());
  EXPECT_THAT(check<Maximum>(-2, -1.0).annotations, IsEmpty());
  EXPECT_THAT(check<Maximum>(-0.5, -1).annotations, violation<ExtremumType::Maximum>(-1));
}

TEST(ExtremumSchemaValidator, AnExclusiveMaximumDoesNot) {
  EXPECT_THAT(check<ExclusiveMaximum>(0.99, 1).annotations, IsEmpty());
  EXPECT_THAT(check<ExclusiveMaximum>(1.0, 1).annotations,
              violation<ExtremumType::ExclusiveMaximum>(1));
}

TEST(ExtremumSchemaValidator, LargeIntegersAreComparedInDoublePrecision) {
  const auto large = json::parse("18446744073709551615");
  EXPECT_THAT(check<Maximum>(large, 18446744073709551616.0).annotations, IsEmpty());
  EXPECT_THAT(check<ExclusiveMaximum>(large, 18446744073709551616.0).annotations,
              violation<ExtremumType::ExclusiveMaximum>(18446744073709551616.0));
  EXPECT_THAT(check<Minimum>(-1, large).annotations,
              violation<ExtremumType::Minimum>(18446744073709551615.0));
}

TEST(ExtremumSchemaValidator, ValuesThatAreNoNumbersPass) {
  for (const auto& value :
       {json("-1"), json(nullptr), json(false), json::array({-1}), json{{"a", -1}}}) {
    const auto checked = check<Minimum>(value, 0);
    EXPECT_THAT(checked.annotations, IsEmpty());
    EXPECT_THAT(checked.names, IsEmpty());
  }
}

TEST(ExtremumSchemaValidator, TheParameterMustBeANumberWhateverTheValueIs) {
  EXPECT_EQ(faultOf<Minimum>("text", "0"), "/keyword: This keyword requires a number parameter.");
  EXPECT_EQ(faultOf<ExclusiveMaximum>(1, true),
            "/keyword: This keyword requires a number parameter.");
}

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
