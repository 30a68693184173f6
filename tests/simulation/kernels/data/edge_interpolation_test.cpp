#include "simulation/kernels/data/edge_interpolation.h"

#include <gtest/gtest.h>

#include <array>
#include <type_traits>

#include "simulation/loops/descriptions.h"

static_assert(std::is_same_v<decltype(kernels::data::edge_interpolation),
                             loops::EdgeDataInterpolation::Body>);

namespace {

using model::MISSING_VALUE;

/// The record of an edge after a lookup in y = 10 x, which runs from x = 0 to x = 100.
std::array<double, 7> lookup(int key, int position, const std::array<double, 10>& string,
                             double time) {
  const std::array<double, 6> row{0.0, 0.0, 100.0, 1000.0, MISSING_VALUE, 0.0};
  const int size = 4;
  const std::array<int, 2> keyPosition{key, position};
  std::array<double, 7> record{-1.0, -2.0, -3.0, -4.0, -5.0, -6.0, -7.0};
  kernels::data::edge_interpolation(row.data(), &size, keyPosition.data(), string.data(), &time,
                                    record.data());
  return record;
}

const std::array<double, 10> wetString{50.0, 25.0, 0.0, 37.5, 0.0, 0.0, 0.0, 0.0, 0.0, 0.0};

TEST(EdgeInterpolation, Key0LooksUpAgainstTime) {
  EXPECT_DOUBLE_EQ(lookup(0, 0, wetString, 75.0)[0], 750.0);
}

TEST(EdgeInterpolation, Key1LooksUpAgainstTheMeanDepth) {
  EXPECT_DOUBLE_EQ(lookup(1, 0, wetString, 75.0)[0], 125.0);
}

TEST(EdgeInterpolation, Key2LooksUpAgainstTheWaterSurface) {
  EXPECT_DOUBLE_EQ(lookup(2, 0, wetString, 75.0)[0], 500.0);
}

TEST(EdgeInterpolation, Key3LooksUpAgainstTheDischarge) {
  EXPECT_DOUBLE_EQ(lookup(3, 0, wetString, 75.0)[0], 250.0);
}

TEST(EdgeInterpolation, OtherKeysLookUpAtZero) {
  for (const int key : {-1, 4, 5, 100}) {
    EXPECT_EQ(lookup(key, 0, wetString, 75.0)[0], 0.0) << key;
  }
}

TEST(EdgeInterpolation, TheMeanDepthOfADryStringIsZero) {
  std::array<double, 10> dry{};
  dry[0] = MISSING_VALUE;
  dry[3] = MISSING_VALUE;
  EXPECT_EQ(kernels::data::lookupVariable(1, dry.data(), 75.0), 0.0);
  EXPECT_EQ(lookup(1, 0, dry, 75.0)[0], 0.0);
}

TEST(EdgeInterpolation, WritesOnlyAtItsPosition) {
  EXPECT_EQ(lookup(4, 2, wetString, 75.0),
            (std::array<double, 7>{-1.0, -2.0, 0.0, -4.0, -5.0, -6.0, -7.0}));
  EXPECT_EQ(lookup(4, 6, wetString, 75.0),
            (std::array<double, 7>{-1.0, -2.0, -3.0, -4.0, -5.0, -6.0, 0.0}));
}

}  // namespace
