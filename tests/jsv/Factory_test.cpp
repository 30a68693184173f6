#include "jsv/Factory.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "jsv/report.h"

namespace jsv {
namespace {

using nlohmann::json;
using test::at;
using ::testing::ElementsAre;

class SchemaValidatorFactoryTest : public ::testing::Test {
 protected:
  std::size_t indexFor(const std::string& keyword, const json& definition) const {
    const json schema = {{"below", definition}};
    return SchemaValidatorFactory(document_, schema)
        .createSubSchemaValidator(JsonPointer("/below"), keyword)
        .index();
  }

  std::string faultFor(const std::string& keyword, const json& definition) const {
    try {
      indexFor(keyword, definition);
      return "";
    } catch (const InvalidSchemaException& fault) {
      return fault.what();
    }
  }

  const json document_ = json::parse(R"({"a": 3})");
};

TEST_F(SchemaValidatorFactoryTest, KeywordsHaveTheirValidators) {
  const std::vector<std::pair<std::string, std::size_t>> table = {{"type", 13},
                                                                  {"const", 1},
                                                                  {"enum", 2},
                                                                  {"minimum", 3},
                                                                  {"exclusiveMinimum", 8},
                                                                  {"maximum", 4},
                                                                  {"exclusiveMaximum", 8},
                                                                  {"required", 12},
                                                                  {"properties", 10},
                                                                  {"items", 7},
                                                                  {"requiredIn", 11},
                                                                  {"oneOf", 9},
                                                                  {"$schema", 8},
                                                                  {"default", 17},
                                                                  {"format", 15},
                                                                  {"optional", 14},
                                                                  {"description", 16}};
  for (const auto& [keyword, index] : table) {
    EXPECT_EQ(indexFor(keyword, json::object()), index) << keyword;
  }
}

TEST_F(SchemaValidatorFactoryTest, TheVariantHoldsItsTypesInOrder) {
  const json schema = json::object();
  EXPECT_EQ(absl::variant_size<SchemaValidator>::value, 18);
  EXPECT_EQ(SchemaValidator(BaseSchemaValidator(document_, schema)).index(), 0);
  EXPECT_EQ(
      SchemaValidator(ExtremumSchemaValidator<ExtremumType::Maximum>(document_, schema)).index(),
      4);
}

TEST_F(SchemaValidatorFactoryTest, ATrueSiblingMakesABoundExclusive) {
  EXPECT_EQ(indexFor("minimum", {{"exclusiveMinimum", true}}), 5);
  EXPECT_EQ(indexFor("maximum", {{"exclusiveMaximum", true}}), 6);
}

TEST_F(SchemaValidatorFactoryTest, AFalseSiblingOrThatOfTheOtherBoundDoesNot) {
  EXPECT_EQ(indexFor("minimum", {{"exclusiveMinimum", false}, {"exclusiveMaximum", true}}), 3);
  EXPECT_EQ(indexFor("maximum", {{"exclusiveMaximum", false}, {"exclusiveMinimum", true}}), 4);
}

TEST_F(SchemaValidatorFactoryTest, ASiblingThatIsNoBooleanIsAFault) {
  EXPECT_EQ(faultFor("minimum", {{"exclusiveMinimum", 1}}),
            "/below/exclusiveMinimum: This keyword requires a boolean parameter.");
  EXPECT_EQ(faultFor("maximum", {{"exclusiveMaximum", "true"}}),
            "/below/exclusiveMaximum: This keyword requires a boolean parameter.");
}

TEST_F(SchemaValidatorFactoryTest, AnyOtherKeywordIsAFault) {
  EXPECT_EQ(faultFor("pattern", json::object()),
            "/below/pattern: The keyword 'pattern' is not supported.");
  EXPECT_EQ(faultFor("Type", json::object()), "/below/Type: The keyword 'Type' is not supported.");
  EXPECT_EQ(faultFor("", json::object()), "/below/: The keyword '' is not supported.");
  EXPECT_EQ(faultFor("a/b", json::object()), "/below/a~1b: The keyword 'a/b' is not supported.");
}

TEST_F(SchemaValidatorFactoryTest, ReadsBooleans) {
  const json schema = {{"yes", true}, {"no", false}, {"number", 0}};
  const SchemaValidatorFactory factory(document_, schema);
  EXPECT_TRUE(factory.readBoolIfPresent(JsonPointer("/yes")));
  EXPECT_FALSE(factory.readBoolIfPresent(JsonPointer("/no")));
  EXPECT_FALSE(factory.readBoolIfPresent(JsonPointer("/absent")));
  EXPECT_THROW(factory.readBoolIfPresent(JsonPointer("/number")), InvalidSchemaException);
}

TEST_F(SchemaValidatorFactoryTest, MakesAValidatorOfWholeSchemas) {
  const json schema = {{"type", "string"}};
  const auto validator = SchemaValidatorFactory(document_, schema).createBaseSchemaValidator();
  FilteredAnnotationCollection<IssueFilter> collection;
  validator.check(JsonPointer("/a"), JsonPointer(), collection);
  EXPECT_THAT(collection, ElementsAre(at("/a", IncorrectType{JsonTypeClass::String})));
}

TEST_F(SchemaValidatorFactoryTest, CheckCallsWhateverTheVariantHolds) {
  const json schema = {{"minimum", 4}, {"oneOf", {{{"required", {"a"}}}}}};
  const SchemaValidatorFactory factory(document_, schema);
  AnnotationCollection collection;
  EXPECT_THAT(check(factory.createSubSchemaValidator(JsonPointer(), "minimum"), JsonPointer("/a"),
                    JsonPointer("/minimum"), collection),
              ::testing::IsEmpty());
  EXPECT_THAT(check(factory.createSubSchemaValidator(JsonPointer(), "oneOf"), JsonPointer(),
                    JsonPointer("/oneOf"), collection),
              ElementsAre("a"));
  EXPECT_THAT(collection,
              ElementsAre(at("/a", ExtremumConstraintViolation<ExtremumType::Minimum>{4})));
}

}  // namespace
}  // namespace jsv
