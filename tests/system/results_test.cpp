// The results file: what stands in it after a run, and what a re-run makes of it.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "system/Simulation.h"

namespace {

using support::linesWith;
using support::Outcome;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;

class Results : public support::Simulation {
 protected:
  std::vector<std::string> paths() const { return support::datasetPaths(resultFile); }

  /// The attribute "t" of the records of a datum.
  std::vector<double> recordTimes(const std::string& datum) const {
    std::vector<double> times;
    for (const std::string& path : paths()) {
      if (path.rfind("RESULTS/" + datum + "/", 0) == 0) {
        times.push_back(support::readTime(resultFile, path));
      }
    }
    return times;
  }
};

TEST_F(Results, OfAHydraulicModelHoldTheBedOnceAtTheRoot) {
  useSample("one_cell");
  ASSERT_EQ(simulate().status, 0);
  EXPECT_THAT(paths(),
              ElementsAre(".config/model", ".config/simulation", "CellsAll/BottomEl",
                          "CellsAll/Topology", "NodesAll/Coordnts", "Parameters/MinWaterDepth",
                          "RESULTS/CellsAll/HydState/0000000", "RESULTS/CellsAll/HydState/0000001",
                          "RESULTS/CellsAll/HydState/0000002", "RESULTS/CellsAll/HydState/0000003",
                          "RESULTS/CellsAll/HydState/0000004"));
  EXPECT_THAT(recordTimes("CellsAll/HydState"), ElementsAre(0.0, 0.25, 0.5, 0.75, 1.0));
}

TEST_F(Results, OfAMovingBedHoldItInEachRecordAndNotAtTheRoot) {
  useSample("mor_grass");
  setCommand(R"("start": 0, "end": 0.1, "out": 0.1)", R"("bottom_elevation")");
  ASSERT_EQ(simulate().status, 0);
  EXPECT_THAT(paths(), Not(Contains("CellsAll/BottomEl")));
  EXPECT_THAT(recordTimes("CellsAll/BottomEl"), ElementsAre(0.0, 0.1));
}

TEST_F(Results, OfTheWaterSurfaceNeedTheStateOnly) {
  useSample("one_cell");
  setCommand(R"("start": 0, "end": 0, "out": 0)", R"("water_surface")");
  ASSERT_EQ(simulate().status, 0);
  EXPECT_THAT(paths(), ElementsAre(".config/model", ".config/simulation", "CellsAll/Topology",
                                   "NodesAll/Coordnts", "Parameters/MinWaterDepth",
                                   "RESULTS/CellsAll/HydState/0000000"));
}

TEST_F(Results, WithoutOutputsHoldTheStateAllTheSame) {
  useSample("mor_grass");
  setCommand(R"("start": 0, "end": 0, "out": 0)");
  ASSERT_EQ(simulate().status, 0);
  EXPECT_THAT(recordTimes("CellsAll/HydState"), ElementsAre(0.0));
  EXPECT_THAT(recordTimes("CellsAll/BottomEl"), ElementsAre(0.0));
}

TEST_F(Results, HoldWhatSeveralOutputsShareOnce) {
  useSample("mor_grass");
  setCommand(R"("start": 0, "end": 0.1, "out": 0.1)", R"("flow_velocity", "water_depth")");
  const Outcome run = simulate();
  ASSERT_EQ(run.status, 0);
  EXPECT_THAT(
      linesWith("Writing '", run.out),
      ElementsAre("Writing '/RESULTS/CellsAll/HydState/0000000' to file 'results_results.h5'",
                  "Writing '/RESULTS/CellsAll/BottomEl/0000000' to file 'results_results.h5'",
                  "Writing '/RESULTS/CellsAll/HydState/0000001' to file 'results_results.h5'",
                  "Writing '/RESULTS/CellsAll/BottomEl/0000001' to file 'results_results.h5'"));
}

TEST_F(Results, OfAFixedBedOutputHaveNoRecords) {
  useSample("one_cell");
  setCommand(R"("start": 0, "end": 0, "out": 0)", R"("bottom_elevation")");
  ASSERT_EQ(simulate().status, 0);
  EXPECT_THAT(paths(), Contains("CellsAll/BottomEl"));
  EXPECT_THAT(paths(), Not(Contains(HasSubstr("RESULTS/CellsAll/BottomEl"))));
}

TEST_F(Results, TrackedDataStandAtRecordZeroWithTimeZeroWhateverTheLengthOfTheRun) {
  useSample("full_model");
  setCommand(R"("start": 0, "end": 0.2, "out": 0.1)");
  const Outcome run = simulate({"-l", "2"});
  ASSERT_EQ(run.status, 0) << run.err;
  EXPECT_THAT(recordTimes("CellsAll/FloodVar"), ElementsAre(0.0));
  EXPECT_EQ(linesWith(" -> writing output at t = ", run.out).size(), 3U);
  EXPECT_EQ(linesWith("Writing '/RESULTS/CellsAll/FloodVar/", run.out).size(), 1U);
  // Cells that are wet from the start have the first time after 0.
  const std::vector<double> flood =
      support::readNumbers(resultFile, "RESULTS/CellsAll/FloodVar/0000000");
  double arrival = 1e12;
  for (std::size_t i = 0; i < flood.size(); i += 4) {
    if (flood[i] > 0.0) arrival = std::min(arrival, flood[i]);
  }
  EXPECT_GT(arrival, 0.0);
  EXPECT_LT(arrival, 0.2);
}

TEST_F(Results, ARunWithoutTrackedDataWritesNothingAtItsEnd) {
  useSample("one_cell");
  const std::string out = simulate({"-l", "2"}).out;
  EXPECT_EQ(linesWith(" -> writing tracked output ...", out).size(), 1U);
  EXPECT_THAT(out.substr(out.find("writing tracked output")), Not(HasSubstr("Writing '")));
}

TEST_F(Results, HoldBothDocumentsOfTheRun) {
  useSample("one_cell");
  setCommand(R"("start": 0, "end": 0, "out": 0.5)");
  ASSERT_EQ(simulate().status, 0);
  EXPECT_EQ(support::readText(resultFile, ".config/model"),
            support::readText(runFile, ".config/model"));
  EXPECT_EQ(support::readText(resultFile, ".config/simulation"),
            R"({"SIMULATION":{"OUTPUT":[],"TIME":{"end":0,"out":0.5,"start":0}}})");
}

TEST_F(Results, OfAnEarlierRunAreErasedByAFreshOne) {
  useSample("one_cell");
  ASSERT_EQ(simulate().status, 0);
  setCommand(R"("start": 0, "end": 0, "out": 0)");
  ASSERT_EQ(simulate().status, 0);
  EXPECT_THAT(recordTimes("CellsAll/HydState"), ElementsAre(0.0));
}

TEST_F(Results, NamesOfNodestringsAreCopied) {
  useSample("bc_218_gate");
  setCommand(R"("start": 0, "end": 0, "out": 0)");
  ASSERT_EQ(simulate().status, 0);
  EXPECT_EQ(support::readText(resultFile, "NodeStrg/StrNames"), "gate");
}

TEST_F(Results, ASetupDatumThatIsMissingIsNotPassedOver) {
  useSample("one_cell");
  support::removeLink(runFile, "CellsAll/Topology");
  const Outcome run = simulate();
  EXPECT_EQ(run.status, 1);
  EXPECT_THAT(run.err, HasSubstr(" -> Unable to open the dataset \"CellsAll/Topology\":"));
}

// -- re-runs --------------------------------------------------------------------------------------

class ReRun : public Results {
 protected:
  ReRun() {
    useSample("rerun_continue");
    setCommand(R"("start": 0, "end": 1.5, "out": 0.5)");
    EXPECT_EQ(simulate().status, 0);
  }
};

TEST_F(ReRun, GoesOnFromTheRecordAtItsStart) {
  setCommand(R"("start": 1, "end": 1.25, "out": 0.25)");
  const Outcome run = simulate({"-l", "2"});
  ASSERT_EQ(run.status, 0) << run.err;
  EXPECT_THAT(run.out, HasSubstr(" -> opening the existing solution file <results_results.h5> to "
                                 "setup the RE-RUN simulation\n"
                                 " -> Re-run properly set at 1 [s]\n"));
  EXPECT_THAT(
      linesWith("Writing '/RESULTS/CellsAll/HydState", run.out),
      ElementsAre("Writing '/RESULTS/CellsAll/HydState/0000002' to file 'results_results.h5'",
                  "Writing '/RESULTS/CellsAll/HydState/0000003' to file 'results_results.h5'"));
  EXPECT_THAT(recordTimes("CellsAll/HydState"), ElementsAre(0.0, 0.5, 1.0, 1.25));
}

TEST_F(ReRun, WritesTheStateItStartsFromAgain) {
  const std::vector<double> before =
      support::readNumbers(resultFile, "RESULTS/CellsAll/HydState/0000001");
  setCommand(R"("start": 0.5, "end": 0.5, "out": 0)");
  ASSERT_EQ(simulate().status, 0);
  EXPECT_EQ(support::readNumbers(resultFile, "RESULTS/CellsAll/HydState/0000001"), before);
  // What stood behind it is no longer valid.
  EXPECT_THAT(recordTimes("CellsAll/HydState"), ElementsAre(0.0, 0.5, -1.0, -1.0));
}

TEST_F(ReRun, IsRefusedWhereMoreThanOneOldRecordIsLeft) {
  setCommand(R"("start": 0.5, "end": 0.5, "out": 0)");
  ASSERT_EQ(simulate().status, 0);  // 0, 0.5, -1, -1
  const Outcome run = simulate();
  EXPECT_EQ(run.status, 1);
  EXPECT_THAT(run.err, HasSubstr(" -> not all needed results are found for t=-1, in file: "));
}

TEST_F(ReRun, GoesOnWhereOneOldRecordIsLeft) {
  setCommand(R"("start": 1, "end": 1, "out": 0)");
  ASSERT_EQ(simulate().status, 0);  // 0, 0.5, 1, -1
  setCommand(R"("start": 1, "end": 2, "out": 0.5)");
  ASSERT_EQ(simulate().status, 0);
  EXPECT_THAT(recordTimes("CellsAll/HydState"), ElementsAre(0.0, 0.5, 1.0, 1.5, 2.0));
}

TEST_F(ReRun, IsAnnouncedAtEveryLevel) {
  setCommand(R"("start": 1.5, "end": 2, "out": 0.5)");
  const Outcome run = simulate();
  ASSERT_EQ(run.status, 0) << run.err;
  EXPECT_THAT(run.out, HasSubstr(" -> Re-run properly set at 1.5 [s]\n"));
  EXPECT_THAT(run.out, Not(HasSubstr("RE-RUN")));
}

TEST_F(ReRun, AtATimeWithoutRecordListsTheTimesThatThereAre) {
  const std::string before = support::readFile(resultFile);
  setCommand(R"("start": 0.75, "end": 2, "out": 0.5)");
  const Outcome run = simulate();
  EXPECT_EQ(run.status, 1);
  EXPECT_THAT(run.out,
              ::testing::EndsWith(" -> Restart time 0.75 [s] is not available. Please choose among "
                                  "available times:\n"
                                  " -> t[s]: 0\n -> t[s]: 0.5\n -> t[s]: 1\n -> t[s]: 1.5\n"));
  EXPECT_EQ(run.err,
            " -> impossible to setup proper Re-Run Initial Conditions\n"
            " -> ... unfortunately RHEOMARK is killed!\n");
  EXPECT_THAT(recordTimes("CellsAll/HydState"), ElementsAre(0.0, 0.5, 1.0, 1.5));
}

TEST_F(ReRun, WithOtherOutputsWritesTheseFromThereOn) {
  setCommand(R"("start": 1.5, "end": 2, "out": 0.5)", R"("water_depth", "flow_velocity")");
  ASSERT_EQ(simulate().status, 0);
  EXPECT_THAT(recordTimes("CellsAll/HydState"), ElementsAre(0.0, 0.5, 1.0, 1.5, 2.0));
  EXPECT_EQ(support::readText(resultFile, ".config/simulation"),
            R"({"SIMULATION":{"OUTPUT":["water_depth","flow_velocity"],)"
            R"("TIME":{"end":2,"out":0.5,"start":1.5}}})");
}

TEST_F(ReRun, RunsTheKernelsThatPrepareTheCellsAgain) {
  setCommand(R"("start": 1, "end": 1.25, "out": 0.25)");
  EXPECT_EQ(support::callsOf("InitCellHydFeatures", simulate().out), 1);
}

TEST_F(ReRun, StartsTrackingAnew) {
  const std::string flood = "RESULTS/CellsAll/FloodVar/0000000";
  setCommand(R"("start": 1, "end": 1.25, "out": 0.25)");
  ASSERT_EQ(simulate().status, 0);
  const std::vector<double> values = support::readNumbers(resultFile, flood);
  for (std::size_t i = 0; i < values.size(); i += 4) {
    EXPECT_TRUE(values[i] == 0.0 || values[i] >= 1.0) << i;
  }
  EXPECT_EQ(support::readTime(resultFile, flood), 0.0);
}

TEST_F(ReRun, WithoutResultsFailsInOpeningThem) {
  const Outcome run = program({"-f", "command2.json", "-r", "run.h5", "-o", "other.h5"});
  EXPECT_EQ(run.status, 1);
  EXPECT_THAT(run.err, HasSubstr(" -> Unable to open file other_results.h5 "));
}

class ReRunOfAMovingBed : public Results {
 protected:
  ReRunOfAMovingBed() {
    useSample("mor_grass");
    setCommand(R"("start": 0, "end": 0.2, "out": 0.1)");
    EXPECT_EQ(simulate().status, 0);
    setCommand(R"("start": 0.1, "end": 0.2, "out": 0.1)");
  }
};

TEST_F(ReRunOfAMovingBed, RestoresAllOfTheState) {
  const std::string bed = "RESULTS/CellsAll/BottomEl/0000001";
  support::overwrite(resultFile, bed, 7, -77.0);
  support::overwrite(runFile, "Parameters/SafeMode", 0, 0);
  ASSERT_EQ(simulate().status, 0);
  EXPECT_EQ(support::readNumbers(resultFile, bed).at(7), -77.0);
  EXPECT_THAT(recordTimes("CellsAll/BottomEl"), ElementsAre(0.0, 0.1, 0.2));
}

TEST_F(ReRunOfAMovingBed, IsRefusedWhereDataHaveDifferentTimes) {
  support::removeLink(resultFile, "RESULTS/CellsAll/BottomEl/0000002");
  const Outcome run = simulate();
  EXPECT_EQ(run.status, 1);
  EXPECT_THAT(run.err, HasSubstr(" -> not all needed results are found for t=0.2, in file: "
                                 "src/dataio/ResultReader on line "));
}

}  // namespace
