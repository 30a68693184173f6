#include "export/tables/gauge_series.h"

#include <gmock/gmock.h>

#include "dataio/failures.h"
#include "export/SampleResults.h"
#include "export/Table.h"

namespace {

using exporter::Gauge;
using exporter::Results;
using exporter::writeGaugeSeries;
using samples::readTable;
using ::testing::ElementsAre;

class GaugeSeries : public samples::SampleResults {
 protected:
  std::vector<std::vector<std::string>> table(const std::vector<Gauge>& gauges) const {
    writeGaugeSeries(Results(file), gauges, csv);
    return readTable(csv);
  }

  /// The middle of a cell.
  Gauge middleOf(std::size_t cell, const std::string& name) const {
    const Results results(file);
    Gauge gauge{name, 0.0, 0.0};
    for (const int node : results.mesh().cells.at(cell)) {
      gauge.x += results.mesh().nodes[static_cast<std::size_t>(node)][0] / 3.0;
      gauge.y += results.mesh().nodes[static_cast<std::size_t>(node)][1] / 3.0;
    }
    return gauge;
  }

  const std::string csv = dir.file("gauges.csv");
};

TEST_F(GaugeSeries, HasAColumnForEachValueAtEachGauge) {
  use("dam_dry");
  const auto rows = table({middleOf(7, "mill"), middleOf(300, "weir")});
  ASSERT_EQ(rows.size(), 6U);
  EXPECT_THAT(
      std::vector<std::string>(rows[0].begin(), rows[0].begin() + 9),
      ElementsAre("time [s]", "mill flood_arrival_time [s]", "mill flood_maximum_depth [m]",
                  "mill flood_maximum_velocity [m/s]", "mill flood_maximum_spec_discharge [m2/s]",
                  "mill water_depth [m]", "mill flow_velocity_x [m/s]",
                  "mill flow_velocity_y [m/s]", "weir flood_arrival_time [s]"));
  ASSERT_EQ(rows[0].size(), 15U);
  const double bed = stored("CellsAll/BottomEl", 1, 0)[300];
  for (std::size_t record = 0; record < 5; ++record) {
    const std::string path = "RESULTS/CellsAll/HydState/000000" + std::to_string(record);
    EXPECT_EQ(rows[record + 1][0], std::to_string(record));
    EXPECT_EQ(std::stod(rows[record + 1][12]), stored(path, 3, 0)[300] - bed);
  }
}

TEST_F(GaugeSeries, LeavesOutWhatIsNotInARecord) {
  use("full_model");
  setOutputs(R"("flow_curvature")");
  remove("RESULTS/CellsAll/FlowCurv/0000000");
  const auto rows = table({middleOf(0, "g")});
  EXPECT_EQ(rows.at(1).back(), "");
  EXPECT_EQ(std::stod(rows.at(2).back()), stored("RESULTS/CellsAll/FlowCurv/0000001", 1, 0)[0]);
}

TEST_F(GaugeSeries, HasOneRowOfTrackedDataAlone) {
  use("dam_dry");
  remove("RESULTS/CellsAll/HydState");
  EXPECT_EQ(table({middleOf(0, "g")}).size(), 2U);
}

TEST_F(GaugeSeries, NeedsGaugesWithinTheMesh) {
  use("dam_dry");
  EXPECT_THAT(failures::reportOf([this] {
                table({{"far", 1e6, 0.0}});
              }),
              ::testing::HasSubstr("gauge <far> at 1e+06, 0 lies outside the mesh, "));
  EXPECT_FALSE(std::filesystem::exists(csv));
}

}  // namespace
