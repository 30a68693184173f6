#include "op/core/op_util.h"

#include <gtest/gtest.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <vector>

#include "op/op_test_support.h"

// Allocations that cannot succeed are part of the tests.
extern "C" const char* __asan_default_options();   // NOLINT(bugprone-reserved-identifier)
extern "C" const char* __asan_default_options() {  // NOLINT(bugprone-reserved-identifier)
  return "allocator_may_return_null=1";
}

namespace {

using op_test::outputOf;

// More than any address space holds; volatile hides it from the compiler's own checks.
std::size_t impossibleSize() {
  std::size_t volatile size = PTRDIFF_MAX;
  return size;
}

TEST(OpFail, PrintsAndEndsTheProcessWithTheStatus) {
  EXPECT_EXIT((op_test::outputToStderr(), op_fail(2, "value %d of %s", 7, "map")),
              testing::ExitedWithCode(2), "^value 7 of map$");
}

TEST(OpXmalloc, IsNullForNoBytes) {
  EXPECT_EQ(xmalloc(0), nullptr);
}

TEST(OpXmalloc, ReportsAnExhaustedMemory) {
  void* memory = &memory;
  EXPECT_EQ(outputOf([&] { memory = xmalloc(impossibleSize()); }),
            "Virtual memory exhausted at malloc");
  EXPECT_EQ(memory, nullptr);
}

TEST(OpXrealloc, FreesForNoBytes) {
  EXPECT_EQ(xrealloc(xmalloc(8), 0), nullptr);
}

TEST(OpXrealloc, KeepsTheContents) {
  auto* values = static_cast<char*>(xmalloc(1));
  values[0] = 'a';
  values = static_cast<char*>(xrealloc(values, 100));
  EXPECT_EQ(values[0], 'a');
  op_free(values);
}

TEST(OpXrealloc, ReportsAnExhaustedMemory) {
  void* memory = xmalloc(8);
  void* grown = memory;
  EXPECT_EQ(outputOf([&] { grown = xrealloc(memory, impossibleSize()); }),
            "Virtual memory exhausted at realloc");
  EXPECT_EQ(grown, nullptr);
  op_free(memory);
}

TEST(OpXcalloc, LooksAtTheSizeOnly) {
  EXPECT_EQ(xcalloc(5, 0), nullptr);
  void* const none = xcalloc(0, 5);
  op_free(none);
}

TEST(OpXcalloc, GivesZeros) {
  auto* const values = static_cast<int*>(xcalloc(3, sizeof(int)));
  EXPECT_EQ(values[0] + values[1] + values[2], 0);
  op_free(values);
}

TEST(OpXcalloc, ReportsAnExhaustedMemory) {
  void* memory = &memory;
  EXPECT_EQ(outputOf([&] { memory = xcalloc(impossibleSize(), 8); }),
            "Virtual memory exhausted at malloc");
  EXPECT_EQ(memory, nullptr);
}

TEST(OpComputeLocalSize, DealsTheRemainderToTheFirstBlocks) {
  EXPECT_EQ(compute_local_size(10, 4, 0), 3);
  EXPECT_EQ(compute_local_size(10, 4, 1), 3);
  EXPECT_EQ(compute_local_size(10, 4, 2), 2);
  EXPECT_EQ(compute_local_size(10, 4, 3), 2);
}

TEST(OpMin, IsTheIndexOfTheSmallestEntryBelow99) {
  const std::array<int, 4> values{120, 98, -3, 7};
  EXPECT_EQ(min(values.data(), 4), 2);
  EXPECT_EQ(min(values.data(), 2), 1);
  EXPECT_EQ(min(values.data(), 1), -1);
}

TEST(OpSearch, FindsTheIndexInTheRange) {
  const std::array<int, 5> sorted{1, 3, 5, 7, 9};
  for (int i = 0; i < 5; ++i) {
    EXPECT_EQ(binary_search(sorted.data(), 2 * i + 1, 0, 4), i);
    EXPECT_EQ(linear_search(sorted.data(), 2 * i + 1, 0, 4), i);
  }
}

TEST(OpSearch, IsMinusOneOutsideTheRange) {
  const std::array<int, 5> sorted{1, 3, 5, 7, 9};
  EXPECT_EQ(binary_search(sorted.data(), 4, 0, 4), -1);
  EXPECT_EQ(binary_search(sorted.data(), 9, 0, 3), -1);
  EXPECT_EQ(binary_search(sorted.data(), 1, 1, 0), -1);
  EXPECT_EQ(linear_search(sorted.data(), 4, 0, 4), -1);
  EXPECT_EQ(linear_search(sorted.data(), 1, 1, 4), -1);
}

TEST(OpQuickSort, SortsTheRangeAndLeavesTheRest) {
  std::vector<int> keys{9, 5, 4, 5, 1, 3, 0};
  quickSort(keys.data(), 1, 5);
  EXPECT_EQ(keys, (std::vector<int>{9, 1, 3, 4, 5, 5, 0}));
}

TEST(OpQuickSort, SortsLongSortedAndReversedRanges) {
  std::vector<int> keys(2000);
  for (int i = 0; i < 2000; ++i) keys[static_cast<std::size_t>(i)] = 2000 - i;
  quickSort(keys.data(), 0, 1999);
  quickSort(keys.data(), 0, 1999);
  for (int i = 0; i < 2000; ++i) EXPECT_EQ(keys[static_cast<std::size_t>(i)], i + 1);
}

TEST(OpQuickSort, MovesTheSecondArrayAlong) {
  std::vector<int> keys{3, 1, 2};
  std::vector<int> other{30, 10, 20};
  quickSort_2(keys.data(), other.data(), 0, 2);
  EXPECT_EQ(keys, (std::vector<int>{1, 2, 3}));
  EXPECT_EQ(other, (std::vector<int>{10, 20, 30}));
}

TEST(OpQuickSort, MovesTheRowsOfADatAlong) {
  std::vector<int> keys{3, 1, 2};
  std::string rows = "ccaabb";
  quickSort_dat(keys.data(), rows.data(), 0, 2, 2);
  EXPECT_EQ(keys, (std::vector<int>{1, 2, 3}));
  EXPECT_EQ(rows, "aabbcc");
}

TEST(OpQuickSort, MovesTheRowsOfAMapAlong) {
  std::vector<int> keys{3, 1, 2};
  std::vector<int> map{31, 32, 11, 12, 21, 22};
  quickSort_map(keys.data(), map.data(), 0, 2, 2);
  EXPECT_EQ(keys, (std::vector<int>{1, 2, 3}));
  EXPECT_EQ(map, (std::vector<int>{11, 12, 21, 22, 31, 32}));
}

TEST(OpRemoveDups, KeepsOneOfEachRun) {
  std::vector<int> values{1, 1, 2, 3, 3, 3};
  ASSERT_EQ(removeDups(values.data(), 6), 3);
  values.resize(3);
  EXPECT_EQ(values, (std::vector<int>{1, 2, 3}));
  EXPECT_EQ(removeDups(values.data(), 0), 0);
}

TEST(OpFileExist, TellsWhatIsThere) {
  EXPECT_EQ(file_exist(testing::TempDir().c_str()), 1);
  EXPECT_EQ(file_exist((testing::TempDir() + "no such file").c_str()), 0);
}

TEST(OpComp, OrdersInts) {
  std::array<int, 3> values{INT32_MAX, INT32_MIN, 0};
  std::qsort(values.data(), 3, sizeof(int), comp);
  EXPECT_EQ(values, (std::array<int, 3>{INT32_MIN, 0, INT32_MAX}));
  EXPECT_EQ(comp(values.data(), values.data()), 0);
}

TEST(OpComp2, OrdersPairsByTheirFirstInt) {
  std::array<int, 6> pairs{3, 1, 1, 9, 2, 5};
  std::qsort(pairs.data(), 3, 2 * sizeof(int), comp2);
  EXPECT_EQ(pairs, (std::array<int, 6>{1, 9, 2, 5, 3, 1}));
}

}  // namespace
