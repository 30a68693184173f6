#include "catalogue/Limits.h"

#include <gtest/gtest.h>

namespace model {

TEST(Limits, AreThoseOfTheRunFile) {
  EXPECT_EQ(STRING_EDGES, 40);
  EXPECT_EQ(SERIES_VALUES, 12000);
  EXPECT_EQ(MISSING_VALUE, 2.2250738585072014e-308);
}

}  // namespace model
