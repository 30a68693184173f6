#include "setup/mesh/tidying.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>

#include "setup/meshes.h"

using ::testing::ElementsAre;
using ::testing::UnorderedElementsAreArray;

namespace {

setup::Neighbours neighboursOf(const setup::Mesh& mesh) {
  return setup::neighboursOf(setup::findTopology(mesh));
}

}  // namespace

TEST(Numbering, BandwidthIsTheGreatestDistanceOfNeighbours) {
  EXPECT_EQ(setup::bandwidth({{0, 0, 0}}), 0);
  EXPECT_EQ(setup::bandwidth({{3, 0, 0}, {1, 1, 2}, {1, 2, 2}, {0, 3, 3}}), 3);
}

TEST(Numbering, ARowOfCellsIsNumberedFromEndToEnd) {
  // 2 - 0 - 3 - 1
  const std::vector<int> order = setup::cuthillMcKee({{2, 3, 0}, {3, 1, 1}, {0, 2, 2}, {0, 1, 3}});
  EXPECT_THAT(order, ::testing::AnyOf(ElementsAre(2, 0, 3, 1), ElementsAre(1, 3, 0, 2)));
}

TEST(Numbering, OfTheNeighboursOfACellThatWithTheFewestComesFirst) {
  // 0 - 2, and the triangle 1 - 2 - 3; from 1 on, 3 has fewer neighbours than 2
  EXPECT_THAT(setup::cuthillMcKee({{2, 0, 0}, {3, 2, 1}, {0, 3, 1}, {2, 1, 3}}),
              ElementsAre(0, 2, 1, 3));
}

TEST(Numbering, BeginsAtTheCellOfTheLastFrontThatHasTheFewestNeighbours) {
  // Fronts around 0: 1 and 2, then 3 with three neighbours and 4 with one.
  EXPECT_THAT(setup::cuthillMcKee({{2, 1, 0}, {0, 3, 1}, {0, 4, 3}, {2, 1, 3}, {2, 4, 4}}),
              ElementsAre(4, 2, 3, 0, 1));
}

TEST(Numbering, EveryCellGetsOneNumber) {
  const std::vector<int> order = setup::cuthillMcKee(neighboursOf(meshes::random(5)));
  std::vector<int> all(order.size());
  std::iota(all.begin(), all.end(), 0);
  EXPECT_EQ(order.size(), 2U * 12U * 12U);
  EXPECT_THAT(order, UnorderedElementsAreArray(all));
}

TEST(Numbering, PartsThatAreNotConnectedFollowEachOther) {
  // 0 - 2 and 1 - 3
  const std::vector<int> order = setup::cuthillMcKee({{2, 0, 0}, {3, 1, 1}, {0, 2, 2}, {1, 3, 3}});
  EXPECT_EQ(std::abs(order[0] - order[1]), 2);
  EXPECT_EQ(std::abs(order[2] - order[3]), 2);
}

TEST(Numbering, ARandomMeshGetsTheBandwidthOfItsWidth) {
  constexpr int n = 40;
  setup::Mesh mesh = meshes::random(6, n);
  const setup::Neighbours before = neighboursOf(mesh);
  setup::orderCells(mesh, setup::cuthillMcKee(before));
  EXPECT_GT(setup::bandwidth(before), 20 * n);
  EXPECT_LT(setup::bandwidth(neighboursOf(mesh)), 3 * n);
}

TEST(Numbering, EdgesAreNearToTheirCells) {
  constexpr int n = 40;
  setup::Mesh mesh = meshes::random(7, n);
  setup::orderCells(mesh, setup::cuthillMcKee(neighboursOf(mesh)));
  int farthest = 0;
  for (const auto& [a, b, c] : setup::findTopology(mesh).cellEdges) {
    farthest = std::max(farthest, std::max({a, b, c}) - std::min({a, b, c}));
  }
  EXPECT_LT(farthest, 5 * n);
}

TEST(Numbering, CellsAreMovedWithAllThatBelongsToThem) {
  setup::Mesh mesh = meshes::square();
  mesh.cells[1].material = 8;
  setup::orderCells(mesh, {1, 0});
  EXPECT_EQ(mesh.cells[0].id, 2);
  EXPECT_EQ(mesh.cells[0].material, 8);
  EXPECT_THAT(mesh.cells[0].nodes, ElementsAre(0, 2, 3));
}
