// What comes first when a run has several faults, and how far it has come by then.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "system/Simulation.h"

namespace {

using support::ownLines;
using support::removeLink;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;
using ::testing::StartsWith;

class Order : public support::Simulation {
 protected:
  Order() { useSample("one_cell"); }

  support::Outcome fail(const std::vector<std::string>& options = {"-l", "1"}) {
    support::Outcome run = simulate(options);
    EXPECT_EQ(run.status, 1);
    run.err = ownLines(run.err);
    return run;
  }
};

TEST_F(Order, TheNameOfTheResultsComesBehindTheDataAndBeforeTheParameters) {
  removeLink(runFile, "EdgesAll/CharSize");
  removeLink(runFile, "Parameters/Gravity");
  const support::Outcome run =
      program({"-f", "command.json", "-r", "run.h5", "-o", "results", "-l", "1"});
  EXPECT_EQ(run.status, 1);
  EXPECT_THAT(ownLines(run.err), StartsWith(" -> no filename with '.h5' extension.\n"));
  EXPECT_THAT(run.out, HasSubstr(" -> data <EdgesAll/CharSize> not found in runfile\n"));
  EXPECT_THAT(run.out, Not(HasSubstr("init output")));
}

TEST_F(Order, TheOutputsComeBeforeTheParameters) {
  removeLink(runFile, "Parameters/Gravity");
  const support::Outcome run = fail();
  EXPECT_THAT(run.err, HasSubstr("Unable to open the dataset \"Parameters/Gravity\":"));
  EXPECT_THAT(support::linesWith("init output", run.out),
              ElementsAre(" -> init output <water_surface>", " -> init output <water_depth>"));
}

TEST_F(Order, TheParametersComeBeforeTheTimes) {
  setCommand(R"("start": 0, "end": 1, "out": 1)", "", R"("init": 0.02, "minimum": 1e-12)");
  removeLink(runFile, "kernels/ID");
  EXPECT_THAT(fail().err, StartsWith(" -> Minimum integration timestep must be larger than "));
  removeLink(runFile, "Parameters/Gravity");
  EXPECT_THAT(fail().err, HasSubstr("Unable to open the dataset \"Parameters/Gravity\":"));
}

TEST_F(Order, TheScheduleComesBeforeTheDataOfRecords) {
  removeLink(runFile, "kernels/ID");
  removeLink(runFile, "CellsAll/HydState");
  EXPECT_THAT(fail().err, HasSubstr("Unable to open the dataset \"kernels/ID\":"));
}

TEST_F(Order, AKernelOfAnotherModelComesBeforeItsData) {
  support::overwrite(runFile, "kernels/ID", 3, 24);
  const support::Outcome run = fail({"-l", "2"});
  EXPECT_THAT(run.err, StartsWith(" -> kernel <24> not found, in file: src/model/Model on line "));
  EXPECT_THAT(run.out, HasSubstr(" -> writing output at t = 0 ...\n"));
}

TEST_F(Order, ARunWithoutEarlierResultsLeavesWhatItHasWritten) {
  removeLink(runFile, "Parameters/Gravity");
  fail();
  EXPECT_THAT(support::datasetPaths(resultFile),
              ElementsAre("CellsAll/BottomEl", "CellsAll/Topology", "NodesAll/Coordnts"));
}

// Whatever the fault is that ends a run before its first record.
TEST_F(Order, EarlierResultsOutliveARunWithoutARecord) {
  ASSERT_EQ(simulate().status, 0);
  std::filesystem::copy_file(resultFile, dir.file("earlier.h5"));
  const std::string whole = support::readFile(runFile);
  for (const char* const path : {"CellsAll/Topology", "Parameters/Gravity", "kernels/ID",
                                 "CellsAll/HydState", "Parameters/MinWaterDepth"}) {
    removeLink(runFile, path);
    fail();
    EXPECT_THAT(support::differences(dir.file("earlier.h5"), resultFile), IsEmpty()) << path;
    support::writeFile(runFile, whole);
  }
}

}  // namespace
