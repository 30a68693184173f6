// What friction, boundaries and sources of a study do in a run.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>

#include "setup/study/boundary_types.h"
#include "support/H5Compare.h"
#include "support/Process.h"
#include "support/TempDir.h"

using ::testing::DoubleNear;

namespace {

/// A flume of 20 m by 4 m with 1 m of water; strings 4 m long across it.
class Flume : public ::testing::Test {
 protected:
  /// Sets the study up and runs it for 2 s.
  void run(const std::string& hydraulics, const std::string& water = R"("water_depth": 1)") {
    const std::string study = R"({"SETUP": {"DOMAIN": {"RHEOPLANE_2D": {"GEOMETRY": {
        "RECTANGLE": {"length": 20, "width": 4, "cells": [20, 4]},
        "REGIONDEF": [{"index": 1, "name": "flume"}],
        "STRINGDEF": [{"name": "west", "from": [0, 0], "to": [0, 4]},
                      {"name": "east", "from": [20, 4], "to": [20, 0]},
                      {"name": "middle", "from": [10, 4], "to": [10, 0], "reverse": true}]},
      "HYDRAULICS": {"FRICTION": {"type": "manning", "value": 0.02}, "INITIAL": {)" +
                              water + "}, " + hydraulics + "}}}}}";
    support::writeFile(dir.file("study.json"), study);
    const bool hasStates = hydraulics.find("BOUNDARY") != std::string::npos;
    support::writeFile(dir.file("command.json"),
                       R"({"SIMULATION": {"TIME": {"start": 0, "end": 2, "out": 2}, "OUTPUT": [)" +
                           std::string(hasStates ? R"("ns_hyd_discharge", )" : "") +
                           R"("water_depth"]}})");
    const auto setup = support::runIn(dir.path(), SETUP_EXE, {"-f", "study.json"});
    ASSERT_EQ(setup.status, 0) << setup.err;
    const auto simulation = support::runIn(
        dir.path(), SIMULATION_EXE, {"-f", "command.json", "-r", "run.h5", "-o", "results.h5"});
    ASSERT_EQ(simulation.status, 0) << simulation.err;
  }

  void runBoundary(const std::string& boundary) { run(R"("BOUNDARY": [)" + boundary + "]"); }

  std::vector<double> numbers(const std::string& path) const {
    return support::readNumbers(dir.file("results_results.h5"), path);
  }

  /// Discharge through a string in the last step [m3/s].
  double discharge(std::size_t string) const {
    return numbers("RESULTS/NodeStrg/StateVar/0000001").at(10 * string + 1);
  }

  /// Water in all cells per metre of depth of the cells, which all have 0.5 m2 [m3].
  double volume(const std::string& record) const {
    const std::vector<double> flow = numbers("RESULTS/CellsAll/HydState/" + record);
    double sum = 0.0;
    for (std::size_t cell = 0; cell < flow.size(); cell += 3) sum += 0.5 * flow[cell];
    return sum;
  }

  double gain() const { return volume("0000001") - volume("0000000"); }

  const support::TempDir dir;
};

constexpr std::size_t WEST = 0;
constexpr std::size_t EAST = 1;
constexpr std::size_t MIDDLE = 2;

}  // namespace

TEST_F(Flume, AnInflowBringsItsDischarge) {
  for (const char* boundary :
       {R"({"string": "west", "type": "inflow", "discharge": 2, "slope": 1e-3})",
        R"({"string": "west", "type": "inflow_froude", "discharge": 2})"}) {
    runBoundary(boundary);
    EXPECT_THAT(discharge(WEST), DoubleNear(2.0, 1e-12)) << boundary;
    EXPECT_THAT(gain(), DoubleNear(4.0, 1e-9)) << boundary;
  }
}

