#include "export/tables/gauges.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "dataio/failures.h"
#include "export/SampleResults.h"
#include "export/Table.h"

namespace {

using exporter::cellAt;
using exporter::Gauge;
using exporter::Mesh;
using exporter::parseGauge;
using exporter::Results;
using exporter::writeGaugeSeries;
using failures::reportOf;
using samples::readTable;
using ::testing::ElementsAre;

/// Two triangles of a square of 2 m, the second one clockwise.
const Mesh SQUARE = {{{0, 1, 2}, {1, 2, 3}}, {{0, 0, 0}, {2, 0, 0}, {0, 2, 0}, {2, 2, 0}}};

TEST(GaugeText, HoldsAPointAndPerhapsAName) {
  const Gauge named = parseGauge("12.5,-3e1,old bridge, left", 1);
  EXPECT_EQ(named.x, 12.5);
  EXPECT_EQ(named.y, -30.0);
  EXPECT_EQ(named.name, "old bridge, left");
  EXPECT_EQ(parseGauge("1,2", 3).name, "gauge 3");
  EXPECT_EQ(parseGauge("1,2,", 4).name, "gauge 4");
}

TEST(GaugeText, IsRefusedIfItIsNoPoint) {
  for (const std::string text :
       {"", "1", "1,", "1;2", "a,b", "1,b", "1,2x", "nan,1", "1,inf", ",1", "1e999,1"}) {
    EXPECT_EQ(reportOf([&] { parseGauge(text, 1); }),
              " -> gauge <" + text + ">: give x,y or x,y,name, as in 12.5,3,bridge\n");
  }
}

TEST(CellAtGauge, ContainsThePointWhateverItsSense) {
  EXPECT_EQ(cellAt(SQUARE, {"g", 0.5, 0.5}), 0U);
  EXPECT_EQ(cellAt(SQUARE, {"g", 1.5, 1.9}), 1U);
}

TEST(CellAtGauge, IsTheFirstOneOnEdgesAndCorners) {
  EXPECT_EQ(cellAt(SQUARE, {"g", 1.0, 1.0}), 0U);
  EXPECT_EQ(cellAt(SQUARE, {"g", 2.0, 0.0}), 0U);
  EXPECT_EQ(cellAt(SQUARE, {"g", 2.0, 1.0}), 1U);
}

TEST(CellAtGauge, IsRefusedOutsideTheMesh) {
  EXPECT_EQ(reportOf([] {
              cellAt(SQUARE, {"mill", 2.5, 1.0});
            }),
            " -> gauge <mill> at 2.5, 1 lies outside the mesh, whose x runs from 0 to 2 and y from "
            "0 to 2 m\n");
}

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
