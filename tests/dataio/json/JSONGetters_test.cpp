#include <gtest/gtest.h>

#include <cmath>

#include "dataio/failures.h"
#include "dataio/json/JSONReader.h"

namespace {

using dataio::JSONReader;
using failures::standardErrorOf;
using nlohmann::json;

using Doubles = std::vector<double>;
using Ints = std::vector<int>;
using Strings = std::vector<std::string>;

constexpr int NO_INT = -2147483647 - 1;

class JSONGettersTest : public ::testing::Test {
 protected:
  const JSONReader reader{R"({
    "bool": true, "int": 7, "double": 2.7, "string": "text",
    "ints": [1, 2], "doubles": [0.5, 1], "strings": ["a", "b"], "none": [],
    "mixed": [1, "a"],
    "items": [{"i": 3, "d": 0.25, "s": "x", "l": [1, 2.5]}, {"i": "three"}]
  })"};
  bool found = false;
};

TEST_F(JSONGettersTest, RequiredValuesAreFound) {
  const std::string report = standardErrorOf([&] {
    EXPECT_TRUE(reader.getBool("bool", found) && found);
    EXPECT_EQ(reader.getInt("int", found), 7);
    EXPECT_EQ(reader.getDouble("double", found), 2.7);
    EXPECT_EQ(reader.getString("string", found), "text");
    EXPECT_EQ(reader.getIntList("ints", found), (Ints{1, 2}));
    EXPECT_EQ(reader.getDoubleList("doubles", found), (Doubles{0.5, 1.0}));
    EXPECT_EQ(reader.getStringList("strings", found), (Strings{"a", "b"}));
    EXPECT_EQ(reader.getArrayLength("ints", found), 2);
  });
  EXPECT_EQ(report, "");
  EXPECT_TRUE(found);
}

TEST_F(JSONGettersTest, OptionalValuesAreFound) {
  EXPECT_TRUE(reader.getOptionalBool("bool", false));
  EXPECT_EQ(reader.getOptionalInt("int", 1), 7);
  EXPECT_EQ(reader.getOptionalDouble("double", 1.0), 2.7);
  EXPECT_EQ(reader.getOptionalString("string", "no"), "text");
  EXPECT_EQ(reader.getOptionalIntList("ints", {}), (Ints{1, 2}));
  EXPECT_EQ(reader.getOptionalDoubleList("doubles", {}), (Doubles{0.5, 1.0}));
  EXPECT_EQ(reader.getOptionalStringList("strings", {}), (Strings{"a", "b"}));
  EXPECT_EQ(reader.getOptionalArrayLength("items"), 2);
}

TEST_F(JSONGettersTest, MissingRequiredIntIsReported) {
  found = true;
  const std::string report =
      standardErrorOf([&] { EXPECT_EQ(reader.getInt("A/B", found), NO_INT); });
  EXPECT_EQ(report, " -> path <A/B> not found.\n");
  EXPECT_FALSE(found);
}

TEST_F(JSONGettersTest, MissingRequiredValuesAreMarks) {
  const std::string line = " -> path <no> not found.\n";
  const auto missing = [&](auto&& action) {
    found = true;
    EXPECT_EQ(standardErrorOf(action), line);
    EXPECT_FALSE(found);
  };
  missing([&] { EXPECT_FALSE(reader.getBool("no", found)); });
  missing([&] { EXPECT_TRUE(std::isnan(reader.getDouble("no", found))); });
  missing([&] { EXPECT_EQ(reader.getString("no", found), ""); });
  missing([&] { EXPECT_EQ(reader.getIntList("no", found), Ints()); });
  missing([&] { EXPECT_EQ(reader.getDoubleList("no", found), Doubles()); });
  missing([&] { EXPECT_EQ(reader.getStringList("no", found), Strings()); });
  missing([&] { EXPECT_EQ(reader.getArrayLength("no", found), 0); });
}

TEST_F(JSONGettersTest, MissingOptionalValuesAreTheDefault) {
  const std::string report = standardErrorOf([&] {
    EXPECT_TRUE(reader.getOptionalBool("no", true));
    EXPECT_EQ(reader.getOptionalInt("no", 5), 5);
    EXPECT_EQ(reader.getOptionalDouble("no", 0.5), 0.5);
    EXPECT_EQ(reader.getOptionalString("no", "d"), "d");
    EXPECT_EQ(reader.getOptionalIntList("no", {5}), Ints{5});
    EXPECT_EQ(reader.getOptionalDoubleList("no", {0.5}), Doubles{0.5});
    EXPECT_EQ(reader.getOptionalStringList("no", {"d"}), Strings{"d"});
    EXPECT_EQ(reader.getOptionalArrayLength("no"), 0);
  });
  EXPECT_EQ(report, "");
}

TEST_F(JSONGettersTest, WrongTypeOfARequiredValueIsFoundButUnusable) {
  const auto unusable = [&](auto&& action) {
    found = false;
    EXPECT_EQ(standardErrorOf(action), "");
    EXPECT_TRUE(found);
  };
  unusable([&] { EXPECT_FALSE(reader.getBool("int", found)); });
  unusable([&] { EXPECT_EQ(reader.getInt("string", found), NO_INT); });
  unusable([&] { EXPECT_TRUE(std::isnan(reader.getDouble("bool", found))); });
  unusable([&] { EXPECT_EQ(reader.getString("int", found), ""); });
  unusable([&] { EXPECT_EQ(reader.getIntList("int", found), Ints()); });
  unusable([&] { EXPECT_EQ(reader.getDoubleList("int", found), Doubles()); });
  unusable([&] { EXPECT_EQ(reader.getStringList("string", found), Strings()); });
  unusable([&] { EXPECT_EQ(reader.getArrayLength("string", found), 0); });
}

