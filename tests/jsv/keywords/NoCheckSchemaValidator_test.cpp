#include "jsv/keywords/NoCheckSchemaValidator.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "jsv/report.h"

namespace jsv {
namespace {

using nlohmann::json;
using test::check;
using ::testing::IsEmpty;

TEST(NoCheckSchemaValidator, LetsAnyValueAndAnyParameterPass) {
  for (const auto& any : {json(1), json("a"), json(nullptr), json::array({1}), json{{"a", 1}}}) {
    EXPECT_THAT(check<NoCheckSchemaValidator>(any, any).annotations, IsEmpty());
    EXPECT_THAT(check<NoCheckSchemaValidator>(any, any).names, IsEmpty());
  }
}

}  // namespace
}  // namespace jsv
