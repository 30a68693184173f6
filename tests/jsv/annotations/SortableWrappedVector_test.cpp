#include "jsv/annotations/SortableWrappedVector.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace jsv {
namespace {

using ::testing::ElementsAre;

TEST(SortableWrappedVector, HoldsASortedCopyWithAllDuplicates) {
  EXPECT_THAT(makeSortable({"b", "a", "c", "a"}), ElementsAre("a", "a", "b", "c"));
}

TEST(SortableWrappedVector, SortsByBytes) {
  EXPECT_THAT(makeSortable({"ä", "z", "Z", "", "10", "2"}),
              ElementsAre("", "10", "2", "Z", "z", "ä"));
}

TEST(SortableWrappedVector, TellsWhetherAValueIsInIt) {
  const auto list = makeSortable({"b", "a", "d"});
  EXPECT_TRUE(list.contains("a"));
  EXPECT_TRUE(list.contains("d"));
  EXPECT_FALSE(list.contains("c"));
  EXPECT_FALSE(makeSortable({}).contains(""));
}

TEST(SortableWrappedVector, TellsItsSize) {
  EXPECT_TRUE(makeSortable({}).empty());
  EXPECT_EQ(makeSortable({"a", "a"}).size(), 2);
}

TEST(SortableWrappedVector, ListsOfEqualStringsAreEqual) {
  EXPECT_EQ(makeSortable({"a", "b"}), makeSortable({"b", "a"}));
  EXPECT_NE(makeSortable({"a"}), makeSortable({"a", "a"}));
}

TEST(SortableWrappedVector, ListsCompareStringByString) {
  EXPECT_LT(makeSortable({"a", "c"}), makeSortable({"b"}));
  EXPECT_LT(makeSortable({"a"}), makeSortable({"a", "b"}));
  EXPECT_FALSE(makeSortable({"a"}) < makeSortable({"a"}));
}

}  // namespace
}  // namespace jsv
