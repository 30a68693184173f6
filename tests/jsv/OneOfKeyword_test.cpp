#include "jsv/OneOfKeyword.h"

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

const auto SWITCHED = json::parse(R"([
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
  const auto checked = check<SwitchOneOfSchemaValidator>({{"kind", "weir"}}, SWITCHED);
  EXPECT_THAT(issuesOf(checked.annotations), ElementsAre(at("/value/height", MissingItem{})));
  EXPECT_THAT(
      check<SwitchOneOfSchemaValidator>({{"kind", "weir"}, {"height", 1}}, SWITCHED).annotations,
      ElementsAre(at("/value/kind", RequiredTypeAnnotation{JsonTypeClass::String}),
                  at("/value/kind", EnumRequiredAnnotation{makeSortable({"gate", "weir"})})));
}

TEST(SwitchOneOfSchemaValidator, CasesMayBeNested) {
  const auto checked =
      check<SwitchOneOfSchemaValidator>({{"kind", "gate"}, {"opening", 1}}, SWITCHED);
  EXPECT_THAT(
      issuesOf(checked.annotations),
      ElementsAre(at("/value", MissingExclusiveItemsViolation{makeSortable({"file", "values"})})));
}

TEST(SwitchOneOfSchemaValidator, AccountsForAllItemsOfTheObject) {
  EXPECT_THAT(check<SwitchOneOfSchemaValidator>({{"kind", "weir"}, {"x", 1}}, SWITCHED).names,
              ElementsAre("kind", "x"));
  EXPECT_THAT(check<SwitchOneOfSchemaValidator>({{"x", 1}}, SWITCHED).names, ElementsAre("x"));
}

TEST(SwitchOneOfSchemaValidator, AnUnknownCaseIsAFaultAtTheVariableAndNoCaseIsChecked) {
  const auto checked = check<SwitchOneOfSchemaValidator>({{"kind", "dam"}}, SWITCHED);
  EXPECT_THAT(
      issuesOf(checked.annotations),
      ElementsAre(at("/value/kind", EnumConstraintViolation{makeSortable({"gate", "weir"})})));
}

TEST(SwitchOneOfSchemaValidator, AMissingVariableIsAFaultAndNoCaseIsChecked) {
  const auto checked = check<SwitchOneOfSchemaValidator>(json::object(), SWITCHED);
  EXPECT_THAT(
      checked.annotations,
      ElementsAre(at("/value", ValidAdditionalKeyAnnotation{"kind"}),
                  at("/value/kind", MissingItem{}),
                  at("/value/kind", RequiredTypeAnnotation{JsonTypeClass::String}),
                  at("/value/kind", EnumRequiredAnnotation{makeSortable({"gate", "weir"})})));
}

TEST(SwitchOneOfSchemaValidator, AVariableThatIsNoStringIsAFaultAndNoCaseIsChecked) {
  const auto checked = check<SwitchOneOfSchemaValidator>({{"kind", 1}}, SWITCHED);
  EXPECT_THAT(issuesOf(checked.annotations),
              ElementsAre(at("/value/kind", IncorrectType{JsonTypeClass::String})));
}

TEST(SwitchOneOfSchemaValidator, WithoutCasesAnObjectIsInvalid) {
  const auto checked = check<SwitchOneOfSchemaValidator>({{"a", 1}}, json::array());
  EXPECT_THAT(checked.annotations, ElementsAre(at("/value", InvalidItem{})));
  EXPECT_THAT(checked.names, ElementsAre("a"));
}

TEST(SwitchOneOfSchemaValidator, ValuesThatAreNoObjectsPass) {
  EXPECT_THAT(check<SwitchOneOfSchemaValidator>(json::array({1}), SWITCHED).annotations, IsEmpty());
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
  const json schema_ = {{"oneOf", SWITCHED}, {"empty", json::array()}};
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

const auto EXCLUSIVE =
    json::parse(R"([{"required": ["c"]}, {"required": ["a"]}, {"required": ["b"]}])");

TEST(NonSwitchOneOfSchemaValidator, ExactlyOneItemPasses) {
  const auto checked = check<NonSwitchOneOfSchemaValidator>({{"b", 1}, {"x", 1}}, EXCLUSIVE);
  EXPECT_THAT(checked.annotations, IsEmpty());
  EXPECT_THAT(checked.names, ElementsAre("b"));
}

TEST(NonSwitchOneOfSchemaValidator, NoItemIsAFaultThatListsAllSorted) {
  const auto checked = check<NonSwitchOneOfSchemaValidator>({{"x", 1}}, EXCLUSIVE);
  EXPECT_THAT(
      checked.annotations,
      ElementsAre(at("/value", MissingExclusiveItemsViolation{makeSortable({"a", "b", "c"})})));
  EXPECT_THAT(checked.names, IsEmpty());
}

TEST(NonSwitchOneOfSchemaValidator, TwoItemsAreAFaultThatNamesBoth) {
  const auto checked = check<NonSwitchOneOfSchemaValidator>({{"c", 1}, {"a", 1}}, EXCLUSIVE);
  EXPECT_THAT(checked.annotations, ElementsAre(at("/value", ExclusiveItemViolation{{"a", "c"}})));
  EXPECT_THAT(checked.names, ElementsAre("a", "c"));
}

TEST(NonSwitchOneOfSchemaValidator, OfThreeItemsTheFirstTwoInSortedOrderAreNamed) {
  const auto checked =
      check<NonSwitchOneOfSchemaValidator>({{"c", 1}, {"b", 1}, {"a", 1}}, EXCLUSIVE);
  EXPECT_THAT(checked.annotations, ElementsAre(at("/value", ExclusiveItemViolation{{"a", "b"}})));
  EXPECT_THAT(checked.names, ElementsAre("a", "b", "c"));
}

TEST(NonSwitchOneOfSchemaValidator, OtherKeywordsOfTheCasesAreNotApplied) {
  const auto cases = json::parse(R"([{"required": ["a"], "type": "array"}, {"required": ["b"]}])");
  EXPECT_THAT(check<NonSwitchOneOfSchemaValidator>({{"a", 1}}, cases).annotations, IsEmpty());
}

TEST(NonSwitchOneOfSchemaValidator, ValuesThatAreNoObjectsPass) {
  EXPECT_THAT(check<NonSwitchOneOfSchemaValidator>(json::array({"a"}), EXCLUSIVE).annotations,
              IsEmpty());
  EXPECT_THAT(check<NonSwitchOneOfSchemaValidator>(json::array({"a"}), EXCLUSIVE).names, IsEmpty());
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
