#include "export/formats/xdmf.h"

#include <gmock/gmock.h>

#include "dataio/failures.h"
#include "export/SampleResults.h"
#include "export/formats/XdmfFile.h"
#include "support/FileSizeLimit.h"
#include "support/Xml.h"

namespace {

using exporter::nameFrom;
using exporter::Results;
using exporter::viewerExpression;
using exporter::writeXdmf;
using ::testing::ElementsAre;
using ::testing::StartsWith;

const std::string STEP = "/Xdmf/Domain/Grid/Grid";

class XdmfOfResults : public samples::SampleResults {
 protected:
  support::Xml written() const {
    writeXdmf(Results(file), document);
    return support::Xml(support::readFile(document));
  }

  static std::string attribute(int step, const std::string& name) {
    return STEP + "[" + std::to_string(step) + "]/Attribute[@Name='" + name + "']";
  }

  const std::string document = dir.file("run.xdmf");
};

TEST_F(XdmfOfResults, ShowsEachOutputOnCellsAtEachRecord) {
  use("full_model");
  const support::Xml xdmf = written();
  EXPECT_THAT(xdmf.texts(STEP + "/Time/@Value"),
              ElementsAre("0.000000", "1.000000", "2.000000", "3.000000", "4.000000"));
  EXPECT_THAT(xdmf.texts(STEP + "[3]/Attribute/@Name"),
              ElementsAre("flood_arrival_time", "flood_maximum_depth", "flood_maximum_velocity",
                          "flood_maximum_spec_discharge", "water_surface", "water_depth",
                          "bottom_elevation", "friction_chezy", "spec_discharge", "delta_z",
                          "flow_curvature"));
  EXPECT_THAT(xdmf.texts(STEP + "[3]/Information/Attribute/@Name"),
              ElementsAre("flow_velocity", "flow_radius"));
}

TEST_F(XdmfOfResults, NamesTheMeshAndTheOrigin) {
  use("full_model");
  const support::Xml xdmf = written();
  EXPECT_THAT(xdmf.texts("/Xdmf/Domain/Topology/DataItem"),
              ElementsAre("run_results.h5:CellsAll/Topology"));
  EXPECT_THAT(xdmf.texts("/Xdmf/Domain/Topology/@NumberOfElements"), ElementsAre("364"));
  EXPECT_THAT(xdmf.texts("/Xdmf/Domain/Geometry/DataItem/@Dimensions"), ElementsAre("216 3"));
  EXPECT_THAT(xdmf.texts("/Xdmf/Domain/Information/@Name"), ElementsAre("program", "history"));
  EXPECT_THAT(xdmf.texts("/Xdmf/Domain/Information[1]/@Value").at(0), StartsWith("RHEOMARK v"));
}

TEST_F(XdmfOfResults, PointsToTheStoredColumns) {
  use("full_model");
  const support::Xml xdmf = written();
  const std::string state = "run_results.h5:/RESULTS/CellsAll/HydState/0000001";
  const std::string bed = "run_results.h5:/RESULTS/CellsAll/BottomEl/0000001";
  EXPECT_THAT(xdmf.texts(attribute(2, "water_surface") + "/DataItem/DataItem"),
              ElementsAre("0 0 1 1 364 1", state));
  EXPECT_THAT(xdmf.texts(attribute(2, "spec_discharge") + "/DataItem/DataItem/DataItem"),
              ElementsAre("0 1 1 1 364 1", state, "0 2 1 1 364 1", state));
  EXPECT_THAT(xdmf.texts(attribute(2, "water_depth") + "/DataItem/@Function"),
              ElementsAre("$0-$1"));
  EXPECT_THAT(xdmf.texts(attribute(2, "water_depth") + "/DataItem/DataItem/DataItem"),
              ElementsAre("0 0 1 1 364 1", state, "0 0 1 1 364 1", bed));
  const std::string velocity = STEP + "[2]/Information/Attribute[@Name='flow_velocity']";
  EXPECT_THAT(xdmf.texts(velocity + "/@AttributeType"), ElementsAre("Vector"));
  EXPECT_THAT(xdmf.texts(velocity + "/DataItem/@Function"),
              ElementsAre("JOIN(($0/($2-$3)), ($1/($2-$3)), (0*$1))"));
  EXPECT_EQ(xdmf.count(velocity + "/DataItem/DataItem"), 4);
}

TEST_F(XdmfOfResults, IncludesTheMagnitudeOfTheVelocity) {
  use("dam_dry");
  setOutputs(R"("flow_velocity_abs")");
  EXPECT_THAT(written().texts(STEP + "[2]/Information/Attribute/DataItem/@Function"),
              ElementsAre("sqrt($0/($2-$3)*$0/($2-$3) + $1/($2-$3)*$1/($2-$3))"));
}

TEST_F(XdmfOfResults, ComparesTheBedWithTheFirstRecord) {
  use("mor_grass");
  invalidate("CellsAll/HydState", 4);
  EXPECT_THAT(written().texts(attribute(4, "delta_z") + "/DataItem/DataItem/DataItem[2]"),
              ElementsAre("run_results.h5:/RESULTS/CellsAll/BottomEl/0000000",
                          "run_results.h5:/RESULTS/CellsAll/BottomEl/0000003"));
}

TEST_F(XdmfOfResults, LeavesOutRecordsThatAreNotValid) {
  use("dam_dry");
  invalidate("CellsAll/HydState", 3);
  EXPECT_THAT(written().texts(STEP + "/Time/@Value"),
              ElementsAre("0.000000", "1.000000", "2.000000"));
}

TEST_F(XdmfOfResults, LeavesOutWhatIsNotInARecord) {
  use("full_model");
  remove("RESULTS/CellsAll/FlowCurv/0000000");
  const support::Xml xdmf = written();
  EXPECT_EQ(xdmf.count(attribute(1, "flow_curvature")), 0);
  EXPECT_EQ(xdmf.count(attribute(2, "flow_curvature")), 1);
}

TEST_F(XdmfOfResults, ShowsAFixedBedAtEachRecord) {
  use("dam_dry");
  setOutputs(R"("bottom_elevation")");
  EXPECT_THAT(written().texts(attribute(5, "bottom_elevation") + "/DataItem/DataItem[2]"),
              ElementsAre("run_results.h5:CellsAll/BottomEl"));
}

TEST_F(XdmfOfResults, ShowsTrackedDataAloneAtTimeZero) {
  use("dam_dry");
  remove("RESULTS/CellsAll/HydState");
  const support::Xml xdmf = written();
  EXPECT_THAT(xdmf.texts(STEP + "/Time/@Value"), ElementsAre("0.000000"));
  EXPECT_EQ(xdmf.count(STEP + "/Attribute"), 4);
}

TEST_F(XdmfOfResults, IsNotWrittenHalf) {
  use("full_model");
  const Results results(file);
  const support::FileSizeLimit limit(8192);
  EXPECT_THAT(failures::reportOf([&] { writeXdmf(results, document); }),
              ::testing::HasSubstr("cannot be written: is the disk full"));
  EXPECT_FALSE(std::filesystem::exists(document));
}

TEST(XdmfNames, AreRelativeToTheDocument) {
  EXPECT_EQ(nameFrom("run.xdmf", "run_results.h5"), "run_results.h5");
  EXPECT_EQ(nameFrom("/a/b/run.xdmf", "/a/b/run_results.h5"), "run_results.h5");
  EXPECT_EQ(nameFrom("view/run.xdmf", "run_results.h5"), "../run_results.h5");
  EXPECT_EQ(nameFrom("run.xdmf", "./data/../run_results.h5"), "run_results.h5");
}

TEST(XdmfNames, HoldNoColon) {
  EXPECT_EQ(failures::reportOf([] { nameFrom("run.xdmf", "a:b.h5"); }),
            " -> file <a:b.h5>: a name in XDMF must not hold a colon\n");
}

TEST(ViewerExpression, DiffersWhereTheViewerMisreads) {
  EXPECT_EQ(viewerExpression("$0-$1"), "$0-$1");
  EXPECT_EQ(viewerExpression("1.0/$0"), "$0/($0*$0)");
}

}  // namespace
