#include "setup/mesh/Reader2dm.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "setup/faults.h"
#include "support/Process.h"
#include "support/TempDir.h"

using ::testing::ElementsAre;

namespace {

const std::string HEAD = "MESH2D\n";
const std::string NODES = "ND 10 0 0 1\nND 20 1 0 2\nND 30 1 1 3\nND 40 0 1 4\n";
const std::string CELLS = "E3T 1 10 20 30 5\nE3T 2 10 30 40 6\n";

class Reader2dm : public ::testing::Test {
 protected:
  setup::Mesh read(const std::string& text) {
    support::writeFile(file, text);
    return setup::readMesh2dm(file);
  }

  /// The message without the name of the file: "line 7: ..." or what is behind it.
  std::string refusalOf(const std::string& text) {
    std::string message = faults::messageOf([&] { read(text); });
    const std::string start = "mesh file <" + file + ">";
    EXPECT_TRUE(message.starts_with(start)) << message;
    return message.substr(start.size() + 2);
  }

  const support::TempDir dir;
  const std::string file = dir.file("m.2dm");
};

}  // namespace

TEST_F(Reader2dm, ReadsNodesAndTriangles) {
  const setup::Mesh mesh = read(HEAD + NODES + CELLS);
  EXPECT_EQ(mesh.file, file);
  ASSERT_EQ(mesh.nodes.size(), 4U);
  EXPECT_EQ(mesh.nodes[1].id, 20);
  EXPECT_EQ(mesh.nodes[1].x, 1.0);
  EXPECT_EQ(mesh.nodes[1].y, 0.0);
  EXPECT_EQ(mesh.nodes[1].z, 2.0);
  EXPECT_EQ(mesh.nodes[1].line, 3);
  ASSERT_EQ(mesh.cells.size(), 2U);
  EXPECT_EQ(mesh.cells[1].id, 2);
  EXPECT_THAT(mesh.cells[1].nodes, ElementsAre(0, 2, 3));
  EXPECT_EQ(mesh.cells[1].material, 6);
  EXPECT_EQ(mesh.cells[1].line, 7);
}

TEST_F(Reader2dm, CardsMayStandInAnyOrder) {
  const setup::Mesh mesh = read(HEAD + CELLS + NODES);
  EXPECT_THAT(mesh.cells[0].nodes, ElementsAre(0, 1, 2));
}

TEST_F(Reader2dm, LinesMayEndInTheMannerOfWindows) {
  const setup::Mesh mesh =
      read("MESH2D\r\nND 1 0 0 0\r\nND 2 1 0 0\r\nND 3 0 1 0\r\nE3T 1 1 2 3 1\r\nNS 1 -2 a\r\n");
  EXPECT_EQ(mesh.nodes.size(), 3U);
  EXPECT_EQ(mesh.cells[0].material, 1);
  EXPECT_EQ(mesh.strings[0].name, "a");
}

TEST_F(Reader2dm, CommentsAndEmptyLinesArePassedOver) {
  const setup::Mesh mesh = read("\n# by hand\n" + HEAD + "\n   \n! more\n" + NODES + CELLS);
  EXPECT_EQ(mesh.cells.size(), 2U);
}

TEST_F(Reader2dm, UnknownCardsAreNamedOnce) {
  ::testing::internal::CaptureStdout();
  read(HEAD + "MESHNAME \"x\"\n" + NODES + CELLS + "GP 1\nGP 2\n");
  EXPECT_EQ(::testing::internal::GetCapturedStdout(),
            " -> mesh file <" + file +
                ">: passed over cards that are of no use here: " + "GP, MESHNAME\n");
}

TEST_F(Reader2dm, ANodestringEndsWithANegativeId) {
  const setup::Mesh mesh = read(HEAD + NODES + CELLS + "NS 10 20 -30 weir\nNS 30 -40 7\n");
  ASSERT_EQ(mesh.strings.size(), 2U);
  EXPECT_EQ(mesh.strings[0].name, "weir");
  EXPECT_THAT(mesh.strings[0].nodes, ElementsAre(0, 1, 2));
  EXPECT_EQ(mesh.strings[1].name, "7");
  EXPECT_THAT(mesh.strings[1].nodes, ElementsAre(2, 3));
}

TEST_F(Reader2dm, ANodestringMayGoOnOverSeveralCards) {
  const setup::Mesh mesh = read(HEAD + NODES + "NS 10 20\n# half way\nNS 30\nNS -40\n" + CELLS);
  ASSERT_EQ(mesh.strings.size(), 1U);
  EXPECT_THAT(mesh.strings[0].nodes, ElementsAre(0, 1, 2, 3));
}

TEST_F(Reader2dm, ANodestringWithoutNameIsNamedByItsNumber) {
  const setup::Mesh mesh = read(HEAD + NODES + CELLS + "NS 10 -20 first\nNS 20 -30\n");
  EXPECT_EQ(mesh.strings[1].name, "2");
}

