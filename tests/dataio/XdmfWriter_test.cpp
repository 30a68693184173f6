#include "dataio/XdmfWriter.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "dataio/failures.h"
#include "support/Process.h"
#include "support/TempDir.h"
#include "support/Xml.h"

namespace {

using dataio::XdmfForm;
using dataio::XdmfWriter;
using failures::reportOf;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::StartsWith;

const std::string STATE = "/RESULTS/CellsAll/HydState/0000001";
const std::string BED = "/CellsAll/BottomEl";
const std::string STEP = "/Xdmf/Domain/Grid/Grid";

class XdmfWriterTest : public ::testing::Test {
 protected:
  void addMesh() {
    writer.addMesh(2, "r.h5", "CellsAll/Topology", 4, "r.h5", "NodesAll/Coordnts", 3);
  }

  void begin() {
    addMesh();
    writer.addTimeStep(0.5);
  }

  support::Xml written() {
    writer.write(name);
    return support::Xml(support::readFile(name));
  }

  const support::TempDir dir;
  const std::string name = dir.file("run.xdmf");
  XdmfWriter writer{name};
};

void expectCheck(const std::string& report, const std::string& text) {
  EXPECT_THAT(report, StartsWith(" -> " + text + ", in file: src/dataio/XdmfWriter on line "));
}

TEST_F(XdmfWriterTest, MeshAloneHasNoGrid) {
  addMesh();
  const support::Xml document = written();
  EXPECT_THAT(document.texts("/Xdmf/@Version"), ElementsAre("2.0"));
  EXPECT_EQ(document.count("//Grid"), 0);
  const std::string topology = "/Xdmf/Domain/Topology";
  EXPECT_THAT(document.texts(topology + "/@*"), ElementsAre("Triangle", "2"));
  EXPECT_THAT(document.texts(topology + "/DataItem/@*"), ElementsAre("Uniform", "2 3", "HDF"));
  EXPECT_THAT(document.texts(topology + "/DataItem"), ElementsAre("r.h5:CellsAll/Topology"));
  const std::string geometry = "/Xdmf/Domain/Geometry";
  EXPECT_THAT(document.texts(geometry + "/@*"), ElementsAre("XYZ", "Coordinates"));
  EXPECT_THAT(document.texts(geometry + "/DataItem/@*"), ElementsAre("Uniform", "4 3", "HDF"));
  EXPECT_THAT(document.texts(geometry + "/DataItem"), ElementsAre("r.h5:NodesAll/Coordnts"));
}

TEST_F(XdmfWriterTest, DocumentWithoutMeshIsWellFormed) {
  EXPECT_EQ(written().count("/Xdmf/Domain/*"), 0);
}

TEST_F(XdmfWriterTest, NothingIsWrittenBeforeTheEnd) {
  begin();
  EXPECT_EQ(support::readFile(name), "");
}

TEST_F(XdmfWriterTest, SecondWriteGivesTheSameDocument) {
  begin();
  writer.write(name);
  const std::string first = support::readFile(name);
  writer.write(name);
  EXPECT_EQ(support::readFile(name), first);
}

TEST_F(XdmfWriterTest, StepsStandInOneSeriesAndReferToTheMesh) {
  addMesh();
  writer.addTimeStep(0.0);
  writer.addTimeStep(1.5);
  const support::Xml document = written();
  EXPECT_THAT(document.texts("/Xdmf/Domain/Grid/@*"), ElementsAre("Collection", "Temporal"));
  EXPECT_THAT(document.texts(STEP + "/@*"),
              ElementsAre("Uniform", "Timestep", "Uniform", "Timestep"));
  EXPECT_THAT(document.texts(STEP + "/Time/@*"),
              ElementsAre("Single", "time = 0.000000", "0.000000", "Single", "time = 1.500000",
                          "1.500000"));
  EXPECT_THAT(document.texts(STEP + "[2]/Topology/@*"),
              ElementsAre("Triangle", "/Xdmf/Domain/Topology[1]"));
  EXPECT_THAT(document.texts(STEP + "[2]/Geometry/@*"),
              ElementsAre("XY", "/Xdmf/Domain/Geometry[1]"));
  EXPECT_EQ(document.count("//*[local-name()='include']"), 0);
}

TEST_F(XdmfWriterTest, ViewersGetTheFormOfNumbersAndTheMeshByInclusion) {
  writer = XdmfWriter(name, XdmfForm::ForViewers);
  begin();
  writer.addScalar("water_surface", 2, "r.h5", STATE, 3, 0);
  const support::Xml document = written();
  const std::string formats = "/@*[name()='NumberType' or name()='Precision']";
  EXPECT_THAT(document.texts("/Xdmf/Domain/Topology/DataItem" + formats), ElementsAre("Int", "4"));
  EXPECT_THAT(document.texts("/Xdmf/Domain/Geometry/DataItem" + formats),
              ElementsAre("Float", "8"));
  EXPECT_THAT(document.texts(STEP + "/Attribute/DataItem/DataItem[2]" + formats),
              ElementsAre("Float", "8"));
  EXPECT_THAT(
      document.texts(STEP + "/*[local-name()='include']/@xpointer"),
      ElementsAre("xpointer(/Xdmf/Domain/Topology[1])", "xpointer(/Xdmf/Domain/Geometry[1])"));
}

TEST_F(XdmfWriterTest, ScalarIsOneColumnOfADataset) {
  begin();
  writer.addScalar("water_surface", 2, "r.h5", STATE, 3, 0);
  const support::Xml document = written();
  const std::string slab = STEP + "/Attribute/DataItem";
  EXPECT_THAT(document.texts(STEP + "/Attribute/@*"),
              ElementsAre("Scalar", "water_surface", "Cell"));
  EXPECT_THAT(document.texts(slab + "/@*"), ElementsAre("HyperSlab", "2 1"));
  EXPECT_THAT(document.texts(slab + "/DataItem[1]/@*"), ElementsAre("3 2", "XML", "Int"));
  EXPECT_THAT(document.texts(slab + "/DataItem[1]"), ElementsAre("0 0 1 1 2 1"));
  EXPECT_THAT(document.texts(slab + "/DataItem[2]/@*"),
              ElementsAre("Uniform", "2 3", "HDF", "Float"));
  EXPECT_THAT(document.texts(slab + "/DataItem[2]"), ElementsAre("r.h5:" + STATE));
}

TEST_F(XdmfWriterTest, VectorJoinsTwoColumns) {
  begin();
  writer.addVector("spec_discharge", 2, "r.h5", STATE, 3, {1, 2});
  const support::Xml document = written();
  const std::string function = STEP + "/Attribute/DataItem";
  EXPECT_THAT(document.texts(STEP + "/Attribute/@*"),
              ElementsAre("Vector", "spec_discharge", "Cell"));
  EXPECT_THAT(document.texts(function + "/@*"),
              ElementsAre("Function", "2 3", "JOIN($0, $1, 0*$1)"));
  EXPECT_THAT(document.texts(function + "/DataItem/@ItemType"),
              ElementsAre("HyperSlab", "HyperSlab"));
  EXPECT_THAT(document.texts(function + "/DataItem/DataItem[1]"),
              ElementsAre("0 1 1 1 2 1", "0 2 1 1 2 1"));
}

TEST_F(XdmfWriterTest, FunctionHasAnItemForEachColumn) {
  begin();
  writer.addFunctionScalar("water_depth", 2, "$0-$1", {"r.h5", "r.h5"}, {STATE, BED}, {3, 1},
                           {0, 0});
  const support::Xml document = written();
  const std::string function = STEP + "/Attribute/DataItem";
  EXPECT_THAT(document.texts(STEP + "/Attribute/@*"), ElementsAre("Scalar", "water_depth", "Cell"));
  EXPECT_THAT(document.texts(function + "/@*"), ElementsAre("Function", "2 1", "$0-$1"));
  EXPECT_THAT(document.texts(function + "/DataItem/DataItem[2]"),
              ElementsAre("r.h5:" + STATE, "r.h5:" + BED));
  EXPECT_THAT(document.texts(function + "/DataItem/DataItem[2]/@Dimensions"),
              ElementsAre("2 3", "2 1"));
}

TEST_F(XdmfWriterTest, VectorOfFunctionsKeepsThemApart) {
  begin();
  writer.addFunctionVector("v", 2, {"$0/$2", "$1/$2"}, {"a.h5", "a.h5", "a.h5"}, {"x", "x", "h"},
                           {2, 2, 1}, {0, 1, 0});
  const support::Xml document = written();
  EXPECT_THAT(document.texts(STEP + "/Attribute/@AttributeType"), ElementsAre("Vector"));
  EXPECT_THAT(document.texts(STEP + "/Attribute/DataItem/@*"),
              ElementsAre("Function", "2 3", "JOIN(($0/$2), ($1/$2), (0*$1))"));
  EXPECT_EQ(document.count(STEP + "/Attribute/DataItem/DataItem"), 3);
}

TEST_F(XdmfWriterTest, VectorOfFunctionsNeedsTwo) {
  begin();
  expectCheck(reportOf([&] { writer.addFunctionVector("v", 2, {"$0"}, {}, {}, {}, {}); }),
              "a vector needs two functions, not 1");
}

TEST_F(XdmfWriterTest, WholeDatasetsAreScalarsOrVectors) {
  begin();
  writer.addDataset("depth", 2, "m.h5", "depth", 1);
  writer.addDataset("velocity", 2, "m.h5", "velocity", 3);
  const support::Xml document = written();
  EXPECT_THAT(document.texts(STEP + "/Attribute/@AttributeType"), ElementsAre("Scalar", "Vector"));
  EXPECT_THAT(document.texts(STEP + "/Attribute/DataItem/@Dimensions"), ElementsAre("2 1", "2 3"));
  EXPECT_THAT(document.texts(STEP + "/Attribute/DataItem"),
              ElementsAre("m.h5:depth", "m.h5:velocity"));
}

TEST_F(XdmfWriterTest, IncludedValuesStandOutsideTheGridAndAreNamedInIt) {
  writer = XdmfWriter(name, XdmfForm::ForViewers);
  begin();
  writer.addTimeStep(1.0);
  for (const std::string attribute : {"a", "b"}) {
    writer.beginIncluded();
    writer.addDataset(attribute, 2, "m.h5", attribute, 1);
    writer.endIncluded();
  }
  const support::Xml document = written();
  EXPECT_EQ(document.count(STEP + "/Attribute"), 0);
  const std::vector<std::string> inclusions =
      document.texts(STEP + "[2]/*[local-name()='include']/@xpointer");
  ASSERT_EQ(inclusions.size(), 4U);
  EXPECT_EQ(inclusions[3], "xpointer(/Xdmf/Domain/Grid/Grid[2]/Information[2]/Attribute)");
  EXPECT_THAT(document.texts("/Xdmf/Domain/Grid/Grid[2]/Information[2]/Attribute/@Name"),
              ElementsAre("b"));
  EXPECT_THAT(document.texts(STEP + "[2]/Information/@Value"), ElementsAre("1", "2"));
}

TEST_F(XdmfWriterTest, InformationStandsBeforeTheMesh) {
  writer.addInformation("program", "v1 & <2>");
  addMesh();
  expectCheck(reportOf([&] { writer.addInformation("late", "x"); }),
              "information on <" + name + "> must stand before the mesh!");
  const support::Xml document = written();
  EXPECT_THAT(document.texts("/Xdmf/Domain/Information/@*"), ElementsAre("program", "v1 & <2>"));
}

TEST_F(XdmfWriterTest, DataNeedAStep) {
  const std::string text = "you must add a time step before adding data!";
  expectCheck(reportOf([&] { writer.addScalar("a", 2, "r.h5", STATE, 3, 0); }), text);
  addMesh();
  expectCheck(reportOf([&] { writer.addVector("a", 2, "r.h5", STATE, 3, {1, 2}); }), text);
  expectCheck(reportOf([&] { writer.addFunctionScalar("a", 2, "$0", {"f"}, {"d"}, {1}, {0}); }),
              text);
  expectCheck(reportOf([&] { writer.addDataset("a", 2, "r.h5", STATE, 3); }), text);
  expectCheck(reportOf([&] { writer.beginIncluded(); }), text);
}

TEST_F(XdmfWriterTest, StepsNeedAMesh) {
  expectCheck(reportOf([&] { writer.addTimeStep(0.0); }),
              "you must define a mesh before adding a time step!");
}

TEST_F(XdmfWriterTest, ListsOfAFunctionHaveOneLength) {
  begin();
  const std::vector<std::string> two = {"a", "b"};
  const std::vector<std::string> three = {"a", "b", "c"};
  const auto report = [&](const std::vector<std::string>& files,
                          const std::vector<std::string>& datasets, const std::vector<int>& sizes,
                          const std::vector<int>& columns) {
    return reportOf(
        [&] { writer.addFunctionScalar("f", 2, "$0", files, datasets, sizes, columns); });
  };
  expectCheck(report(three, two, {1}, {0}), "invalid dataset path descriptions provided");
  expectCheck(report(two, two, {1}, {0}), "invalid dataset size descriptions provided");
  expectCheck(report(two, two, {1, 1}, {0}), "invalid dataset column descriptions provided");
}

TEST_F(XdmfWriterTest, WrittenDocumentCannotGrow) {
  begin();
  writer.write(name);
  expectCheck(reportOf([&] { writer.addTimeStep(1.0); }),
              "<" + name + "> is written: no time step can be added!");
  expectCheck(reportOf([&] { writer.addScalar("a", 2, "r.h5", STATE, 3, 0); }),
              "<" + name + "> is written: no data can be added!");
}

}  // namespace
