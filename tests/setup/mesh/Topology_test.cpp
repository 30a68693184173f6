#include "setup/mesh/Topology.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>

#include "setup/faults.h"
#include "setup/mesh/Mesh.h"
#include "setup/meshes.h"

using setup::index;
using ::testing::ElementsAre;

TEST(Topology, OfTwoCellsIsAsDrawn) {
  const setup::Topology topology = setup::findTopology(meshes::square());
  EXPECT_THAT(topology.edgeNodes,
              ElementsAre(ElementsAre(0, 1), ElementsAre(1, 2), ElementsAre(2, 0),
                          ElementsAre(2, 3), ElementsAre(3, 0)));
  EXPECT_THAT(topology.edgeCells,
              ElementsAre(ElementsAre(0, 0), ElementsAre(0, 0), ElementsAre(0, 1),
                          ElementsAre(1, 1), ElementsAre(1, 1)));
  EXPECT_THAT(topology.cellEdges, ElementsAre(ElementsAre(0, 1, 2), ElementsAre(2, 3, 4)));
  EXPECT_THAT(topology.boundaryEdges(), ElementsAre(0, 1, 3, 4));
  EXPECT_THAT(topology.innerEdges(), ElementsAre(2));
  EXPECT_THAT(topology.neighbours(0), ElementsAre(0, 0, 1));
  EXPECT_THAT(topology.neighbours(1), ElementsAre(0, 1, 1));
}

TEST(Topology, EdgeOfACornerJoinsThisNodeAndTheNext) {
  const setup::Mesh mesh = meshes::random(1);
  const setup::Topology topology = setup::findTopology(mesh);
  for (std::size_t cell = 0; cell < mesh.cells.size(); ++cell) {
    for (std::size_t k = 0; k < 3; ++k) {
      const std::size_t edge = index(topology.cellEdges[cell][k]);
      const bool isLeft = topology.edgeCells[edge][0] == static_cast<int>(cell);
      const std::size_t first = isLeft ? k : (k + 1) % 3;
      const std::size_t second = isLeft ? (k + 1) % 3 : k;
      EXPECT_EQ(topology.edgeNodes[edge][0], mesh.cells[cell].nodes[first]);
      EXPECT_EQ(topology.edgeNodes[edge][1], mesh.cells[cell].nodes[second]);
      EXPECT_TRUE(isLeft || topology.edgeCells[edge][1] == static_cast<int>(cell));
    }
  }
}

TEST(Topology, LeftCellIsTheOneWithTheSmallerPosition) {
  const setup::Topology topology = setup::findTopology(meshes::random(2));
  for (const int edge : topology.innerEdges()) {
    EXPECT_LT(topology.edgeCells[index(edge)][0], topology.edgeCells[index(edge)][1]);
  }
}

TEST(Topology, EdgesAreNumberedAsTheCellsMeetThem) {
  const setup::Topology topology = setup::findTopology(meshes::random(3));
  int next = 0;
  for (const auto& edges : topology.cellEdges) {
    for (const int edge : edges) {
      EXPECT_LE(edge, next);
      if (edge == next) ++next;
    }
  }
  EXPECT_EQ(next, static_cast<int>(topology.edgeCells.size()));
}

TEST(Topology, SatisfiesEulersFormula) {
  const setup::Mesh mesh = meshes::random(4, 15);
  const setup::Topology topology = setup::findTopology(mesh);
  EXPECT_EQ(mesh.nodes.size() + mesh.cells.size(), topology.edgeCells.size() + 1);
  EXPECT_EQ(topology.boundaryEdges().size(), 4U * 15U);
  EXPECT_EQ(topology.boundaryEdges().size() + topology.innerEdges().size(),
            topology.edgeCells.size());
}

TEST(Topology, RefusesAnEdgeOfThreeCells) {
  const setup::Mesh mesh = meshes::of({{0, 0, 0}, {1, 0, 0}, {0, 1, 0}, {1, -1, 0}, {0.5, 2, 0}},
                                      {{0, 1, 2}, {1, 0, 3}, {0, 1, 4}});
  EXPECT_EQ(faults::messageOf([&mesh] { setup::findTopology(mesh); }),
            "mesh file <m.2dm>, line 9: the edge between nodes 1 and 2 belongs to more than two "
            "elements: 1, 2, 3");
}

TEST(Topology, RefusesCellsOnTheSameSideOfAnEdge) {
  const setup::Mesh mesh =
      meshes::of({{0, 0, 0}, {1, 0, 0}, {0, 1, 0}, {0.5, 2, 0}}, {{0, 1, 2}, {0, 1, 3}});
  EXPECT_EQ(faults::messageOf([&mesh] { setup::findTopology(mesh); }),
            "mesh file <m.2dm>, line 7: elements 1 and 2 overlap: they lie on the same side of the "
            "edge between nodes 1 and 2");
}
