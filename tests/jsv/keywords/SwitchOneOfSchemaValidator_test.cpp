#include "jsv/keywords/SwitchOneOfSchemaValidator.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <optional>
#include <vector>

#include "jsv/report.h"

namespace jsv {
namespace {

using nlohmann::json;
using test::at;
using test::check;
using test::faultOf;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

const auto CASES = json::parse(R"([
    {"properties": {"kind": {"const": "weir"}}, "required": ["height"]},
    {"properties": {"kind": {"const": "gate"}}, "required": ["opening"],
     "oneOf": [{"required": ["file"]}, {"required": ["values"]}]}])");

std::vector<LocatedAnnotation> issuesOf(const AnnotationCollection& annotations) {
  std::vector<LocatedAnnotation> issues;
  for (const auto& located : annotations) {
    if (IssueFilter::filter(located.second)) issues.push_back(located);
  }
  return issues;
}

TEST(SwitchOneOfSchemaValidator, TheSelectedCaseIsChecked) {
  const auto checked = check<SwitchOneOfSchemaValidator>({{"kind", "weir"}}, CASES);
  EXPECT_THAT(issuesOf(checked.annotations), ElementsAre(at("/value/height", MissingItem{})));
  EXPECT_THAT(
      check<SwitchOneOfSchemaValidator>({{"kind", "weir"}, {"height", 1}}, CASES).annotations,
      ElementsAre(at("/value/kind", RequiredTypeAnnotation{JsonTypeClass::String}),
                  at("/value/kind", EnumRequiredAnnotation{makeSortable({"gate", "weir"})})));
}

TEST(SwitchOneOfSchemaValidator, CasesMayBeNested) {
  const auto checked = check<SwitchOneOfSchemaValidator>({{"kind", "gate"}, {"opening", 1}}, CASES);
  EXPECT_THAT(
      issuesOf(checked.annotations),
      ElementsAre(at("/value", MissingExclusiveItemsViolation{makeSortable({"file", "values"})})));
}

TEST(SwitchOneOfSchemaValidator, AccountsForAllItemsOfTheObject) {
  EXPECT_THAT(check<SwitchOneOfSchemaValidator>({{"kind", "weir"}, {"x", 1}}, CASES).names,
              ElementsAre("kind", "x"));
  EXPECT_THAT(check<SwitchOneOfSchemaValidator>({{"x", 1}}, CASES).names, ElementsAre("x"));
}

TEST(SwitchOneOfSchemaValidator, AnUnknownCaseIsAFaultAtTheVariableAndNoCaseIsChecked) {
  const auto checked = check<SwitchOneOfSchemaValidator>({{"kind", "dam"}}, CASES);
  EXPECT_THAT(
      issuesOf(checked.annotations),
      ElementsAre(at("/value/kind", EnumConstraintViolation{makeSortable({"gate", "weir"})})));
}

TEST(SwitchOneOfSchemaValidator, AMissingVariableIsAFaultAndNoCaseIsChecked) {
  const auto checked = check<SwitchOneOfSchemaValidator>(json::object(), CASES);
  EXPECT_THAT(
      checked.annotations,
      ElementsAre(at("/value", ValidAdditionalKeyAnnotation{"kind"}),
                  at("/value/kind", MissingItem{}),
                  at("/value/kind", RequiredTypeAnnotation{JsonTypeClass::String}),
                  at("/value/kind", EnumRequiredAnnotation{makeSortable({"gate", "weir"})})));
}

TEST(SwitchOneOfSchemaValidator, AVariableThatIsNoStringIsAFaultAndNoCaseIsChecked) {
  const auto checked = check<SwitchOneOfSchemaValidator>({{"kind", 1}}, CASES);
  EXPECT_THAT(issuesOf(checked.annotations),
              ElementsAre(at("/value/kind", IncorrectType{JsonTypeClass::String})));
}

TEST(SwitchOneOfSchemaValidator, WithoutCasesAnObjectIsInvalid) {
  const auto checked = check<SwitchOneOfSchemaValidator>({{"a", 1}}, json::array());
  EXPECT_THAT(checked.annotations, ElementsAre(at("/value", InvalidItem{})));
  EXPECT_THAT(checked.names, ElementsAre("a"));
}

TEST(SwitchOneOfSchemaValidator, ValuesThatAreNoObjectsPass) {
  EXPECT_THAT(check<SwitchOneOfSchemaValidator>(json::array({1}), CASES).annotations, IsEmpty());
  EXPECT_THAT(check<SwitchOneOfSchemaValidator>(1, json::array()).names, IsEmpty());
}

TEST(SwitchOneOfSchemaValidator, FaultyCasesAreFaultsOfTheSchema) {
  const auto fault = [](const char* cases) {
    return faultOf<SwitchOneOfSchemaValidator>({{"k", "a"}}, json::parse(cases));
  };
  EXPECT_EQ(fault(R"({})"), "/keyword: This keyword requires an array parameter.");
  EXPECT_EQ(
      fault(R"([{"properties": {"k": {"const": "a"}}}, {"properties": {"k": {"const": "a"}}}])"),
      "/keyword: The cases must be distinct.");
  EXPECT_EQ(fault(R"([{"properties": {"k": {"const": "a"}, "l": {}}}])"),
            "/keyword/0/properties: Only single items are supported.");
  EXPECT_EQ(fault(R"([{"properties": {}}])"),
            "/keyword/0/properties: Only single items are supported.");
  EXPECT_EQ(fault(R"([{"properties": ["k"]}])"),
            "/keyword/0/properties: This keyword requires an object parameter.");
  EXPECT_EQ(fault(R"([{"properties": {"k": {"const": 1}}}])"),
            "/keyword/0/properties/k/const: This keyword requires a string parameter.");
  EXPECT_EQ(fault(R"([{"properties": {"k": {}}}])"),
            "/keyword/0/properties/k/const: This item is required.");
  EXPECT_EQ(
      fault(R"([{"properties": {"k": {"const": "a"}}}, {"properties": {"l": {"const": "b"}}}])"),
      "/keyword/1/properties/k/const: This item is required.");
}

TEST(SwitchOneOfSchemaValidator, CasesAdmitThreeKeywordsOnly) {
  EXPECT_EQ(faultOf<SwitchOneOfSchemaValidator>({{"k", "a"}}, json::parse(R"([
          {"description": "Case a.", "properties": {"k": {"const": "a"}}}])")),
            "/keyword/0/description: Only the keywords 'properties', 'required' and 'oneOf' are "
            "supported here.");
}

class SwitchPartsTest : public ::testing::Test {
 protected:
  const json document_ = json::parse(R"({"kind": "gate", "opening": 1})");
  const json schema_ = {{"oneOf", CASES}, {"empty", json::array()}};
  const SwitchOneOfSchemaValidator validator_{document_, schema_};
  const JsonPointer oneOf_{"/oneOf"};
};

TEST_F(SwitchPartsTest, KeysAreThoseOfTheObject) {
  EXPECT_THAT(SwitchOneOfSchemaValidator::keys(document_), ElementsAre("kind", "opening"));
  EXPECT_THAT(SwitchOneOfSchemaValidator::keys(json::object()), IsEmpty());
}

TEST_F(SwitchPartsTest, TheFirstCaseNamesTheVariable) {
  EXPECT_EQ(validator_.guessSwitchVariableName(oneOf_), "kind");
  EXPECT_THROW(validator_.guessSwitchVariableName(JsonPointer("/empty")), InvalidSchemaException);
}

TEST_F(SwitchPartsTest, CasesAreSorted) {
  EXPECT_THAT(validator_.sortedCases(oneOf_, "kind"), ElementsAre("gate", "weir"));
  EXPECT_THAT(validator_.sortedCases(JsonPointer("/empty"), "kind"), IsEmpty());
  EXPECT_THROW(validator_.sortedCases(oneOf_, "sort"), InvalidSchemaException);
}

TEST_F(SwitchPartsTest, DuplicatesAreEqualNeighbours) {
  EXPECT_TRUE(SwitchOneOfSchemaValidator::hasDuplicateCases(makeSortable({"a", "b", "a"})));
  EXPECT_FALSE(SwitchOneOfSchemaValidator::hasDuplicateCases(makeSortable({"a", "b"})));
  EXPECT_FALSE(SwitchOneOfSchemaValidator::hasDuplicateCases(makeSortable({"a"})));
  EXPECT_FALSE(SwitchOneOfSchemaValidator::hasDuplicateCases(makeSortable({})));
}

TEST_F(SwitchPartsTest, CasesAreNumberedInTheOrderOfTheSchema) {
  EXPECT_EQ(validator_.matchingCaseNumber("weir", oneOf_, "kind"), 0);
  EXPECT_EQ(validator_.matchingCaseNumber("gate", oneOf_, "kind"), 1);
  EXPECT_EQ(validator_.matchingCaseNumber("dam", oneOf_, "kind"), std::nullopt);
}

TEST_F(SwitchPartsTest, ASingleItemIsAskedFor) {
  EXPECT_NO_THROW(validator_.checkIfSingleItemSchemaObject(oneOf_ / 0 / "properties"));
  EXPECT_THROW(validator_.checkIfSingleItemSchemaObject(oneOf_ / 1), InvalidSchemaException);
  EXPECT_THROW(validator_.checkIfSingleItemSchemaObject(oneOf_), InvalidTypeSchemaException);
}

TEST_F(SwitchPartsTest, ACaseAccountsForWhatItsKeywordsName) {
  AnnotationCollection collection;
  EXPECT_THAT(validator_.validateCaseSchema(JsonPointer(), oneOf_ / 1, collection),
              ElementsAre("opening"));
  EXPECT_THROW(validator_.validateCaseSchema(JsonPointer(), oneOf_, collection),
               InvalidTypeSchemaException);
}

}  // namespace
}  // namespace jsv