TEST_F(JSONGettersTest, WrongTypeOfAnOptionalValueIsTheDefault) {
  const std::string report = standardErrorOf([&] {
    EXPECT_TRUE(reader.getOptionalBool("int", true));
    EXPECT_EQ(reader.getOptionalInt("string", 5), 5);
    EXPECT_EQ(reader.getOptionalDouble("string", 0.5), 0.5);
    EXPECT_EQ(reader.getOptionalString("int", "d"), "d");
    EXPECT_EQ(reader.getOptionalIntList("int", {5}), Ints{5});
    EXPECT_EQ(reader.getOptionalDoubleList("int", {0.5}), Doubles{0.5});
    EXPECT_EQ(reader.getOptionalStringList("string", {"d"}), Strings{"d"});
    EXPECT_EQ(reader.getOptionalArrayLength("int"), 0);
  });
  EXPECT_EQ(report, "");
}

TEST_F(JSONGettersTest, EmptyListIsNoList) {
  EXPECT_EQ(reader.getOptionalIntList("none", {5}), Ints{5});
  EXPECT_EQ(reader.getOptionalDoubleList("none", {0.5}), Doubles{0.5});
  EXPECT_EQ(reader.getOptionalStringList("none", {"d"}), Strings{"d"});
  EXPECT_EQ(reader.getOptionalArrayLength("none"), 0);
}

TEST_F(JSONGettersTest, NumbersAreConverted) {
  EXPECT_EQ(reader.getDouble("int", found), 7.0);
  EXPECT_EQ(reader.getInt("double", found), 2);
}

TEST_F(JSONGettersTest, ListWithAnElementOfAnotherTypeIsATypeError) {
  EXPECT_THROW(reader.getIntList("mixed", found), json::type_error);
  EXPECT_THROW(reader.getOptionalDoubleList("mixed", {}), json::type_error);
  EXPECT_THROW(reader.getStringList("mixed", found), json::type_error);
}

TEST_F(JSONGettersTest, RequiredMembersOfArrayItemsAreFound) {
  EXPECT_EQ(reader.getIntFromArray("items", 0, "i", found), 3);
  EXPECT_EQ(reader.getDoubleFromArray("items", 0, "d", found), 0.25);
  EXPECT_EQ(reader.getStringFromArray("items", 0, "s", found), "x");
  EXPECT_EQ(reader.getValueListFromArray("items", 0, "l", found), (Doubles{1.0, 2.5}));
  EXPECT_TRUE(found);
}

TEST_F(JSONGettersTest, OptionalMembersOfArrayItemsAreFound) {
  EXPECT_EQ(reader.getOptionalIntFromArray("items", 0, "i", 1), 3);
  EXPECT_EQ(reader.getOptionalDoubleFromArray("items", 0, "d", 1.0), 0.25);
  EXPECT_EQ(reader.getOptionalStringFromArray("items", 0, "s", "d"), "x");
  EXPECT_EQ(reader.getOptionalValueListFromArray("items", 0, "l", {}), (Doubles{1.0, 2.5}));
}

TEST_F(JSONGettersTest, MissingRequiredMembersAreMarks) {
  const auto missing = [&](auto&& action) {
    found = true;
    EXPECT_EQ(standardErrorOf(action), " -> path <items[1]/no> not found.\n");
    EXPECT_FALSE(found);
  };
  missing([&] { EXPECT_EQ(reader.getIntFromArray("items", 1, "no", found), NO_INT); });
  missing([&] { EXPECT_TRUE(std::isnan(reader.getDoubleFromArray("items", 1, "no", found))); });
  missing([&] { EXPECT_EQ(reader.getStringFromArray("items", 1, "no", found), ""); });
  missing([&] { EXPECT_EQ(reader.getValueListFromArray("items", 1, "no", found), Doubles()); });
}

TEST_F(JSONGettersTest, MissingOptionalMembersAreTheDefault) {
  const std::string report = standardErrorOf([&] {
    EXPECT_EQ(reader.getOptionalIntFromArray("items", 1, "no", 5), 5);
    EXPECT_EQ(reader.getOptionalDoubleFromArray("items", 1, "no", 0.5), 0.5);
    EXPECT_EQ(reader.getOptionalStringFromArray("items", 1, "no", "d"), "d");
    EXPECT_EQ(reader.getOptionalValueListFromArray("items", 1, "no", {0.5}), Doubles{0.5});
  });
  EXPECT_EQ(report, "");
}

TEST_F(JSONGettersTest, WrongTypeOfAMemberIsFoundButUnusable) {
  EXPECT_EQ(reader.getIntFromArray("items", 1, "i", found), NO_INT);
  EXPECT_TRUE(found);
  EXPECT_EQ(reader.getOptionalIntFromArray("items", 1, "i", 5), 5);
}

}  // namespace
