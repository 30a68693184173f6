#include "simulation/kernels/data/cell_interpolation.h"

#include <gtest/gtest.h>

#include <array>
#include <type_traits>

#include "simulation/loops/descriptions.h"

static_assert(std::is_same_v<decltype(kernels::data::cell_interpolation),
                             loops::CellDataInterpolation::Body>);

namespace {

/// The record of a source after a lookup in a line from (-2, 1) to (6, 9).
std::array<double, 2> lookup(int key, int position, double time) {
  const std::array<double, 6> row{-2.0, 1.0, 6.0, 9.0, model::MISSING_VALUE, 0.0};
  const int size = 4;
  const std::array<int, 2> keyPosition{key, position};
  std::array<double, 2> record{-1.0, -2.0};
  kernels::data::cell_interpolation(row.data(), &size, keyPosition.data(), &time, record.data());
  return record;
}

TEST(CellInterpolation, Key0LooksUpAgainstTime) {
  EXPECT_EQ(lookup(0, 0, 2.0)[0], 5.0);
  EXPECT_EQ(lookup(0, 0, -2.0)[0], 1.0);
  EXPECT_EQ(lookup(0, 0, 7.0)[0], 9.0);
}

TEST(CellInterpolation, OtherKeysLookUpAtZero) {
  for (const int key : {-1, 1, 2, 3, 4}) EXPECT_EQ(lookup(key, 0, 2.0)[0], 3.0) << key;
}

TEST(CellInterpolation, WritesOnlyAtItsPosition) {
  EXPECT_EQ(lookup(0, 0, 2.0), (std::array<double, 2>{5.0, -2.0}));
  EXPECT_EQ(lookup(0, 1, 2.0), (std::array<double, 2>{-1.0, 5.0}));
}

}  // namespace
