#include "model/vectors.h"

#include <gmock/gmock.h>

#include <string>

namespace model {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(SortVector, SortsAscendingAndRemovesDuplicates) {
  std::vector<int> values = {3, 1, 2, 3, 1};
  sortVector(values);
  EXPECT_THAT(values, ElementsAre(1, 2, 3));
  EXPECT_EQ(values.capacity(), 3U);
}

TEST(SortVector, LeavesAnEmptyVectorEmpty) {
  std::vector<double> values;
  sortVector(values);
  EXPECT_THAT(values, IsEmpty());
}

TEST(ElementInVector, FindsTheFirstOfEqualElements) {
  const std::vector<std::string> values = {"a", "b", "b"};
  EXPECT_EQ(elementInVector(std::string("a"), values), 0);
  EXPECT_EQ(elementInVector(std::string("b"), values), 1);
}

TEST(ElementInVector, GivesMinusOneForWhatIsNotThere) {
  EXPECT_EQ(elementInVector(7, std::vector<int>{1, 2}), -1);
  EXPECT_EQ(elementInVector(7, std::vector<int>{}), -1);
}

}  // namespace
}  // namespace model
