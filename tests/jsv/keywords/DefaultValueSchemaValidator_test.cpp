#include "jsv/keywords/DefaultValueSchemaValidator.h"

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

}  // namespace
}  // namespace jsv
