#include "jsv/keywords/ItemsSchemaValidator.h"

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

TEST(ItemsSchemaValidator, WalksEachElement) {
  const auto checked = check<ItemsSchemaValidator>({"a", {{"b", 1}}, 2}, {{"const", "a"}});
  EXPECT_THAT(checked.annotations, ElementsAre(at("/value/1", ConstConstraintViolation{"a"}),
                                               at("/value/1/b", UnusedItem{}),
                                               at("/value/2", ConstConstraintViolation{"a"})));
  EXPECT_THAT(checked.names, IsEmpty());
}

TEST(ItemsSchemaValidator, AnEmptyArrayPasses) {
  EXPECT_THAT(check<ItemsSchemaValidator>(json::array(), false).annotations, IsEmpty());
}

TEST(ItemsSchemaValidator, ValuesThatAreNoArraysPassWhateverTheParameterIs) {
  EXPECT_THAT(check<ItemsSchemaValidator>({{"0", 1}}, 3).annotations, IsEmpty());
  EXPECT_THAT(check<ItemsSchemaValidator>("text", {{"type", "boolean"}}).annotations, IsEmpty());
}

TEST(ItemsSchemaValidator, TheParameterMustBeASchemaIfThereAreElements) {
  EXPECT_EQ(faultOf<ItemsSchemaValidator>({1}, 3),
            "/: A schema must be defined by either an object or a boolean.");
  EXPECT_EQ(faultOf<ItemsSchemaValidator>({1}, {{"type", "boolean"}}),
            "/type: The provided type is invalid.");
}

}  // namespace
}  // namespace jsv
