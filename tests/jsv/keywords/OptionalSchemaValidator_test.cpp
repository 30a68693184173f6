#include "jsv/keywords/OptionalSchemaValidator.h"

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

TEST(OptionalSchemaValidator, InformsOfEachItemAndOfThoseThatCouldBeAdded) {
  const auto checked = check<OptionalSchemaValidator>({{"a", 1}}, {"b", "a"});
  EXPECT_THAT(checked.annotations, ElementsAre(at("/value", ValidAdditionalKeyAnnotation{"b"}),
                                               at("/value/a", OptionalItemAnnotation{}),
                                               at("/value/b", OptionalItemAnnotation{})));
  EXPECT_THAT(checked.names, IsEmpty());
}

TEST(OptionalSchemaValidator, ValuesThatAreNoObjectsPass) {
  EXPECT_THAT(check<OptionalSchemaValidator>(json::array({"a"}), {"a"}).annotations, IsEmpty());
  EXPECT_THAT(check<OptionalSchemaValidator>(1, {"a"}).annotations, IsEmpty());
}

TEST(OptionalSchemaValidator, TheParameterMustBeAnArrayOfStringsWhateverTheValueIs) {
  EXPECT_EQ(faultOf<OptionalSchemaValidator>(1, true),
            "/keyword: This keyword requires an array parameter.");
  EXPECT_EQ(faultOf<OptionalSchemaValidator>(1, {"a", json::array()}),
            "/keyword/1: This keyword requires a string parameter.");
}

}  // namespace
}  // namespace jsv
