#include "setup/domain/edge_strings.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "setup/StudyFolder.h"
#include "setup/mesh/Mesh.h"

using setup::index;
using ::testing::Each;
using ::testing::ElementsAre;

namespace {

const std::string STRINGDEF = studies::PLANE + "/GEOMETRY/STRINGDEF";
const std::string WATER = R"("INITIAL": {"water_level": 1})";

/// Nodes of the square, 2 m apart, with diagonals from lower left to upper right:
///   7 8 9
///   4 5 6
///   1 2 3
class Strings : public ::testing::Test {
 protected:
  setup::Domain build(const std::string& strings) const {
    return folder.build(R"("STRINGDEF": [)" + strings + "]", WATER);
  }

  std::string refusalOf(const std::string& strings) const {
    return folder.refusalOf(R"("STRINGDEF": [)" + strings + "]", WATER);
  }

  /// The ids of the nodes of a cell, sorted.
  static std::array<long, 3> corners(const setup::Domain& domain, int cell) {
    std::array<long, 3> ids{};
    for (std::size_t k = 0; k < 3; ++k) {
      ids[k] = domain.mesh.nodes[index(domain.mesh.cells[index(cell)].nodes[k])].id;
    }
    std::sort(ids.begin(), ids.end());
    return ids;
  }

  /// The ids of the nodes of an edge, sorted.
  static std::array<long, 2> ends(const setup::Domain& domain, int edge) {
    const auto [a, b] = domain.topology.edgeNodes[index(edge)];
    const long first = domain.mesh.nodes[index(a)].id;
    const long second = domain.mesh.nodes[index(b)].id;
    return {std::min(first, second), std::max(first, second)};
  }

  const studies::Folder folder;
};

}  // namespace

TEST_F(Strings, HaveTheirEdgesInTheOrderOfTheirNodes) {
  const setup::Domain domain = build(R"({"name": "a", "nodes": [4, 5, 9, 6]})");
  const setup::EdgeString& string = domain.strings.at(0);
  EXPECT_EQ(string.name, "a");
  ASSERT_EQ(string.edges.size(), 3U);
  EXPECT_THAT(ends(domain, string.edges[0]), ElementsAre(4, 5));
  EXPECT_THAT(ends(domain, string.edges[1]), ElementsAre(5, 9));
  EXPECT_THAT(ends(domain, string.edges[2]), ElementsAre(6, 9));
  EXPECT_DOUBLE_EQ(string.length, 4.0 + std::sqrt(8.0));
}

TEST_F(Strings, UpstreamCellsAreOnTheirLeft) {
  const setup::Domain domain = build(R"({"name": "a", "nodes": [2, 5, 8]})");
  const setup::EdgeString& string = domain.strings[0];
  EXPECT_THAT(corners(domain, string.cells[0]), ElementsAre(1, 2, 5));
  EXPECT_THAT(corners(domain, string.cells[1]), ElementsAre(4, 5, 8));
}

TEST_F(Strings, SignsTellWhetherTheNormalPointsFromTheirLeftToTheirRight) {
  const setup::Domain domain =
      build(R"({"name": "a", "nodes": [2, 5, 8]}, {"name": "b", "nodes": [4, 5, 6]})");
  for (std::size_t k = 0; k < 2; ++k) {
    const auto& eastward = domain.strings[0];
    const auto& southward = domain.strings[1];
    EXPECT_EQ(domain.geometry.normals[index(eastward.edges[k])][0], eastward.signs[k]);
    EXPECT_EQ(domain.geometry.normals[index(southward.edges[k])][1], -southward.signs[k]);
  }
}

TEST_F(Strings, AgainstTheOrderHaveTheOtherSide) {
  const setup::Domain domain = build(
      R"({"name": "a", "nodes": [2, 5, 8], "reverse": true}, {"name": "b", "nodes": [8, 5, 2]})");
  EXPECT_EQ(domain.strings[0].edges, domain.strings[1].edges);
  EXPECT_EQ(domain.strings[0].signs, domain.strings[1].signs);
  EXPECT_EQ(domain.strings[0].cells, domain.strings[1].cells);
  EXPECT_THAT(corners(domain, domain.strings[0].cells[0]), ElementsAre(5, 8, 9));
}

