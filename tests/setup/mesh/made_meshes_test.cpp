#include "setup/mesh/made_meshes.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <numeric>

#include "setup/mesh/Geometry.h"
#include "setup/mesh/Topology.h"
#include "setup/mesh/tidying.h"

using ::testing::ElementsAre;

namespace {

double areaOf(const setup::Mesh& mesh) {
  const std::vector<double> areas = setup::measure(mesh, setup::findTopology(mesh)).areas;
  return std::accumulate(areas.begin(), areas.end(), 0.0);
}

setup::RectangleMesh basin(setup::Pattern pattern) {
  setup::RectangleMesh rectangle;
  rectangle.origin = {10.0, 20.0};
  rectangle.length = 6.0;
  rectangle.width = 2.0;
  rectangle.cells = {3, 2};
  rectangle.elevation = 1.0;
  rectangle.slope = 0.1;
  rectangle.pattern = pattern;
  return rectangle;
}

class RectangleMesh : public ::testing::TestWithParam<setup::Pattern> {};

}  // namespace

TEST_P(RectangleMesh, IsSoundAndCoversTheRectangle) {
  setup::Mesh mesh = setup::makeMesh(basin(GetParam()));
  const bool isCrossed = GetParam() == setup::Pattern::Crossed;
  EXPECT_EQ(mesh.cells.size(), isCrossed ? 24U : 12U);
  EXPECT_EQ(mesh.nodes.size(), isCrossed ? 18U : 12U);
  const setup::Tidying tidying = setup::tidyMesh(mesh);
  EXPECT_EQ(tidying.turnedCells, 0);
  EXPECT_EQ(tidying.unusedNodes, 0);
  EXPECT_DOUBLE_EQ(areaOf(mesh), 12.0);
}

TEST_P(RectangleMesh, BedFallsAlongX) {
  for (const setup::Node& node : setup::makeMesh(basin(GetParam())).nodes) {
    EXPECT_DOUBLE_EQ(node.z, 1.0 - 0.1 * (node.x - 10.0));
  }
}

INSTANTIATE_TEST_SUITE_P(Patterns, RectangleMesh,
                         ::testing::Values(setup::Pattern::Diagonal, setup::Pattern::Alternating,
                                           setup::Pattern::Crossed));

TEST(GridMesh, DiagonalsAlternate) {
  const setup::Mesh mesh = setup::gridMesh(
      {0.0, 1.0, 2.0}, {0.0, 1.0}, [](double, double) { return 0.0; }, setup::Pattern::Alternating);
  EXPECT_THAT(mesh.cells[0].nodes, ElementsAre(0, 1, 4));
  EXPECT_THAT(mesh.cells[1].nodes, ElementsAre(0, 4, 3));
  EXPECT_THAT(mesh.cells[2].nodes, ElementsAre(1, 2, 4));
  EXPECT_THAT(mesh.cells[3].nodes, ElementsAre(2, 5, 4));
}

TEST(ChannelMesh, HasABedAndTwoBanks) {
  setup::ChannelMesh channel;
  channel.origin = {100.0, 0.0};
  channel.length = 50.0;
  channel.bedWidth = 4.0;
  channel.sideSlope = 2.0;
  channel.bankHeight = 1.5;
  channel.cells = {10, 2, 3};
  channel.elevation = 7.0;
  channel.slope = 0.01;
  setup::Mesh mesh = setup::makeMesh(channel);
  EXPECT_EQ(mesh.cells.size(), 2U * 10U * 8U);
  EXPECT_EQ(setup::tidyMesh(mesh).turnedCells, 0);
  EXPECT_DOUBLE_EQ(areaOf(mesh), 50.0 * 10.0);
  for (const setup::Node& node : mesh.nodes) {
    const double rise = std::max(0.0, std::abs(node.y) - 2.0) / 2.0;
    EXPECT_NEAR(node.z, 7.0 - 0.01 * (node.x - 100.0) + rise, 1e-14);
  }
}

TEST(ChannelMesh, WithoutSideSlopeHasNoBanks) {
  setup::ChannelMesh channel;
  channel.length = 10.0;
  channel.bedWidth = 4.0;
  channel.cells = {5, 2, 3};
  const setup::Mesh mesh = setup::makeMesh(channel);
  EXPECT_EQ(mesh.cells.size(), 2U * 5U * 2U);
  EXPECT_DOUBLE_EQ(areaOf(mesh), 40.0);
}