TEST_F(Reader2dm, TheNameOfANodestringMayBeQuotedAndHoldBlanks) {
  const setup::Mesh mesh = read(HEAD + NODES + CELLS + "NS 10 -20 \"upper weir\"\n");
  EXPECT_EQ(mesh.strings[0].name, "upper weir");
}

TEST_F(Reader2dm, RefusesAFileThatCannotBeRead) {
  EXPECT_EQ(faults::messageOf([&] { setup::readMesh2dm(dir.file("none.2dm")); }),
            "mesh file <" + dir.file("none.2dm") + ">: the file cannot be read");
}

TEST_F(Reader2dm, RefusesAMeshWithoutTriangles) {
  EXPECT_EQ(refusalOf(""), "the mesh is empty: there is no triangle (card E3T)");
  EXPECT_EQ(refusalOf(HEAD + NODES), "the mesh is empty: there is no triangle (card E3T)");
}

/// A faulty text and what is said of it.
struct Fault {
  std::string name;
  std::string text;
  std::string message;
};

class Reader2dmFault : public Reader2dm, public ::testing::WithParamInterface<Fault> {};

TEST_P(Reader2dmFault, IsRefused) {
  EXPECT_EQ(refusalOf(GetParam().text), GetParam().message);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(All, Reader2dmFault, ::testing::Values(
  Fault{"noHeader",          "ND 1 0 0 0\n",                                "line 1: the first card is <ND>, but a 2dm file begins with MESH2D"},
  Fault{"quadrilateral",     HEAD + NODES + "E4Q 1 10 20 30 40 1\n",        "line 6: element card <E4Q> is not supported, cells are triangles (card E3T)"},
  Fault{"sixNodes",          HEAD + "E6T 1 1 2 3 4 5 6 1\n",                "line 2: element card <E6T> is not supported, cells are triangles (card E3T)"},
  Fault{"lineElement",       HEAD + "E2L 1 1 2 1\n",                        "line 2: element card <E2L> is not supported, cells are triangles (card E3T)"},
  Fault{"shortNode",         HEAD + "ND 1 0 0\n",                           "line 2: the card is too short, it should read: ND id x y z"},
  Fault{"shortTriangle",     HEAD + "E3T 1 1 2 3\n",                        "line 2: the card is too short, it should read: E3T id n1 n2 n3 material"},
  Fault{"shortString",       HEAD + "NS\n",                                 "line 2: the card is too short, it should read: NS n1 n2 ... -nk name"},
  Fault{"noNumber",          HEAD + "ND 1 0 0,5 0\n",                       "line 2: <0,5> is not a number, but stands for y"},
  Fault{"notFinite",         HEAD + "ND 1 nan 0 0\n",                       "line 2: <nan> is not a number, but stands for x"},
  Fault{"noWholeNumber",     HEAD + "ND 1.5 0 0 0\n",                       "line 2: <1.5> is not a whole number, but stands for the node id"},
  Fault{"materialNoNumber",  HEAD + "E3T 1 1 2 3 water\n",                  "line 2: <water> is not a whole number, but stands for the material"},
  Fault{"hugeMaterial",      HEAD + "E3T 1 1 2 3 3000000000\n",             "line 2: material 3000000000 is beyond the largest number possible, 2147483647"},
  Fault{"nodeIdZero",        HEAD + "ND 0 0 0 0\n",                         "line 2: node id 0 is not possible, ids begin at 1"},
  Fault{"elementIdNegative", HEAD + "E3T -1 1 2 3 1\n",                     "line 2: element id -1 is not possible, ids begin at 1"},
  Fault{"stringIdZero",      HEAD + "NS 1 0 -2\n",                          "line 2: node id 0 is not possible, ids begin at 1"},
  Fault{"nodeTwice",         HEAD + NODES + "ND 20 9 9 9\n",                "line 6: node 20 is defined again, first on line 3"},
  Fault{"elementTwice",      HEAD + NODES + CELLS + "E3T 1 20 30 40 1\n",   "line 8: element 1 is defined again, first on line 6"},
  Fault{"unknownNode",       HEAD + NODES + "E3T 1 10 20 31 1\n",           "line 6: element 1 refers to node 31, which the file does not define"},
  Fault{"unknownStringNode", HEAD + NODES + CELLS + "NS 10\nNS -50 w\n",    "line 9: nodestring <w> refers to node 50, which the file does not define"},
  Fault{"unendedString",     HEAD + NODES + CELLS + "NS 10 20\n",           "line 8: the nodestring is not ended by a negative node id"},
  Fault{"brokenString",      HEAD + NODES + "NS 10 20\n" + CELLS,           "line 6: the nodestring is not ended by a negative node id"},
  Fault{"stringOfOneNode",   HEAD + NODES + CELLS + "NS -10 w\n",           "line 8: nodestring <w> has one node, it needs two at least"},
  Fault{"stringNameTwice",   HEAD + NODES + "NS 10 -20 w\nNS 20 -30 w\n",   "line 7: there is another nodestring <w> before"}
), [](const ::testing::TestParamInfo<Fault>& fault) { return fault.param.name; });
// clang-format on