TEST_F(Strings, CanBeTurnedAfterwards) {
  const setup::Domain domain =
      build(R"({"name": "a", "nodes": [2, 5, 8]}, {"name": "b", "nodes": [8, 5, 2]})");
  setup::EdgeString string = domain.strings[0];
  reverse(string, domain.topology);
  EXPECT_EQ(string.edges, domain.strings[1].edges);
  EXPECT_EQ(string.signs, domain.strings[1].signs);
  EXPECT_EQ(string.cells, domain.strings[1].cells);
}

TEST_F(Strings, AlongTheBoundaryCountWhatLeavesIfTheDomainIsOnTheirLeft) {
  const setup::Domain domain =
      build(R"({"name": "a", "nodes": [1, 2, 3]}, {"name": "b", "nodes": [3, 2, 1]})");
  EXPECT_THAT(domain.strings[0].signs, Each(1));
  EXPECT_THAT(domain.strings[1].signs, Each(-1));
  EXPECT_THAT(corners(domain, domain.strings[0].cells[0]), ElementsAre(1, 2, 5));
  EXPECT_THAT(corners(domain, domain.strings[1].cells[1]), ElementsAre(1, 2, 5));
}

TEST_F(Strings, CanBeLinesBetweenTwoPlaces) {
  const setup::Domain domain = build(R"({"name": "a", "from": [2, 0], "to": [2, 4]},
                                        {"name": "b", "from": [4, 5], "to": [4, -1]},
                                        {"name": "c", "from": [4, 4], "to": [0, 0]})");
  ASSERT_EQ(domain.strings[0].edges.size(), 2U);
  EXPECT_THAT(ends(domain, domain.strings[0].edges[0]), ElementsAre(2, 5));
  EXPECT_THAT(ends(domain, domain.strings[1].edges[0]), ElementsAre(6, 9));
  EXPECT_THAT(ends(domain, domain.strings[2].edges[1]), ElementsAre(1, 5));
}

TEST_F(Strings, KeepTheOrderOfTheStudy) {
  const setup::Domain domain =
      build(R"({"name": "z", "nodes": [1, 2]}, {"name": "a", "nodes": [2, 3]})");
  EXPECT_EQ(domain.strings[0].name, "z");
  EXPECT_EQ(domain.strings[1].name, "a");
}

TEST_F(Strings, RefuseNodesThatNoEdgeJoins) {
  EXPECT_EQ(refusalOf(R"({"name": "a", "nodes": [1, 2, 4]})"),
            "string <a> of <" + STRINGDEF +
                "/0> runs from node 2 to node 4, but no edge of the mesh joins them");
}

TEST_F(Strings, RefuseUnknownNodes) {
  EXPECT_EQ(refusalOf(R"({"name": "a", "nodes": [1, 12]})"),
            "string <a> of <" + STRINGDEF +
                "/0> names node 12, which the mesh does not have or no element uses");
}

TEST_F(Strings, RefuseAnEdgeThatIsPassedTwice) {
  EXPECT_EQ(refusalOf(R"({"name": "a", "nodes": [1, 2, 1]})"),
            "string <a> of <" + STRINGDEF + "/0> runs twice over the edge between nodes 2 and 1");
}

TEST_F(Strings, RefuseStringsWithoutAnEdge) {
  EXPECT_EQ(refusalOf(R"({"name": "a", "nodes": [1]})"),
            "string <a> of <" + STRINGDEF + "/0> has no edge: it needs two nodes at least");
  EXPECT_EQ(refusalOf(R"({"name": "a", "from": [1, 0], "to": [1, 4]})"),
            "string <a> of <" + STRINGDEF +
                "/0> has no edge: of the nodes of the mesh 0 lie on the line, two are needed at "
                "least");
  EXPECT_EQ(refusalOf(R"({"name": "a", "from": [0, 0], "to": [0, 0]})"),
            "string <a> of <" + STRINGDEF +
                "/0> has no edge: of the nodes of the mesh 0 lie on the line, two are needed at "
                "least");
}

