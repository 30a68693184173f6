#include "jsv/keywords/RequiredSchemaValidator.h"

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

TEST(RequiredSchemaValidator, AccountsForTheItemsThatAreThere) {
  const auto checked =
      check<RequiredSchemaValidator>({{"a", nullptr}, {"b", 1}, {"c", 2}}, {"b", "a"});
  EXPECT_THAT(checked.annotations, IsEmpty());
  EXPECT_THAT(checked.names, ElementsAre("a", "b"));
}

TEST(RequiredSchemaValidator, ReportsTheItemsThatAreNotAtTheirPlaces) {
  const auto checked = check<RequiredSchemaValidator>({{"a", 1}}, {"a", "b/c"});
  EXPECT_THAT(checked.annotations, ElementsAre(at("/value", ValidAdditionalKeyAnnotation{"b/c"}),
                                               at("/value/b~1c", MissingItem{})));
  EXPECT_THAT(checked.names, ElementsAre("a"));
}

TEST(RequiredSchemaValidator, ValuesThatAreNoObjectsPass) {
  for (const auto& value : {json::array({"a"}), json("a"), json(nullptr), json(1)}) {
    EXPECT_THAT(check<RequiredSchemaValidator>(value, {"a"}).annotations, IsEmpty());
    EXPECT_THAT(check<RequiredSchemaValidator>(value, {"a"}).names, IsEmpty());
  }
}

TEST(RequiredSchemaValidator, TheParameterMustBeAnArrayWhateverTheValueIs) {
  EXPECT_EQ(faultOf<RequiredSchemaValidator>(1, "a"),
            "/keyword: This keyword requires an array parameter.");
  EXPECT_EQ(faultOf<RequiredSchemaValidator>(json::object(), {{"a", true}}),
            "/keyword: This keyword requires an array parameter.");
}

TEST(RequiredSchemaValidator, NamesMustBeStrings) {
  EXPECT_EQ(faultOf<RequiredSchemaValidator>({{"a", 1}}, {"a", 1}),
            "/keyword/1: This keyword requires a string parameter.");
}

}  // namespace
}  // namespace jsv