TEST_F(Flume, ASeriesIsFollowed) {
  support::writeFile(dir.file("q.txt"), "# t, q\r\n0, 0\r\n4, 8\r\n");
  runBoundary(R"({"string": "west", "type": "inflow", "discharge_file": "q.txt", "slope": 1e-3})");
  EXPECT_THAT(discharge(WEST), DoubleNear(4.0, 0.3));
  EXPECT_THAT(gain(), DoubleNear(4.0, 0.3));
}

TEST_F(Flume, AnOutflowTakesItsDischarge) {
  support::writeFile(dir.file("curve.txt"), "-10 1.5\n10 1.5\n");
  for (const char* boundary :
       {R"({"string": "east", "type": "outflow", "discharge": 1.5})",
        R"({"string": "east", "type": "rating_curve", "discharge_file": "curve.txt"})",
        R"({"string": "east", "type": "rating_curve", "discharge_file": "curve.txt",
            "over": "depth"})",
        R"({"string": "east", "type": "switched_outflow", "discharge_above": 1.5,
            "upper_level": 0.5})"}) {
    runBoundary(boundary);
    EXPECT_THAT(discharge(EAST), DoubleNear(1.5, 0.1)) << boundary;
    EXPECT_THAT(gain(), DoubleNear(-3.0, 0.1)) << boundary;
  }
}

TEST_F(Flume, AWeirTakesWhatPoleniSays) {
  runBoundary(R"({"string": "east", "type": "weir", "crest": 0.8, "rise": 0})");
  const double level = numbers("RESULTS/NodeStrg/StateVar/0000001").at(10 * EAST);
  const double head = level - 0.8;
  EXPECT_THAT(
      discharge(EAST),
      DoubleNear(2.0 / 3.0 * 0.611 * std::sqrt(2.0 * 9.81) * 4.0 * std::pow(head, 1.5), 1e-3));
}

TEST_F(Flume, ASwitchThatIsBelowItsLevelTakesTheLesserDischarge) {
  runBoundary(R"({"string": "east", "type": "switched_outflow", "discharge_below": 0.5,
                  "discharge_above": 3, "upper_level": 1.5})");
  EXPECT_THAT(discharge(EAST), DoubleNear(0.5, 0.05));
}

TEST_F(Flume, ALevelDrawsWaterInOrOut) {
  runBoundary(R"({"string": "east", "type": "level", "level": 1.2})");
  EXPECT_LT(discharge(EAST), -0.5);
  EXPECT_GT(gain(), 1.0);
  runBoundary(R"({"string": "east", "type": "level", "level": 1.2, "inflow": false})");
  EXPECT_THAT(gain(), DoubleNear(0.0, 1e-12));
}

TEST_F(Flume, OpenOutflowsLetWaterOut) {
  for (const char* type : {R"("free_outflow")", R"("normal_depth", "slope": 0.001)"}) {
    run(R"("BOUNDARY": [{"string": "east", "type": )" + std::string(type) + "}]",
        R"("water_depth": 1, "velocity": [1, 0])");
    EXPECT_THAT(discharge(EAST), DoubleNear(4.0, 1.5)) << type;
    EXPECT_THAT(gain(), DoubleNear(-8.0, 3.0)) << type;
  }
}

TEST_F(Flume, InnerBoundariesPassTheirDischargeFromTheirLeftToTheirRight) {
  support::writeFile(dir.file("curve.txt"), "-10 1.5\n10 1.5\n");
  for (const char* boundary :
       {R"({"string": "middle", "type": "inner_discharge", "discharge": 1.5})",
        R"({"string": "middle", "type": "inner_rating_curve", "discharge_file": "curve.txt"})"}) {
    runBoundary(boundary);
    EXPECT_THAT(discharge(MIDDLE), DoubleNear(1.5, 0.1)) << boundary;
    EXPECT_THAT(gain(), DoubleNear(0.0, 1e-12)) << boundary;
  }
}

/// 1 m of water in the west, 0.5 m in the east.
const std::string STEP = R"("water_level": 0.5, "ZONES": [{"box": [0, 0, 10, 4],
                                                           "water_level": 1}])";

