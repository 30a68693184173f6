#include "export/results/Results.h"

#include <gmock/gmock.h>

#include <cmath>
#include <limits>

#include "dataio/failures.h"
#include "export/SampleResults.h"

namespace {

using exporter::Record;
using exporter::Results;
using failures::reportOf;
using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::StartsWith;

const std::string STATE = "CellsAll/HydState";
const std::string BED = "CellsAll/BottomEl";

class ResultsTest : public samples::SampleResults {
 protected:
  static std::vector<std::string> names(const Results& results) {
    std::vector<std::string> found;
    for (const api::IOutput* output : results.outputs()) found.push_back(output->getName());
    return found;
  }

  static std::vector<double> times(const Results& results) {
    std::vector<double> found;
    for (const Record& record : results.records()) found.push_back(record.time);
    return found;
  }

  std::string refusal() const {
    return reportOf([this] { const Results results(file); });
  }
};

TEST_F(ResultsTest, TellsWhatTheFileHolds) {
  use("full_model");
  const Results results(file);
  EXPECT_EQ(results.file(), file);
  EXPECT_THAT(times(results), ::testing::ElementsAre(0, 1, 2, 3, 4));
  EXPECT_EQ(results.invalidRecords(), 0);
  EXPECT_THAT(names(results),
              ::testing::ElementsAre("flood_tracking", "water_surface", "water_depth",
                                     "bottom_elevation", "friction_chezy", "spec_discharge",
                                     "delta_z", "flow_velocity", "ns_hyd_discharge",
                                     "ns_mor_discharge", "flow_curvature", "flow_radius"));
  EXPECT_THAT(results.strings(), ::testing::ElementsAre("west", "east", "middle"));
  EXPECT_EQ(results.outputsOn(model::SetID::NodeStrg).size(), 2U);
  EXPECT_EQ(results.outputsOn(model::SetID::CellsAll).size(), 10U);
  EXPECT_THAT(results.study(), StartsWith("{\"SETUP\":"));
  EXPECT_THAT(results.command(), StartsWith("{\"SIMULATION\":"));
}

TEST_F(ResultsTest, HoldsTheMesh) {
  use("full_model");
  const Results results(file);
  ASSERT_EQ(results.mesh().cells.size(), 364U);
  ASSERT_EQ(results.mesh().nodes.size(), 216U);
  const std::vector<double> x = stored("NodesAll/Coordnts", 3, 0);
  const std::vector<double> third = stored("CellsAll/Topology", 3, 2);
  EXPECT_EQ(results.mesh().nodes[100][0], x[100]);
  EXPECT_EQ(results.mesh().cells[300][2], third[300]);
}

TEST_F(ResultsTest, ValuesOfAPlainOutputAreThoseOfItsColumns) {
  use("full_model");
  const Results results(file);
  const std::vector<double> qx = stored("RESULTS/" + STATE + "/0000003", 3, 1);
  const std::vector<double> qy = stored("RESULTS/" + STATE + "/0000003", 3, 2);
  const std::vector<double> values =
      results.values(output(results, "spec_discharge"), results.records()[3]);
  ASSERT_EQ(values.size(), 2 * qx.size());
  for (std::size_t cell = 0; cell < qx.size(); ++cell) {
    ASSERT_EQ(values[2 * cell], qx[cell]);
    ASSERT_EQ(values[2 * cell + 1], qy[cell]);
  }
}

TEST_F(ResultsTest, ValuesFollowTheOperations) {
  use("full_model");
  const Results results(file);
  const std::string record = "RESULTS/" + STATE + "/0000002";
  const std::vector<double> surface = stored(record, 3, 0);
  const std::vector<double> qy = stored(record, 3, 2);
  const std::vector<double> bed = stored("RESULTS/" + BED + "/0000002", 1, 0);
  const std::vector<double> depth =
      results.values(output(results, "water_depth"), results.records()[2]);
  const std::vector<double> velocity =
      results.values(output(results, "flow_velocity"), results.records()[2]);
  int dry = 0;
  for (std::size_t cell = 0; cell < bed.size(); ++cell) {
    const double h = surface[cell] - bed[cell];
    ASSERT_EQ(depth[cell], h);
    ASSERT_EQ(velocity[2 * cell + 1], h <= results.minimalDepth() ? 0.0 : qy[cell] / h);
    dry += h <= results.minimalDepth() ? 1 : 0;
  }
  EXPECT_LT(dry, 364);
}

TEST_F(ResultsTest, ChangeOfTheBedIsAgainstTheFirstRecord) {
  use("mor_grass");
  const Results results(file);
  const std::vector<double> before = stored("RESULTS/" + BED + "/0000000", 1, 0);
  const std::vector<double> now = stored("RESULTS/" + BED + "/0000004", 1, 0);
  const std::vector<double> change =
      results.values(output(results, "delta_z"), results.records().back());
  double largest = 0.0;
  for (std::size_t cell = 0; cell < now.size(); ++cell) {
    ASSERT_EQ(change[cell], now[cell] - before[cell]);
    largest = std::max(largest, std::abs(change[cell]));
  }
  EXPECT_GT(largest, 1e-6);
}

TEST_F(ResultsTest, BedThatDoesNotMoveStandsAtTheRoot) {
  use("dam_dry");
  setOutputs(R"("bottom_elevation", "water_depth", "delta_z")");
  const Results results(file);
  EXPECT_TRUE(results.isConstant(output(results, "bottom_elevation")));
  EXPECT_TRUE(results.isConstant(output(results, "delta_z")));
  EXPECT_FALSE(results.isConstant(output(results, "water_depth")));
  EXPECT_EQ(results.values(output(results, "bottom_elevation"), results.records()[1]),
            stored(BED, 1, 0));
}

TEST_F(ResultsTest, MeshOfOneCellIsRead) {
  use("one_cell");
  const Results results(file);
  const double surface = stored("RESULTS/" + STATE + "/0000001", 3, 0)[0];
  const double bed = stored(BED, 1, 0)[0];
  EXPECT_THAT(results.values(output(results, "water_depth"), results.records()[1]),
              ::testing::ElementsAre(surface - bed));
}

TEST_F(ResultsTest, TrackedDataHoldAtAnyTime) {
  use("dam_dry");
  const Results results(file);
  const api::IOutput& flood = output(results, "flood_tracking");
  EXPECT_TRUE(results.isConstant(flood));
  EXPECT_TRUE(results.holds(flood, results.records().back()));
  EXPECT_EQ(results.values(flood, results.records().back()),
            support::readNumbers(file, "RESULTS/CellsAll/FloodVar/0000000"));
}

TEST_F(ResultsTest, RecordsThatAreNotValidAreLeftOut) {
  use("mor_grass");
  invalidate(STATE, 3);
  invalidate(BED, 3);
  const Results results(file);
  EXPECT_THAT(times(results), ::testing::ElementsAre(0, 1, 2));
  EXPECT_EQ(results.invalidRecords(), 2);
}

TEST_F(ResultsTest, RecordWithoutTheWholeStateIsLeftOut) {
  use("mor_grass");
  remove("RESULTS/" + BED + "/0000004");
  const Results results(file);
  EXPECT_THAT(times(results), ::testing::ElementsAre(0, 1, 2, 3));
  EXPECT_EQ(results.invalidRecords(), 1);
}

TEST_F(ResultsTest, DataOfAnotherTimeAreNotPartOfTheRecord) {
  use("mor_grass");
  {
    dataio::H5Writer writer(file, "rw");
    writer.attachAttributeDouble(dataio::ResultReader::getOutputPath(BED, 2), "t", 2.5);
  }
  EXPECT_THAT(times(Results(file)), ::testing::ElementsAre(0, 1, 3, 4));
}

TEST_F(ResultsTest, RecordsStandInTheOrderOfTime) {
  use("dam_dry");
  {
    dataio::H5Writer writer(file, "rw");
    writer.attachAttributeDouble(dataio::ResultReader::getOutputPath(STATE, 4), "t", 2.5);
  }
  const Results results(file);
  EXPECT_THAT(times(results), ::testing::ElementsAre(0, 1, 2, 2.5, 3));
  EXPECT_EQ(results.records()[3].position, 4);
}

TEST_F(ResultsTest, OutputCanBeginLaterThanTheState) {
  use("full_model");
  for (const std::string position : {"0000000", "0000001"}) {
    remove("RESULTS/CellsAll/FlowCurv/" + position);
  }
  const Results results(file);
  const api::IOutput& curvature = output(results, "flow_curvature");
  EXPECT_EQ(results.records().size(), 5U);
  EXPECT_FALSE(results.holds(curvature, results.records()[1]));
  EXPECT_TRUE(results.holds(curvature, results.records()[2]));
  EXPECT_EQ(results.values(curvature, results.records()[2]),
            stored("RESULTS/CellsAll/FlowCurv/0000002", 1, 0));
}

TEST_F(ResultsTest, OutputWithoutDataIsNotListed) {
  use("dam_dry");
  remove(BED);
  EXPECT_THAT(names(Results(file)), ::testing::ElementsAre("flood_tracking"));
}

TEST_F(ResultsTest, FileWithoutWishesShowsItsState) {
  use("one_cell");
  setOutputs("");
  EXPECT_THAT(names(Results(file)), ::testing::ElementsAre("water_surface", "spec_discharge"));
}

TEST_F(ResultsTest, OutputAskedForTwiceIsListedOnce) {
  use("one_cell");
  setOutputs(R"("water_depth", "water_depth")");
  EXPECT_THAT(names(Results(file)), ::testing::ElementsAre("water_depth"));
}

TEST_F(ResultsTest, SingleRecordIsEnough) {
  use("one_cell");
  invalidate(STATE, 1);
  EXPECT_THAT(times(Results(file)), ::testing::ElementsAre(0));
}

TEST_F(ResultsTest, TrackedDataAloneAreEnough) {
  use("dam_dry");
  remove("RESULTS/" + STATE);
  const Results results(file);
  EXPECT_TRUE(results.records().empty());
  EXPECT_THAT(names(results), ::testing::ElementsAre("flood_tracking"));
}

TEST_F(ResultsTest, FileWithoutValidRecordIsRefused) {
  use("one_cell");
  invalidate(STATE, 0);
  EXPECT_THAT(refusal(), EndsWith(" -> results file <" + file +
                                  "> holds no valid record: the run "
                                  "has ended before its first one was complete, or all have been "
                                  "marked as not valid\n"));
}

TEST_F(ResultsTest, FileWithoutResultsIsRefused) {
  use("one_cell");
  remove("RESULTS");
  EXPECT_THAT(refusal(), HasSubstr("holds no valid record"));
}

TEST_F(ResultsTest, MissingFileAndFolderAreRefused) {
  EXPECT_EQ(refusal(), " -> results file <" + file + ">: there is no such file\n");
  std::filesystem::create_directory(file);
  EXPECT_EQ(refusal(), " -> results file <" + file + "> is a folder\n");
}

TEST_F(ResultsTest, FileThatIsNoHdf5IsRefused) {
  support::writeFile(file, "t,h\n0,1\n");
  EXPECT_THAT(
      refusal(),
      StartsWith(" -> results file <" + file +
                 "> cannot be opened: it is damaged, not yours to read, or no HDF5 file: "));
}

TEST_F(ResultsTest, TruncatedFileIsRefused) {
  use("one_cell");
  std::filesystem::resize_file(file, std::filesystem::file_size(file) / 2);
  EXPECT_THAT(refusal(),
              HasSubstr("cannot be opened: it is damaged, not yours to read, or no HDF5 file: "));
}

TEST_F(ResultsTest, RunFileIsRefused) {
  use("one_cell");
  std::filesystem::rename(dir.file("run.h5"), file);
  EXPECT_EQ(refusal(), " -> results file <" + file +
                           "> holds no command file: is it a run file? Results of run.h5 stand in "
                           "run_results.h5\n");
}

TEST_F(ResultsTest, OtherHdf5FileIsRefused) {
  { const dataio::H5Writer empty(file); }
  EXPECT_EQ(refusal(),
            " -> results file <" + file + "> holds no study document: it is no results file\n");
}

TEST_F(ResultsTest, FileWithoutMeshIsRefused) {
  use("one_cell");
  remove("CellsAll/Topology");
  EXPECT_THAT(refusal(), HasSubstr("> cannot be read: it is damaged or incomplete: Unable to open "
                                   "the dataset \"CellsAll/Topology\""));
}

TEST_F(ResultsTest, CellWithANodeThatIsMissingIsRefused) {
  use("one_cell");
  support::overwrite(file, "CellsAll/Topology", 1, 3);
  EXPECT_THAT(refusal(), HasSubstr("damaged or incomplete: a cell names the node 3 of 3\n"));
}

TEST_F(ResultsTest, UnreadableStudyIsRefused) {
  use("one_cell");
  {
    dataio::H5Writer writer(file, "rw");
    writer.writeStringVec(".config/model", 1, {"{}"});
  }
  EXPECT_THAT(refusal(), EndsWith(" -> results file <" + file + "> cannot be read: see above\n"));
}

TEST_F(ResultsTest, KnowsTheDepthWhateverWasAskedFor) {
  use("full_model");
  setOutputs(R"("spec_discharge")");
  const Results results(file);
  const std::vector<double> depths = results.depths(results.records().at(3));
  const std::vector<double> surface = stored("RESULTS/CellsAll/HydState/0000003", 3, 0);
  const std::vector<double> bed = stored("RESULTS/CellsAll/BottomEl/0000003", 1, 0);
  ASSERT_EQ(depths.size(), 364U);
  for (std::size_t i = 0; i < depths.size(); ++i) ASSERT_EQ(depths[i], surface[i] - bed[i]);
}

TEST_F(ResultsTest, KnowsTheDepthOverABedThatDoesNotMove) {
  use("one_cell");
  const Results results(file);
  const Record& record = results.records().at(1);
  EXPECT_EQ(results.depths(record), results.values(output(results, "water_depth"), record));
}

TEST_F(ResultsTest, KnowsNoDepthWithoutABed) {
  use("bc_218_gate");
  const Results results(file);
  EXPECT_TRUE(results.depths(results.records().at(0)).empty());
}

TEST_F(ResultsTest, KnowsNoDepthWithoutARecord) {
  use("dam_dry");
  remove("RESULTS/CellsAll/HydState");
  const Results results(file);
  EXPECT_TRUE(results.depths(results.steps().at(0)).empty());
}

}  // namespace
