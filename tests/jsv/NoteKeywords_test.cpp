#include "jsv/NoteKeywords.h"

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

TEST(DescriptionSchemaValidator, PassesTheTextOn) {
  const auto checked = check<DescriptionSchemaValidator>(3, "The number of cells.");
  EXPECT_THAT(checked.annotations,
              ElementsAre(at("/value", DescriptionAnnotation{"The number of cells."})));
  EXPECT_THAT(checked.names, IsEmpty());
}

TEST(DescriptionSchemaValidator, TheParameterMustBeAString) {
  EXPECT_EQ(faultOf<DescriptionSchemaValidator>(3, json::array({"text"})),
            "/keyword: This keyword requires a string parameter.");
}

TEST(DefaultValueSchemaValidator, PassesStringsAndNumbersOn) {
  for (const auto& parameter : {json("text"), json(0), json(-2), json(0.02)}) {
    const auto checked = check<DefaultValueSchemaValidator>(3, parameter);
    EXPECT_THAT(checked.annotations, ElementsAre(at("/value", DefaultValueAnnotation{parameter})));
    EXPECT_THAT(checked.names, IsEmpty());
  }
}

TEST(DefaultValueSchemaValidator, AnyOtherParameterIsAFault) {
  for (const auto& parameter : {json(true), json(nullptr), json::array({1}), json{{"a", 1}}}) {
    EXPECT_EQ(faultOf<DefaultValueSchemaValidator>(3, parameter),
              "/keyword: Only string and numeric default values are supported.");
  }
}

TEST(FormatSchemaValidator, InformsThatTheValueIsAUriAndDoesNotLookAtIt) {
  for (const auto& value : {json("file://a"), json("no uri"), json(3)}) {
    const auto checked = check<FormatSchemaValidator>(value, "uri");
    EXPECT_THAT(checked.annotations, ElementsAre(at("/value", StringIsURIAnnotation{})));
    EXPECT_THAT(checked.names, IsEmpty());
  }
}

TEST(FormatSchemaValidator, AnyOtherFormatIsAFaultEvenOfAValidValue) {
  for (const auto& parameter : {json("date"), json("URI"), json(""), json(3), json(nullptr)}) {
    EXPECT_EQ(faultOf<FormatSchemaValidator>("2020-02-02", parameter),
              "/keyword: Only the 'uri' format is currently supported.");
  }
}

TEST(NoCheckSchemaValidator, LetsAnyValueAndAnyParameterPass) {
  for (const auto& any : {json(1), json("a"), json(nullptr), json::array({1}), json{{"a", 1}}}) {
    EXPECT_THAT(check<NoCheckSchemaValidator>(any, any).annotations, IsEmpty());
    EXPECT_THAT(check<NoCheckSchemaValidator>(any, any).names, IsEmpty());
  }
}

}  // namespace
}  // namespace jsv
