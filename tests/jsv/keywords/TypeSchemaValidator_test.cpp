#include "jsv/keywords/TypeSchemaValidator.h"

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

}  // namespace
}  // namespace jsv
