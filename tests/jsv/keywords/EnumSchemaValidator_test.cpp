#include "jsv/keywords/EnumSchemaValidator.h"

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

}  // namespace
}  // namespace jsv