TEST_F(Strings, RefuseANameThatStandsTwice) {
  EXPECT_EQ(refusalOf(R"({"name": "a", "nodes": [1, 2]}, {"name": "a", "nodes": [2, 3]})"),
            "key <" + STRINGDEF + "/1/name> is <a>, but another string has this name");
}

TEST_F(Strings, RefuseTwoWaysToGiveOne) {
  EXPECT_EQ(refusalOf(R"({"name": "a", "nodes": [1, 2], "mesh_string": "b"})"),
            "<" + STRINGDEF + "/0> must hold only one of mesh_string, nodes and the pair from, to");
  EXPECT_EQ(refusalOf(R"({"name": "a", "from": [1, 2]})"),
            "<" + STRINGDEF + "/0> must hold from and to together: the ends of a line");
}

TEST_F(Strings, RefuseAnEmptyListOfNodes) {
  EXPECT_EQ(refusalOf(R"({"name": "a", "nodes": []})"),
            "key <" + STRINGDEF + "/0/nodes> must not be empty");
}

TEST_F(Strings, RefuseADirectionThatIsNeitherTrueNorFalse) {
  EXPECT_EQ(refusalOf(R"({"name": "a", "nodes": [1, 2], "reverse": 1})"),
            "key <" + STRINGDEF + "/0/reverse> must be true or false, but is 1");
}

TEST(LongStrings, Have40EdgesAtMost) {
  const studies::Folder folder(R"("RECTANGLE": {"length": 41, "width": 1, "cells": [82, 1]})");
  const auto string = [](const std::string& end) {
    return R"("STRINGDEF": [{"name": "bank", "from": [0, 0], "to": [)" + end + ", 0]}]";
  };
  EXPECT_EQ(folder.build(string("20"), WATER).strings[0].edges.size(), 40U);
  EXPECT_EQ(folder.refusalOf(string("20.5"), WATER),
            "string <bank> of <" + STRINGDEF +
                "/0> has 41 edges on a length of 20.5 m, but at most 40 are possible: divide it "
                "into several");
}

class MeshStrings : public ::testing::Test {
 protected:
  MeshStrings() {
    support::writeFile(folder.file("m.2dm"),
                       "MESH2D\nND 9 5 5 0\nND 1 0 0 0\nND 2 1 0 0\nND 3 1 1 0\nND 4 0 1 0\n"
                       "E3T 1 1 2 3 1\nE3T 2 1 3 4 2\nNS 1 2 -3 outlet\nNS 4 -1\n");
  }
  const studies::Folder folder{R"("MESH": {"file": "m.2dm"})"};
};

TEST_F(MeshStrings, AreFoundByTheirName) {
  const setup::Domain domain = folder.build(
      R"("STRINGDEF": [{"name": "inlet", "mesh_string": "2"}, {"name": "outlet"}])", WATER);
  ASSERT_EQ(domain.strings.size(), 2U);
  EXPECT_EQ(domain.strings[0].edges.size(), 1U);
  EXPECT_EQ(domain.strings[1].edges.size(), 2U);
  EXPECT_THAT(domain.strings[1].signs, Each(1));
}

TEST_F(MeshStrings, AreNotNeededInTheRun) {
  EXPECT_TRUE(folder.build("", WATER).strings.empty());
}

TEST_F(MeshStrings, NodesThatNoElementUsesAreRefused) {
  EXPECT_EQ(folder.refusalOf(R"("STRINGDEF": [{"name": "a", "nodes": [1, 9]}])", WATER),
            "string <a> of <" + STRINGDEF +
                "/0> names node 9, which the mesh does not have or no element uses");
}

TEST_F(MeshStrings, UnknownNamesAreRefused) {
  EXPECT_EQ(folder.refusalOf(R"("STRINGDEF": [{"name": "weir"}])", WATER),
            "string <weir> of <" + STRINGDEF +
                "/0> is not in the mesh: there is no nodestring <weir>, but these: outlet, 2");
}
