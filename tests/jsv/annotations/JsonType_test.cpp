#include "jsv/annotations/JsonType.h"

#include <gtest/gtest.h>

#include <array>

namespace jsv {
namespace {

using nlohmann::json;

TEST(JsonType, TellsWhatAValueIs) {
  EXPECT_EQ(jsonType(json::parse("-3")), JsonType::Integer);
  EXPECT_EQ(jsonType(json::parse("18446744073709551615")), JsonType::Integer);
  EXPECT_EQ(jsonType(json::parse("3.0")), JsonType::FloatingPointNumber);
  EXPECT_EQ(jsonType(json::parse("1e3")), JsonType::FloatingPointNumber);
  EXPECT_EQ(jsonType(json::parse("\"3\"")), JsonType::String);
  EXPECT_EQ(jsonType(json::parse("{}")), JsonType::Object);
  EXPECT_EQ(jsonType(json::parse("[]")), JsonType::Array);
}

TEST(JsonType, BooleansAndNullAreOther) {
  EXPECT_EQ(jsonType(json::parse("true")), JsonType::Other);
  EXPECT_EQ(jsonType(json::parse("null")), JsonType::Other);
}

TEST(JsonType, EnumeratorsHaveFixedValues) {
  EXPECT_EQ(static_cast<int>(JsonType::Other), 0);
  EXPECT_EQ(static_cast<int>(JsonType::Integer), 1);
  EXPECT_EQ(static_cast<int>(JsonType::FloatingPointNumber), 2);
  EXPECT_EQ(static_cast<int>(JsonType::String), 3);
  EXPECT_EQ(static_cast<int>(JsonType::Object), 4);
  EXPECT_EQ(static_cast<int>(JsonType::Array), 5);
  EXPECT_EQ(static_cast<int>(JsonTypeClass::Unknown), 0);
  EXPECT_EQ(static_cast<int>(JsonTypeClass::Integer), 1);
  EXPECT_EQ(static_cast<int>(JsonTypeClass::Number), 2);
  EXPECT_EQ(static_cast<int>(JsonTypeClass::String), 3);
  EXPECT_EQ(static_cast<int>(JsonTypeClass::Object), 4);
  EXPECT_EQ(static_cast<int>(JsonTypeClass::Array), 5);
}

TEST(JsonType, TypesHaveWords) {
  EXPECT_EQ(toString(JsonType::Integer), "integer");
  EXPECT_EQ(toString(JsonType::FloatingPointNumber), "floating point number");
  EXPECT_EQ(toString(JsonType::String), "string");
  EXPECT_EQ(toString(JsonType::Object), "object");
  EXPECT_EQ(toString(JsonType::Array), "array");
  EXPECT_EQ(toString(JsonType::Other), "unknown");
}

TEST(JsonTypeClass, WordsAndClassesBelongTogether) {
  EXPECT_EQ(toString(JsonTypeClass::Integer), "integer");
  EXPECT_EQ(toString(JsonTypeClass::Number), "number");
  EXPECT_EQ(toString(JsonTypeClass::String), "string");
  EXPECT_EQ(toString(JsonTypeClass::Object), "object");
  EXPECT_EQ(toString(JsonTypeClass::Array), "array");
  EXPECT_EQ(toString(JsonTypeClass::Unknown), "unknown");
  for (const auto typeClass : {JsonTypeClass::Integer, JsonTypeClass::Number, JsonTypeClass::String,
                               JsonTypeClass::Object, JsonTypeClass::Array}) {
    EXPECT_EQ(classFromString(toString(typeClass)), typeClass);
  }
}

TEST(JsonTypeClass, AnyOtherWordIsUnknown) {
  for (const auto* word :
       {"unknown", "boolean", "", "Number", "number ", "floating point number"}) {
    EXPECT_EQ(classFromString(word), JsonTypeClass::Unknown) << word;
  }
}

TEST(JsonTypeClass, TakesTheTypesThatBelongToIt) {
  // One row per class, one column per type, both in value order.
  constexpr std::array<std::array<bool, 6>, 6> TAKES = {
      {{false, false, false, false, false, false},
       {false, true, false, false, false, false},
       {false, true, true, false, false, false},
       {false, false, false, true, false, false},
       {false, false, false, false, true, false},
       {false, false, false, false, false, true}}};
  for (std::size_t row = 0; row < TAKES.size(); ++row) {
    for (std::size_t column = 0; column < TAKES[row].size(); ++column) {
      EXPECT_EQ(isTypeInClass(static_cast<JsonType>(column), static_cast<JsonTypeClass>(row)),
                TAKES[row][column])
          << "class " << row << ", type " << column;
    }
  }
}

TEST(JsonTypeClass, GeneratesEmptyValues) {
  EXPECT_EQ(generateEmpty(JsonTypeClass::Object), json::object());
  EXPECT_EQ(generateEmpty(JsonTypeClass::Array), json::array());
  for (const auto typeClass : {JsonTypeClass::Unknown, JsonTypeClass::Integer,
                               JsonTypeClass::Number, JsonTypeClass::String}) {
    EXPECT_TRUE(generateEmpty(typeClass).is_null());
  }
}

}  // namespace
}  // namespace jsv
