#include "h5/shape.h"

#include <gtest/gtest.h>

#include "dataio/failures.h"

namespace {

using failures::textOf;
using h5::fit;
using h5::Shape;
namespace h5 = h5;

TEST(Fit, EqualRanksPass) {
  EXPECT_EQ(fit({3}, 1), Shape{3});
  EXPECT_EQ(fit({1, 1}, 2), (Shape{1, 1}));
  EXPECT_EQ(fit({0, 3}, 2), (Shape{0, 3}));
}

TEST(Fit, VectorPassesForOneRowAndOneColumn) {
  EXPECT_EQ(fit({5, 1}, 1), Shape{5});
  EXPECT_EQ(fit({1, 5}, 1), Shape{5});
  EXPECT_EQ(fit({1, 1}, 1), Shape{1});
}

TEST(Fit, ExtentsOfOneAreDroppedFromOneEndOnly) {
  EXPECT_EQ(fit({2, 3, 1}, 2), (Shape{2, 3}));
  EXPECT_EQ(fit({1, 2, 3}, 2), (Shape{2, 3}));
  EXPECT_EQ(fit({1, 5, 1}, 1), std::nullopt);
  EXPECT_EQ(fit({1, 5, 1}, 2), (Shape{1, 5}));
}

TEST(Fit, AllExtentsOfOneAreDroppedAtOnce) {
  EXPECT_EQ(fit({2, 1, 1}, 2), std::nullopt);
  EXPECT_EQ(fit({1, 1, 1}, 1), Shape{1});
  EXPECT_EQ(fit({1, 1, 1}, 2), std::nullopt);
}

TEST(Fit, OtherRanksDoNotPass) {
  EXPECT_EQ(fit({2, 3}, 1), std::nullopt);
  EXPECT_EQ(fit({3}, 2), std::nullopt);
  EXPECT_EQ(fit({}, 1), std::nullopt);
  EXPECT_EQ(fit({}, 2), std::nullopt);
}

TEST(ElementCount, IsTheProductOfTheExtents) {
  EXPECT_EQ(h5::elementCount({}), 1U);
  EXPECT_EQ(h5::elementCount({4}), 4U);
  EXPECT_EQ(h5::elementCount({4, 3}), 12U);
  EXPECT_EQ(h5::elementCount({4, 0, 3}), 0U);
}

TEST(ElementCount, RefusesWhatMemoryCannotHold) {
  const hsize_t huge = hsize_t{1} << 40U;
  EXPECT_EQ(textOf<h5::Error>([&] {
              h5::elementCount({huge, huge});
            }),
            "Impossible to hold a dataset with so many values in memory");
}

TEST(ShapeOf, IsThatOfTheFirstRow) {
  EXPECT_EQ(h5::shapeOf(std::vector<std::vector<int>>{{1, 2, 3}, {4}}), (Shape{2, 3}));
}

TEST(ShapeOf, NeedsARow) {
  EXPECT_EQ(textOf<h5::Error>([] { h5::shapeOf(std::vector<std::vector<int>>{}); }),
            "Impossible to write an empty vector of vectors: at least one row is needed");
}

TEST(RequireSize, NamesBothSizesAndTheDimension) {
  EXPECT_NO_THROW(h5::requireSize(3, 3, 0));
  EXPECT_EQ(textOf<h5::Error>([] { h5::requireSize(2, 3, 1); }),
            "Mismatch between vector size (2) and dataset size (3) on dimension 1");
}

}  // namespace
