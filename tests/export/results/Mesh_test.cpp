#include "export/results/Mesh.h"

#include <gtest/gtest.h>

namespace {

using exporter::contains;
using exporter::Mesh;

const Mesh SQUARE = {{{0, 1, 2}, {0, 3, 2}}, {{0, 0, 9}, {1, 0, 9}, {1, 1, 9}, {0, 1, 9}}};

TEST(Mesh, AreaIsPositiveCounterclockwise) {
  EXPECT_EQ(exporter::signedArea({0, 0, 5}, {4, 0, 6}, {0, 3, 7}), 12.0);
  EXPECT_EQ(exporter::signedArea({0, 0, 5}, {0, 3, 7}, {4, 0, 6}), -12.0);
}

TEST(Mesh, ATriangleContainsItsInsideAndItsEdges) {
  const auto& counterclockwise = SQUARE.cells[0];
  EXPECT_TRUE(contains(SQUARE, counterclockwise, 0.75, 0.25));
  EXPECT_TRUE(contains(SQUARE, counterclockwise, 0.5, 0.0));
  EXPECT_TRUE(contains(SQUARE, counterclockwise, 0.5, 0.5));
  EXPECT_FALSE(contains(SQUARE, counterclockwise, 0.25, 0.75));
  EXPECT_FALSE(contains(SQUARE, counterclockwise, 0.5, -1e-9));
}

TEST(Mesh, CornersMayRunClockwise) {
  EXPECT_TRUE(contains(SQUARE, SQUARE.cells[1], 0.25, 0.75));
  EXPECT_FALSE(contains(SQUARE, SQUARE.cells[1], 0.75, 0.25));
}

}  // namespace
