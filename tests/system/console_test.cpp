// What a run tells on the console, level by level, and what it does to the results that this
// depends on: whole outputs where they are the same on every machine.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "system/Simulation.h"

namespace {

using support::callsOf;
using support::FOOTER;
using support::HEADER;
using support::linesWith;
using support::masked;
using support::Outcome;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;

class Console : public support::Simulation {};

const char* const TIMING =
    "\n"
    "  count   plan time     MPI time(std)        time(std)           GB/s      GB/s   kernel name "
    "\n"
    " -------------------------------------------------------------------------------------------\n"
    "      1; #;   InitCellHydFeatures \n"
    "      8; #;   TimeStepCalculation \n"
    "      8; #;   HydWallBFluxes \n"
    "      8; #;   Update \n";

TEST_F(Console, AtLevelZeroShowsRecordsAndTimingOnly) {
  useSample("one_cell");
  const Outcome run = simulate();
  EXPECT_EQ(run.status, 0);
  EXPECT_EQ(run.err, "");
  EXPECT_EQ(masked(run.out), std::string(HEADER) +
                                 R"( -> composing the model from archive
 -> found aggregate <hydraulics_aggr>

 Initializing SKEILID
Writing '/RESULTS/CellsAll/HydState/0000000' to file 'results_results.h5'
Writing '/RESULTS/CellsAll/HydState/0000001' to file 'results_results.h5'
Writing '/RESULTS/CellsAll/HydState/0000002' to file 'results_results.h5'
Writing '/RESULTS/CellsAll/HydState/0000003' to file 'results_results.h5'
Writing '/RESULTS/CellsAll/HydState/0000004' to file 'results_results.h5'
 -> simulation finished! (cpu-time = #s)
)" + TIMING + FOOTER);
}

TEST_F(Console, WithAllOptionsShowsHowARunGoes) {
  useSample("one_cell");
  setCommand(R"("start": 0, "end": 0.25, "out": 0.25)", R"("water_surface", "water_depth")");
  const Outcome run = simulate({"-l", "5", "-p", "-d"});
  EXPECT_EQ(run.status, 0);
  EXPECT_EQ(run.err, "");
  EXPECT_EQ(masked(run.out), std::string(HEADER) +
                                 R"( -> composing the model from archive
 -> found aggregate <hydraulics_aggr>
 -> DEBUG MODE ACTIVATED

 Initializing SKEILID
 -> ENUMERATOR DATA FOR SET <NodesAll/set> CREATED
 -> ENUMERATOR DATA FOR SET <CellsAll/set> CREATED
 -> ENUMERATOR DATA FOR SET <EdgesAll/set> CREATED
 -> ENUMERATOR DATA FOR SET <EdgHydWL/set> CREATED
 -> ENUMERATOR DATA FOR SET <EdgesSWE/set> CREATED
 -> ENUMERATOR DATA FOR SET <NodeStrg/set> CREATED
 -> de-activating the kernel <HydInternalFluxes>
 -> loading map <CellsAll/EdgesAll> ...
 -> loading map <EdgesAll/CellsAll> ...
 -> loading map <EdgHydWL/EdgesAll> ...
 -> loading map <EdgHydWL/CellsAll> ...
 -> loading map <EdgesSWE/EdgesAll> ...
 -> loading map <EdgesSWE/CellsAll> ...
 -> assign (empty) optional data <5> ...
 -> loading data <EdgesAll/NormVect> ...
 -> loading data <EdgesAll/GeomLeng> ...
 -> loading data <EdgesAll/CharSize> ...
 -> loading data <CellsAll/HydState> ...
 -> loading data <CellsAll/BottomEl> ...
 -> loading data <CellsAll/GeomArea> ...
 -> loading data <CellsAll/EdgeSign> ...
 -> creating a new file container to store the simulation results: results_results.h5
 -> reading data <NodesAll/Coordnts> from runfile and writing to result file.
 -> reading data <CellsAll/BottomEl> from runfile and writing to result file.
 -> reading data <CellsAll/Topology> from runfile and writing to result file.
 -> data <NodeStrg/StrNames> not found in runfile...
 -> init output <water_surface>
 -> init output <water_depth>

  OP diagnostic output
  --------------------

       set       size
  -------------------
NodesAll/set          3
CellsAll/set          1
EdgesAll/set          3
EdgHydWL/set          3
EdgesSWE/set          0
NodeStrg/set          0

       map        dim       from         to
  -----------------------------------------
CellsAll/EdgesAll          3 CellsAll/set EdgesAll/set
EdgesAll/CellsAll          2 EdgesAll/set CellsAll/set
EdgHydWL/EdgesAll          1 EdgHydWL/set EdgesAll/set
EdgHydWL/CellsAll          1 EdgHydWL/set CellsAll/set
EdgesSWE/EdgesAll          1 EdgesSWE/set EdgesAll/set
EdgesSWE/CellsAll          2 EdgesSWE/set CellsAll/set

       dat        dim        set
  ------------------------------
NodesAll/set          1 NodesAll/set
CellsAll/set          1 CellsAll/set
EdgesAll/set          1 EdgesAll/set
EdgHydWL/set          1 EdgHydWL/set
EdgesSWE/set          1 EdgesSWE/set
NodeStrg/set          1 NodeStrg/set
EdgesAll/NormVect          2 EdgesAll/set
EdgesAll/GeomLeng          1 EdgesAll/set
EdgesAll/CharSize          2 EdgesAll/set
EdgesAll/FluxesHy          5 EdgesAll/set
CellsAll/HydState          3 CellsAll/set
CellsAll/BottomEl          1 CellsAll/set
CellsAll/IsWetted          1 CellsAll/set
CellsAll/GeomArea          1 CellsAll/set
CellsAll/EdgeSign          3 CellsAll/set

 -> writing output at t = 0 ...
Writing '/RESULTS/CellsAll/HydState/0000000' to file 'results_results.h5'
File results_results.h5 exists .... checking for dataset and path /RESULTS/CellsAll/HydState/0000000 in file
op_dat CellsAll/HydState does not exists in the file ... creating data set
 -> Progress: 0/100, dt = 0.02 [s], RTS = #
 kernel routine w/o indirection:  kernel_HYDRAULICS_InitializeCellFeatures kernel routine with indirection: kernel_HYDRAULICS_TimeStep
 kernel routine with indirection: kernel_HYDRAULICS_WallFluxes
 kernel routine with indirection: kernel_GLOBAL_Update
 -> time: 0.173792
 -> Progress: 69/100, dt = 0.173792 [s], RTS = #
 kernel routine with indirection: kernel_HYDRAULICS_TimeStep
 kernel routine with indirection: kernel_HYDRAULICS_WallFluxes
 kernel routine with indirection: kernel_GLOBAL_Update
 -> time: 0.25
 -> Progress: 100/100, dt = 0.0762085 [s], RTS = #
 -> writing output at t = 0.25 ...
Writing '/RESULTS/CellsAll/HydState/0000001' to file 'results_results.h5'
File results_results.h5 exists .... checking for dataset and path /RESULTS/CellsAll/HydState/0000001 in file
op_dat CellsAll/HydState does not exists in the file ... creating data set
 -> writing tracked output ...
 -> simulation finished! (cpu-time = #s)

  count   plan time     MPI time(std)        time(std)           GB/s      GB/s   kernel name 
 -------------------------------------------------------------------------------------------
      1; #;   InitCellHydFeatures 
      2; #;   TimeStepCalculation 
      2; #;   HydWallBFluxes 
      2; #;   Update 
)" + FOOTER);
}

// -- levels ---------------------------------------------------------------------------------------

struct Threshold {
  const char* part;  ///< of the line
  int above;         ///< the level above which it shows
};

void PrintTo(const Threshold& threshold, std::ostream* stream) {
  *stream << threshold.part << " above " << threshold.above;
}

// The run file lacks a map and a datum of kernels that have no elements, and so runs.
class Levels : public Console, public ::testing::WithParamInterface<Threshold> {
 protected:
  Levels() {
    useSample("bc_218_gate");
    setCommand(R"("start": 0, "end": 0.01, "out": 0.01)", "", R"("init": 0.02, "minimum": 1)");
    support::removeLink(runFile, "EdInterp/EdgeData");
    support::removeLink(runFile, "EdInterp/KeyPostn");
  }
};

TEST_P(Levels, ALineShowsAboveItsThresholdOnly) {
  for (int level = 0; level <= 6; ++level) {
    const Outcome run = simulate({"--log", std::to_string(level)});
    ASSERT_EQ(run.status, 0) << run.err;
    EXPECT_EQ(!linesWith(GetParam().part, run.out).empty(), level > GetParam().above) << level;
  }
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Lines, Levels, ::testing::Values(
    Threshold{" -> de-activating the kernel <EdgeDataInterpolation>",                          0},
    Threshold{" -> map <EdInterp/EdgeData> not found in runfile",                              0},
    Threshold{" -> data <EdInterp/KeyPostn> not found in runfile",                             0},
    Threshold{" -> time step smaller than allowed minimal 1. check for stability...",          0},
    Threshold{" -> creating a new file container to store the simulation results: results_results.h5", 1},
    Threshold{" -> reading data <NodeStrg/StrNames> from runfile and writing to result file.", 1},
    Threshold{" -> writing output at t = 0.01 ...",                                            1},
    Threshold{" -> writing tracked output ...",                                                1},
    Threshold{" -> loading map <CellsAll/EdgesAll> ...",                                       2},
    Threshold{" -> loading data <CellsAll/HydState> ...",                                      2},
    Threshold{" -> time: 0.01",                                                                2},
    Threshold{" -> assign (empty) optional data <17> ...",                                     4}));
// clang-format on

TEST_F(Console, OutputsAreAnnouncedAboveLevelZero) {
  useSample("one_cell");
  EXPECT_THAT(linesWith("init output", simulate({"-l", "0"}).out), IsEmpty());
  EXPECT_THAT(linesWith("init output", simulate({"-l", "1"}).out),
              ElementsAre(" -> init output <water_surface>", " -> init output <water_depth>"));
}

// -- debug mode -----------------------------------------------------------------------------------

class DebugMode : public Console, public ::testing::WithParamInterface<std::string> {};

TEST_P(DebugMode, DoesNotChangeResults) {
  useSample(GetParam());
  const Outcome run = simulate({"--debug"});
  ASSERT_EQ(run.status, 0) << run.err;
  EXPECT_THAT(support::differences(dir.file("expected_results.h5"), resultFile), IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(Samples, DebugMode, ::testing::Values("one_cell", "fixbed_many"));

TEST_F(Console, EnumeratorsAreDeclaredInDebugModeOnlyAndBeforeTheMaps) {
  useSample("one_cell");
  EXPECT_THAT(simulate({"-l", "3"}).out, Not(HasSubstr("ENUMERATOR")));
  const std::string out = simulate({"-l", "3", "-d"}).out;
  EXPECT_EQ(linesWith(" -> ENUMERATOR DATA FOR SET <", out).size(), 6U);
  EXPECT_LT(out.rfind("ENUMERATOR"), out.find("loading map"));
}

TEST_F(Console, DebugModeNamesCellsThatCutIntoTheirFixedBed) {
  useSample("fixbed_many");
  EXPECT_THAT(linesWith("overdraft", simulate().out), IsEmpty());
  const std::vector<std::string> lines = linesWith("overdraft", simulate({"-d"}).out);
  ASSERT_FALSE(lines.empty());
  EXPECT_THAT(lines.front(),
              ::testing::MatchesRegex("overdraft in cell [0-9]+ by dz = [0-9.]+ \\[m\\]"));
}

// -- mass balance ---------------------------------------------------------------------------------

class MassBalance : public Console {
 protected:
  /// Puts the surface of a cell five metres below its bed.
  void drain(std::size_t cell) {
    const double bed = support::readNumbers(runFile, "CellsAll/BottomEl").at(cell);
    support::overwrite(runFile, "CellsAll/HydState", 3 * cell, bed - 5.0);
  }
};

const char* const NOT_CONSERVED =
    " -> ERROR in kernel_GLOBAL_Update... MASS not conserved\n"
    " -> ... unfortunately RHEOMARK is killed!\n";

TEST_F(MassBalance, ANegativeDepthInTheLastCellEndsTheRunInSafeMode) {
  useSample("one_cell");
  drain(0);
  const Outcome run = simulate();
  EXPECT_EQ(run.status, 1);
  EXPECT_THAT(run.out, HasSubstr("MASS BALANCE PROBLEM: h = -5 < 0.0\n"));
  EXPECT_THAT(run.out, Not(HasSubstr("... in cell")));
  EXPECT_EQ(run.err, NOT_CONSERVED);
  EXPECT_THAT(support::datasetPaths(resultFile),
              ::testing::Contains("RESULTS/CellsAll/HydState/0000000"));
}

TEST_F(MassBalance, DebugModeNamesTheCell) {
  useSample("one_cell");
  drain(0);
  const Outcome run = simulate({"--debug"});
  EXPECT_EQ(run.status, 1);
  EXPECT_THAT(run.out, HasSubstr("MASS BALANCE PROBLEM: h = -5 < 0.0\n... in cell 0\n"));
}

TEST_F(MassBalance, WithoutSafeModeTheRunGoesOn) {
  useSample("one_cell");
  drain(0);
  support::overwrite(runFile, "Parameters/SafeMode", 0, 0);
  const Outcome run = simulate();
  EXPECT_EQ(run.status, 0) << run.err;
  EXPECT_EQ(linesWith("MASS BALANCE PROBLEM", run.out).size(),
            static_cast<std::size_t>(callsOf("Update", run.out)));
}

TEST_F(MassBalance, ANegativeDepthInAnotherCellDoesNotEndTheRun) {
  useSample("time_out_tenth");
  setCommand(R"("start": 0, "end": 0.01, "out": 0.01)");
  drain(0);
  const Outcome run = simulate();
  EXPECT_EQ(run.status, 0) << run.err;
  EXPECT_THAT(run.out, HasSubstr("MASS BALANCE PROBLEM: h = -"));
}

TEST_F(MassBalance, ANegativeDepthAtTheLastSourceEndsTheRunInSafeMode) {
  useSample("sink_types");
  support::overwrite(runFile, "Parameters/SafeMode", 0, 1);
  const std::size_t last = support::readNumbers(runFile, "ClHydSrc/SinkType").size() - 1;
  support::overwrite(runFile, "ClHydSrc/SinkType", last, 10);
  const auto data =
      static_cast<std::size_t>(support::readNumbers(runFile, "ClHydSrc/CellData").at(last));
  support::overwrite(runFile, "CellData/NumValue", 2 * data + 1, -1e6);
  const Outcome run = simulate();
  EXPECT_EQ(run.status, 1);
  EXPECT_EQ(run.err,
            " -> ERROR in kernel_HYDRAULICS_Source... LIQUID MASS not conserved\n"
            " -> ... unfortunately RHEOMARK is killed!\n");
}

// -- the time step --------------------------------------------------------------------------------

class FirstSteps : public Console {
 protected:
  FirstSteps() {
    useSample("one_cell");
    setCommand(R"("start": 0, "end": 120, "out": 0)");
  }

  void makeDry() {
    support::overwrite(runFile, "CellsAll/HydState", 0,
                       support::readNumbers(runFile, "CellsAll/BottomEl").at(0));
  }
  std::vector<std::string> times() { return linesWith(" -> time: ", simulate({"-l", "3"}).out); }
};

TEST_F(FirstSteps, OfADryDomainAreTheInitialStepAndThenTheLongest) {
  makeDry();  // 0.5 of 100 s
  EXPECT_THAT(times(), ElementsAre(" -> time: 0.02", " -> time: 50.02", " -> time: 100.02",
                                   " -> time: 120"));
}

TEST_F(FirstSteps, OfADryDomainTakeTheInitialStepOfTheCommandFile) {
  makeDry();
  setCommand(R"("start": 0, "end": 60, "out": 0)", "", R"("init": 0.5, "minimum": 0.0001)");
  EXPECT_THAT(times(), ElementsAre(" -> time: 0.5", " -> time: 50.5", " -> time: 60"));
}

TEST_F(FirstSteps, ThatTheLongestStepLimitsAreTheInitialStepThoughTheDomainIsWet) {
  support::overwrite(runFile, "Parameters/DTmax", 0, 0.125);
  setCommand(R"("start": 0, "end": 0.125, "out": 0)");
  EXPECT_THAT(times(), ElementsAre(" -> time: 0.02", " -> time: 0.0825", " -> time: 0.125"));
}

TEST_F(FirstSteps, ThatACellLimitsDoNotSeeTheInitialStep) {
  setCommand(R"("start": 0, "end": 0.2, "out": 0)", "", R"("init": 0.001, "minimum": 0.0001)");
  EXPECT_THAT(times(), ElementsAre(" -> time: 0.173792", " -> time: 0.2"));
}

// -- kernels of a model with all there is
// -----------------------------------------------------------

TEST_F(Console, TheTimingTableListsAllKernelsOfAFullModel) {
  useSample("full_model");
  setCommand(R"("start": 0, "end": 1.1, "out": 0)");
  const Outcome run = simulate();
  ASSERT_EQ(run.status, 0) << run.err;
  const int passes = callsOf("Update", run.out);
  EXPECT_GT(passes, 1);
  for (const char* const once :
       {"InitCellHydFeatures", "InitCellMorFeatures", "InitFrictionFeatures"}) {
    EXPECT_EQ(callsOf(once, run.out), 1) << once;
  }
  for (const char* const kernel : {"TimeStepCalculation",
                                   "NodeStringStateCalc",
                                   "EdgeDataInterpolation",
                                   "CellDataInterpolation",
                                   "EdgeDataModification",
                                   "CellDataModification",
                                   "CalCCurvature",
                                   "CalcBedGradient",
                                   "HydBoundaryFluxes",
                                   "MorBoundaryFluxes",
                                   "HydWallBFluxes",
                                   "MorWallBFluxes",
                                   "HydInternalFluxes",
                                   "LocalBedSlope",
                                   "MorBedloadTransport",
                                   "MorInternalFluxes",
                                   "HydFriction",
                                   "HydFlood",
                                   "HydSource",
                                   "MorSource"}) {
    EXPECT_EQ(callsOf(kernel, run.out), passes) << kernel;
  }
}

// -- loops around loops, and kernels without elements ---------------------------------------------

class FixedBed : public Console {
 protected:
  FixedBed() { useSample("fixbed_many"); }
};

TEST_F(FixedBed, IsCorrectedUntilTheDeviationIsSmall) {
  const Outcome run = simulate();
  const int passes = callsOf("Update", run.out);
  EXPECT_GT(callsOf("MorFixBedCorrection", run.out), passes);
  EXPECT_EQ(callsOf("MorFixBedCorrectionMax", run.out), callsOf("MorFixBedCorrection", run.out));
}

TEST_F(FixedBed, OfOneIterationIsNotMeasured) {
  support::overwrite(runFile, "Parameters/FixBedMaxIter", 0, 1);
  const Outcome run = simulate();
  ASSERT_EQ(run.status, 0) << run.err;
  EXPECT_EQ(callsOf("MorFixBedCorrection", run.out), callsOf("Update", run.out));
  EXPECT_EQ(callsOf("MorFixBedCorrectionMax", run.out), 0);
}

TEST_F(FixedBed, OfNoIterationIsNotCorrected) {
  support::overwrite(runFile, "Parameters/FixBedMaxIter", 0, 0);
  const Outcome run = simulate();
  ASSERT_EQ(run.status, 0) << run.err;
  EXPECT_EQ(callsOf("MorFixBedCorrection", run.out), 0);
  EXPECT_EQ(callsOf("MorFixBedCorrectionMax", run.out), 0);
}

TEST_F(FixedBed, OfAnInfiniteAccuracyIsNotCorrected) {
  support::overwrite(runFile, "Parameters/FixBedAccuracy", 0, 1e12);
  const Outcome run = simulate();
  ASSERT_EQ(run.status, 0) << run.err;
  EXPECT_EQ(callsOf("MorFixBedCorrection", run.out), 0);
}

TEST_F(FixedBed, WithoutCellsIsDeactivatedInSilenceAtLevelZero) {
  support::replaceInts(runFile, "CellsFix/set", {1}, 0);
  support::replaceInts(runFile, "CellsFix/CellsAll", {0, 1}, 0);
  support::replaceInts(runFile, "CellsFix/EdgesAll", {0, 3}, 0);
  support::replace(runFile, "CellsFix/FixBedEl", {0, 1}, 0.0);
  const Outcome quiet = simulate();
  ASSERT_EQ(quiet.status, 0) << quiet.err;
  EXPECT_THAT(quiet.out, Not(HasSubstr("de-activating")));
  EXPECT_EQ(callsOf("MorFixBedCorrection", quiet.out), 0);
  EXPECT_THAT(simulate({"-l", "1"}).out,
              HasSubstr(" -> de-activating the kernel <MorFixBedCorrection>\n"));
}

}  // namespace
