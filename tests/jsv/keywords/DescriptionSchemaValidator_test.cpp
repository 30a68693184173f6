#include "jsv/keywords/DescriptionSchemaValidator.h"

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

}  // namespace
}  // namespace jsv
