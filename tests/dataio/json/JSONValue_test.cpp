#include "dataio/json/JSONValue.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

using dataio::valueAs;
using nlohmann::json;

TEST(JSONValue, NumbersOfAllKindsAreIntsAndDoubles) {
  EXPECT_EQ(valueAs<int>(json(-3)), -3);
  EXPECT_EQ(valueAs<int>(json(3U)), 3);
  EXPECT_EQ(valueAs<int>(json(2.7)), 2);
  EXPECT_EQ(valueAs<int>(json(-2.7)), -2);
  EXPECT_EQ(valueAs<double>(json(-3)), -3.0);
  EXPECT_EQ(valueAs<double>(json(3U)), 3.0);
  EXPECT_EQ(valueAs<double>(json(2.7)), 2.7);
}

TEST(JSONValue, DecimalsBeyondIntBecomeTheMissingMark) {
  const int missing = std::numeric_limits<int>::min();
  EXPECT_EQ(valueAs<int>(json(3e9)), missing);
  EXPECT_EQ(valueAs<int>(json(-3e9)), missing);
  EXPECT_EQ(valueAs<int>(json(1e300)), missing);
  EXPECT_EQ(valueAs<int>(json(2147483647.5)), std::numeric_limits<int>::max());
  EXPECT_EQ(valueAs<int>(json(2147483648.0)), missing);
  EXPECT_EQ(valueAs<std::vector<int>>(json{1.5, 3e9}), (std::vector<int>{1, missing}));
}

TEST(JSONValue, IntegersBeyondIntKeepTheirLowestBits) {
  EXPECT_EQ(valueAs<int>(json(4294967297)), 1);
}

TEST(JSONValue, OtherTypesGiveNothing) {
  EXPECT_FALSE(valueAs<int>(json("3")).has_value());
  EXPECT_FALSE(valueAs<int>(json(true)).has_value());
  EXPECT_FALSE(valueAs<double>(json("3")).has_value());
  EXPECT_FALSE(valueAs<double>(json(nullptr)).has_value());
  EXPECT_FALSE(valueAs<bool>(json(1)).has_value());
  EXPECT_FALSE(valueAs<std::string>(json(1)).has_value());
  EXPECT_FALSE(valueAs<std::vector<int>>(json(1)).has_value());
  EXPECT_FALSE(valueAs<std::vector<double>>(json::object()).has_value());
  EXPECT_FALSE(valueAs<std::vector<std::string>>(json("a")).has_value());
}

TEST(JSONValue, ArraysBecomeVectors) {
  EXPECT_EQ(valueAs<std::vector<int>>(json{1, 2.9, -3}), (std::vector<int>{1, 2, -3}));
  EXPECT_EQ(valueAs<std::vector<double>>(json{1, 2.5}), (std::vector<double>{1.0, 2.5}));
  EXPECT_EQ(valueAs<std::vector<std::string>>(json{"a", ""}), (std::vector<std::string>{"a", ""}));
  EXPECT_EQ(valueAs<std::vector<int>>(json::array()), std::vector<int>());
}

TEST(JSONValue, ElementsOfAnotherTypeAreTheLibrarysBusiness) {
  EXPECT_THROW(valueAs<std::vector<int>>(json{1, "a"}), json::type_error);
  EXPECT_THROW(valueAs<std::vector<double>>(json{1, "a"}), json::type_error);
  EXPECT_THROW(valueAs<std::vector<std::string>>(json{"a", 1}), json::type_error);
}

}  // namespace
