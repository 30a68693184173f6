#include "setup/study/Area.h"

#include <gtest/gtest.h>

namespace {

setup::Area box(double xMin, double yMin, double xMax, double yMax) {
  setup::Area area;
  area.box = {xMin, yMin, xMax, yMax};
  return area;
}

}  // namespace

TEST(Area, HoldsWhatLiesOnTheEdgesOfItsBox) {
  const setup::Area area = box(1, 2, 3, 5);
  EXPECT_TRUE(area.contains(1, {1, 4}));
  EXPECT_TRUE(area.contains(1, {3, 4}));
  EXPECT_TRUE(area.contains(1, {2, 2}));
  EXPECT_TRUE(area.contains(1, {2, 5}));
}

TEST(Area, HoldsNothingBesideItsBox) {
  const setup::Area area = box(1, 2, 3, 5);
  EXPECT_FALSE(area.contains(1, {0.9, 4}));
  EXPECT_FALSE(area.contains(1, {3.1, 4}));
  EXPECT_FALSE(area.contains(1, {2, 1.9}));
  EXPECT_FALSE(area.contains(1, {2, 5.1}));
}

TEST(Area, OfARegionHoldsItsMaterialOnly) {
  setup::Area area = box(1, 2, 3, 5);
  area.region = setup::Region{4, "sill"};
  EXPECT_TRUE(area.contains(4, {2, 3}));
  EXPECT_FALSE(area.contains(1, {2, 3}));
  area.box.reset();
  EXPECT_TRUE(area.contains(4, {9, 9}));
}