TEST_F(Flume, GatesAreOpenOrShut) {
  support::writeFile(dir.file("shut.txt"), "0 -1\n");
  support::writeFile(dir.file("open.txt"), "0 1\n");
  const auto gate = [this](const std::string& keys) {
    run(R"("BOUNDARY": [{"string": "middle", )" + keys + "}]", STEP);
    return discharge(MIDDLE);
  };
  EXPECT_EQ(gate(R"("type": "inner_wall")"), 0.0);
  EXPECT_EQ(gate(R"("type": "gate_by_time", "opens_at": 3)"), 0.0);
  EXPECT_GT(gate(R"("type": "gate_by_time", "opens_at": 1)"), 1.0);
  EXPECT_EQ(gate(R"("type": "gate_by_series", "opening_file": "shut.txt")"), 0.0);
  EXPECT_GT(gate(R"("type": "gate_by_series", "opening_file": "open.txt")"), 1.0);
  EXPECT_EQ(gate(R"("type": "gate_by_level", "upper_level": 1.1)"), 0.0);
  EXPECT_GT(gate(R"("type": "gate_by_level", "upper_level": 0.9, "lower_level": 0.2)"), 1.0);
  EXPECT_GT(gate(R"("type": "gate_by_level", "upper_level": 1.1, "opening_below": 1,
                    "opening_above": -1)"),
            1.0);
}

TEST_F(Flume, AnInnerWeirStopsWaterBelowItsCrest) {
  run(R"("BOUNDARY": [{"string": "middle", "type": "inner_weir", "crest": 1.01}])", STEP);
  EXPECT_EQ(discharge(MIDDLE), 0.0);
  run(R"("BOUNDARY": [{"string": "middle", "type": "inner_weir", "crest": 0.8}])", STEP);
  EXPECT_GT(discharge(MIDDLE), 0.1);
  EXPECT_THAT(gain(), DoubleNear(0.0, 1e-12));
}

TEST_F(Flume, LinksBringInWhatTheyTakeOut) {
  support::writeFile(dir.file("curve.txt"), "-10 1.5\n10 1.5\n");
  for (const char* keys :
       {R"("linked_weir", "crest": 0.7)", R"("linked_rating_curve", "discharge_file": "curve.txt")",
        R"("linked_discharge", "discharge": 1.5)",
        R"("linked_switch", "discharge_above": 1.5, "upper_level": 0.5)"}) {
    runBoundary(R"({"string": "east", "to": "west", "type": )" + std::string(keys) + "}");
    EXPECT_GT(discharge(EAST), 0.5) << keys;
    EXPECT_THAT(gain(), DoubleNear(0.0, 0.1)) << keys;
  }
}

TEST_F(Flume, ALinkedLevelPassesOnWhatLeaves) {
  run(R"("BOUNDARY": [{"string": "east", "to": "west", "type": "linked_level", "level": 0.5}])",
      R"("water_depth": 1, "velocity": [0.5, 0])");
  EXPECT_GT(discharge(EAST), 2.0);
  EXPECT_THAT(discharge(WEST), DoubleNear(discharge(EAST), 0.3));
}

TEST_F(Flume, RainAndSinksChangeTheVolumeAtTheirRate) {
  run(R"("SOURCE": [{"region": "flume", "type": "rain", "intensity": 36000}])");
  EXPECT_THAT(gain(), DoubleNear(80.0 * 0.01 * 2.0, 0.02));
  run(R"("SOURCE": [{"region": "flume", "type": "discharge", "discharge": -2}])");
  EXPECT_THAT(gain(), DoubleNear(-4.0, 0.1));
  run(R"("SOURCE": [{"region": "flume", "type": "discharge", "discharge": -1e-3,
                     "sink": "infinity"}])");
  EXPECT_EQ(volume("0000001"), 0.0);
}
