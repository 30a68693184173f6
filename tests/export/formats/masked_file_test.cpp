#include "export/formats/masked_file.h"

#include <gmock/gmock.h>

#include "dataio/Archive.h"
#include "dataio/H5Reader.h"
#include "dataio/failures.h"
#include "export/SampleResults.h"
#include "support/Xml.h"

namespace {

using exporter::Results;
using exporter::writeMasked;
using ::testing::ElementsAre;
using ::testing::HasSubstr;

class MaskedFile : public samples::SampleResults {
 protected:
  void write() const { writeMasked(Results(file), masked); }

  std::vector<double> values(const std::string& path) const {
    return support::readNumbers(masked, "OUTPUTS/" + path);
  }

  std::string entry(const std::string& name) const {
    dataio::H5Reader reader(masked);
    return dataio::Archive::getHash(&reader, ".config/" + name);
  }

  const std::string masked = dir.file("dry.h5");
  const std::string document = dir.file("dry.xdmf");
};

TEST_F(MaskedFile, ShowsNoFlowInDryCells) {
  use("dam_dry");
  support::overwrite(file, "RESULTS/CellsAll/HydState/0000002", 1, 7.0);
  write();
  const Results results(file);
  const std::vector<double> surface = stored("RESULTS/CellsAll/HydState/0000002", 3, 0);
  const std::vector<double> qx = stored("RESULTS/CellsAll/HydState/0000002", 3, 1);
  const std::vector<double> bed = stored("CellsAll/BottomEl", 1, 0);
  const std::vector<double> depth = values("water_depth/0000002");
  const std::vector<double> velocity = values("flow_velocity/0000002");
  ASSERT_EQ(velocity.size(), 3 * bed.size());
  int dry = 0;
  int wet = 0;
  for (std::size_t cell = 0; cell < bed.size(); ++cell) {
    const double h = surface[cell] - bed[cell];
    const bool isDry = h <= results.minimalDepth();
    ASSERT_EQ(depth[cell], isDry ? 0.0 : h);
    ASSERT_EQ(velocity[3 * cell], isDry ? 0.0 : qx[cell] / h);
    ASSERT_EQ(velocity[3 * cell + 2], 0.0);
    (isDry ? dry : wet) += 1;
  }
  EXPECT_GT(dry, 10);
  EXPECT_GT(wet, 10);
}

TEST_F(MaskedFile, HoldsWhatDoesNotVaryOnce) {
  use("dam_dry");
  setOutputs(R"("bottom_elevation", "water_surface")");
  write();
  const std::vector<std::string> paths = support::datasetPaths(masked);
  EXPECT_THAT(
      paths,
      ElementsAre(".config/history", ".config/model", ".config/program", ".config/simulation",
                  "CellsAll/Topology", "NodesAll/Coordnts", "OUTPUTS/bottom_elevation/0000000",
                  "OUTPUTS/flood_arrival_time/0000000", "OUTPUTS/flood_maximum_depth/0000000",
                  "OUTPUTS/flood_maximum_spec_discharge/0000000",
                  "OUTPUTS/flood_maximum_velocity/0000000", "OUTPUTS/water_surface/0000000",
                  "OUTPUTS/water_surface/0000001", "OUTPUTS/water_surface/0000002",
                  "OUTPUTS/water_surface/0000003", "OUTPUTS/water_surface/0000004",
                  "Parameters/MinWaterDepth"));
  EXPECT_EQ(support::readTime(masked, "OUTPUTS/water_surface/0000003"), 3.0);
  EXPECT_EQ(values("flood_maximum_depth/0000000"),
            stored("RESULTS/CellsAll/FloodVar/0000000", 4, 1));
}

TEST_F(MaskedFile, CarriesTheDocumentsAndItsOrigin) {
  use("dam_dry");
  write();
  const Results results(file);
  EXPECT_EQ(entry("model"), results.study());
  EXPECT_EQ(entry("simulation"), results.command());
  EXPECT_THAT(entry("program"), ::testing::StartsWith("RHEOMARK v"));
  EXPECT_THAT(entry("history"), HasSubstr(" of run_results.h5"));
}

TEST_F(MaskedFile, HasADocumentBesideIt) {
  use("dam_dry");
  write();
  const support::Xml xdmf(support::readFile(document));
  const std::string step = "/Xdmf/Domain/Grid/Grid[3]";
  EXPECT_EQ(xdmf.count("/Xdmf/Domain/Grid/Grid"), 5);
  EXPECT_THAT(xdmf.texts(step + "/Attribute[@Name='water_depth']/DataItem/DataItem[2]"),
              ElementsAre("dry.h5:/OUTPUTS/water_depth/0000002"));
  EXPECT_THAT(xdmf.texts(step + "/Attribute[@Name='flow_velocity']/DataItem/@Function"),
              ElementsAre("JOIN($0, $1, 0*$1)"));
  const std::string whole = step + "/Information/Attribute";
  EXPECT_THAT(xdmf.texts(whole + "[@Name='flow_velocity']/DataItem/@Dimensions"),
              ElementsAre("360 3"));
  EXPECT_THAT(xdmf.texts(whole + "[@Name='flood_arrival_time']/DataItem"),
              ElementsAre("dry.h5:/OUTPUTS/flood_arrival_time/0000000"));
}

TEST_F(MaskedFile, BeginsAnOutputAtTheRecordThatHoldsIt) {
  use("full_model");
  remove("RESULTS/CellsAll/FlowCurv/0000000");
  write();
  EXPECT_THROW(values("flow_curvature/0000000"), std::runtime_error);
  EXPECT_EQ(values("flow_curvature/0000001"), stored("RESULTS/CellsAll/FlowCurv/0000001", 1, 0));
}

TEST_F(MaskedFile, TakesTrackedDataAlone) {
  use("dam_dry");
  remove("RESULTS/CellsAll/HydState");
  write();
  EXPECT_EQ(values("flood_maximum_velocity/0000000").size(), 360U);
}

TEST_F(MaskedFile, NeedsTheExtension) {
  use("one_cell");
  const Results results(file);
  EXPECT_EQ(failures::reportOf([&] { writeMasked(results, "dry.hdf"); }),
            " -> file <dry.hdf>: the name of a file of masked values must end in .h5\n");
}

TEST_F(MaskedFile, NeverReplacesTheResults) {
  use("one_cell");
  const Results results(file);
  EXPECT_THAT(failures::reportOf([&] { writeMasked(results, file); }),
              HasSubstr("is the results file itself: give another name"));
}

}  // namespace
