#include "setup/mesh/tidying.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "setup/faults.h"
#include "setup/meshes.h"

using ::testing::ElementsAre;

namespace {

std::string refusalOf(setup::Mesh mesh) {
  return faults::messageOf([&mesh] { setup::tidyMesh(mesh); });
}

}  // namespace

TEST(TidyMesh, LeavesASoundMeshAsItIs) {
  setup::Mesh mesh = meshes::square();
  const setup::Tidying done = setup::tidyMesh(mesh);
  EXPECT_EQ(done.turnedCells, 0);
  EXPECT_EQ(done.unusedNodes, 0);
  EXPECT_THAT(mesh.cells[1].nodes, ElementsAre(0, 2, 3));
  EXPECT_EQ(mesh.nodes.size(), 4U);
}

TEST(TidyMesh, TurnsClockwiseTriangles) {
  setup::Mesh mesh = meshes::square();
  mesh.cells[1].nodes = {0, 3, 2};
  EXPECT_EQ(setup::tidyMesh(mesh).turnedCells, 1);
  EXPECT_THAT(mesh.cells[1].nodes, ElementsAre(0, 2, 3));
}

TEST(TidyMesh, LeavesOutNodesThatNoTriangleUses) {
  setup::Mesh mesh =
      meshes::of({{9, 9, 0}, {0, 0, 1}, {8, 8, 0}, {1, 0, 2}, {0, 1, 3}}, {{1, 3, 4}});
  mesh.strings.push_back({"w", {3, 4}, 9});
  EXPECT_EQ(setup::tidyMesh(mesh).unusedNodes, 2);
  ASSERT_EQ(mesh.nodes.size(), 3U);
  EXPECT_THAT(mesh.cells[0].nodes, ElementsAre(0, 1, 2));
  EXPECT_THAT(mesh.strings[0].nodes, ElementsAre(1, 2));
  EXPECT_EQ(mesh.nodes[2].z, 3.0);
}

TEST(TidyMesh, RefusesTwoNodesAtTheSamePlace) {
  EXPECT_EQ(refusalOf(meshes::of({{0, 0, 0}, {1, 0, 0}, {0, 1, 0}, {1, 0, 5}}, {{0, 1, 2}})),
            "mesh file <m.2dm>, line 5: nodes 2 and 4 lie at the same place, each node must have "
            "a place of its own");
}

TEST(TidyMesh, RefusesATriangleThatNamesANodeTwice) {
  EXPECT_EQ(refusalOf(meshes::of({{0, 0, 0}, {1, 0, 0}, {0, 1, 0}}, {{0, 1, 0}})),
            "mesh file <m.2dm>, line 5: element 1 names a node twice: 1, 2, 1");
}

TEST(TidyMesh, RefusesATriangleWithoutArea) {
  EXPECT_EQ(refusalOf(meshes::of({{0, 0, 0}, {1, 1, 0}, {3, 3, 0}}, {{0, 1, 2}})),
            "mesh file <m.2dm>, line 5: element 1 has no area: its nodes 1, 2, 3 lie on a line");
}

TEST(TidyMesh, RefusesATriangleWhoseAreaIsRounding) {
  EXPECT_EQ(refusalOf(meshes::of({{0, 0, 0}, {0.1, 0.3, 0}, {0.3, 0.9, 0}}, {{0, 1, 2}})),
            "mesh file <m.2dm>, line 5: element 1 has no area: its nodes 1, 2, 3 lie on a line");
}

TEST(TidyMesh, KeepsAThinTriangle) {
  setup::Mesh mesh = meshes::of({{0, 0, 0}, {1000, 0, 0}, {500, 0.01, 0}}, {{0, 1, 2}});
  EXPECT_EQ(setup::tidyMesh(mesh).turnedCells, 0);
}

TEST(TidyMesh, RefusesANodestringOverAnUnusedNode) {
  setup::Mesh mesh = meshes::of({{0, 0, 0}, {1, 0, 0}, {0, 1, 0}, {9, 9, 0}}, {{0, 1, 2}});
  mesh.strings.push_back({"w", {0, 3}, 8});
  EXPECT_EQ(refusalOf(mesh),
            "mesh file <m.2dm>, line 8: nodestring <w> runs over node 4, which no element uses");
}
