#include "export/report.h"

#include <gmock/gmock.h>

#include "export/SampleResults.h"

namespace {

using exporter::describe;
using exporter::printReport;
using exporter::Results;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;

class Report : public samples::SampleResults {
 protected:
  std::string text() const {
    const Results results(file);
    ::testing::internal::CaptureStdout();
    printReport(results);
    return ::testing::internal::GetCapturedStdout();
  }
};

TEST_F(Report, ListsOutputsAndRecords) {
  use("one_cell");
  EXPECT_EQ(text(), " -> results file <" + file +
                        ">: 1 cells, 3 nodes, 0 nodestrings, 5 records\n"
                        " -> output <water_surface> on cells: water_surface [m]\n"
                        " -> output <water_depth> on cells: water_depth [m]\n"
                        " -> record 0000000: t[s]: 0\n"
                        " -> record 0000001: t[s]: 0.25, a run can be continued from it\n"
                        " -> record 0000002: t[s]: 0.5, a run can be continued from it\n"
                        " -> record 0000003: t[s]: 0.75, a run can be continued from it\n"
                        " -> record 0000004: t[s]: 1, a run can be continued from it\n");
}

TEST_F(Report, TellsOfNodestringsAndOfWhatDoesNotVary) {
  use("full_model");
  EXPECT_THAT(text(),
              HasSubstr(" -> output <ns_hyd_discharge> on nodestrings: ns_hyd_discharge [m3/s]\n"));
  EXPECT_THAT(text(), HasSubstr(" -> output <flood_tracking> on cells: flood_arrival_time [s], "
                                "flood_maximum_depth [m], flood_maximum_velocity [m/s], "
                                "flood_maximum_spec_discharge [m2/s], the same at all times\n"));
}

TEST_F(Report, OneInvalidRecordDoesNotKeepARunFromContinuing) {
  use("one_cell");
  invalidate("CellsAll/HydState", 4);
  EXPECT_THAT(text(), HasSubstr(" -> 1 record is not valid and left out\n"));
  EXPECT_THAT(Results(file).restartTimes(), ElementsAre(0.25, 0.5, 0.75));
}

// The reader of the simulation then asks for more records of the time -1 than there are data.
TEST_F(Report, TwoInvalidRecordsDo) {
  use("one_cell");
  invalidate("CellsAll/HydState", 3);
  EXPECT_THAT(text(), HasSubstr(" -> 2 records are not valid and left out: the simulation cannot "
                                "continue from this file\n"));
  EXPECT_THAT(text(), Not(HasSubstr("a run can be continued")));
  EXPECT_THAT(Results(file).restartTimes(), IsEmpty());
}

TEST_F(Report, DescribesTheFileForPrograms) {
  use("interpolation_keys");
  const auto report = describe(Results(file));
  EXPECT_THAT(report.at("program").get<std::string>(), ::testing::StartsWith("RHEOMARK v"));
  EXPECT_EQ(report.at("file"), file);
  EXPECT_EQ(report.at("cells"), 200);
  EXPECT_EQ(report.at("nodes"), 126);
  EXPECT_EQ(report.at("strings"), nlohmann::json({"west", "east", "nothing", "south"}));
  EXPECT_EQ(report.at("outputs").at(1),
            nlohmann::ordered_json::parse(R"({"name": "ns_hyd_discharge", "on": "NodeStrg",
                                      "constant": false,
                                      "components": [{"name": "ns_hyd_discharge",
                                                      "unit": "m3/s"}]})"));
  EXPECT_EQ(report.at("records").at(2),
            nlohmann::ordered_json::parse(R"({"position": 2, "time": 4.0})"));
  EXPECT_EQ(report.at("invalid_records"), 0);
  EXPECT_EQ(report.at("restart_times"), nlohmann::json({2.0, 4.0, 6.0, 8.0}));
}

}  // namespace
