#include "jsv/keywords/ExtremumSchemaValidator.h"

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
using Minimum = ExtremumSchemaValidator<ExtremumType::Minimum>;
using ExclusiveMinimum = ExtremumSchemaValidator<ExtremumType::ExclusiveMinimum>;
using Maximum = ExtremumSchemaValidator<ExtremumType::Maximum>;
using ExclusiveMaximum = ExtremumSchemaValidator<ExtremumType::ExclusiveMaximum>;

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

}  // namespace
}  // namespace jsv
