#include "jsv/keywords/ConstSchemaValidator.h"

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

}  // namespace
}  // namespace jsv
