#include "simulation/kernels/data/cell_modification.h"

#include <gtest/gtest.h>

#include <array>
#include <limits>
#include <type_traits>

#include "simulation/loops/descriptions.h"

static_assert(
    std::is_same_v<decltype(kernels::data::cell_modification), loops::CellDataModification::Body>);

namespace {

std::array<double, 2> modified(int type, int write, int read, double area,
                               std::array<double, 2> record) {
  const std::array<int, 7> info{type, write, read, -1, -1, -1, -1};
  const double time = 9.0;
  kernels::data::cell_modification(info.data(), &area, &time, record.data());
  return record;
}

TEST(CellModification, Type6SpreadsOverTheRegion) {
  EXPECT_EQ(modified(6, 1, 0, 4.0, {10.0, -1.0}), (std::array<double, 2>{10.0, 2.5}));
  EXPECT_EQ(modified(6, 0, 0, 4.0, {10.0, -1.0}), (std::array<double, 2>{2.5, -1.0}));
}

TEST(CellModification, Type6IsAPlainDivision) {
  EXPECT_EQ(modified(6, 1, 0, 49.0, {5.0, 0.0})[1], 5.0 / 49.0);
  EXPECT_NE(modified(6, 1, 0, 49.0, {5.0, 0.0})[1], 5.0 * (1.0 / 49.0));
  EXPECT_EQ(modified(6, 1, 0, -4.0, {10.0, 0.0})[1], -2.5);
}

TEST(CellModification, Type6OfARegionWithoutAreaIsInfinite) {
  EXPECT_EQ(modified(6, 1, 0, 0.0, {10.0, 0.0})[1], std::numeric_limits<double>::infinity());
}

TEST(CellModification, Type7ConvertsMillimetresPerHour) {
  EXPECT_EQ(modified(7, 1, 0, 4.0, {7.2e6, -1.0}), (std::array<double, 2>{7.2e6, 2.0}));
  EXPECT_EQ(modified(7, 0, 1, 4.0, {0.0, 17.0})[0], 17.0 / 3.6e6);
}

TEST(CellModification, OtherTypesChangeNothing) {
  for (int type = -1; type <= 17; ++type) {
    if (type == 6 || type == 7) continue;
    EXPECT_EQ(modified(type, 1, 0, 4.0, {10.0, -1.0}), (std::array<double, 2>{10.0, -1.0})) << type;
  }
}

}  // namespace
