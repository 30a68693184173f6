// Run files with values that no kernel looks at: such a value may be anything. Where a kernel does
// look, the run is refused, and not before.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <filesystem>
#include <string>
#include <vector>

#include "system/Simulation.h"

namespace {

using support::overwrite;
using support::ownLines;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

class UnreadInput : public support::Simulation {
 protected:
  void set(const std::string& path, const std::vector<double>& values, std::size_t from = 0) {
    for (std::size_t i = 0; i < values.size(); ++i) overwrite(runFile, path, from + i, values[i]);
  }
  /// Gives all values of one column of a dataset with `columns` of them.
  void setColumn(const std::string& path, std::size_t columns, std::size_t column, double value) {
    const std::size_t rows = support::readNumbers(runFile, path).size() / columns;
    for (std::size_t i = 0; i < rows; ++i) overwrite(runFile, path, i * columns + column, value);
  }
  /// The row of a kernel in the schedule.
  std::size_t rowOf(double kernel) {
    const std::vector<double> ids = support::readNumbers(runFile, "kernels/ID");
    const auto row = std::find(ids.begin(), ids.end(), kernel);
    EXPECT_NE(row, ids.end());
    return static_cast<std::size_t>(row - ids.begin());
  }
  void neverRun(double kernel) { overwrite(runFile, "kernels/ID", rowOf(kernel), 77); }
  void runFrom(double kernel, double start) {
    overwrite(runFile, "kernels/execution", 3 * rowOf(kernel), start);
  }
  /// Runs and keeps the results under another name.
  std::string resultsOf(const std::string& name) {
    const support::Outcome run = simulate();
    EXPECT_EQ(run.status, 0) << run.out << run.err;
    const std::string kept = dir.file(name);
    std::filesystem::rename(resultFile, kept);
    return kept;
  }
  std::vector<double> lastState() {
    return support::readNumbers(resultFile, "RESULTS/CellsAll/HydState/0000001");
  }
};

// -- boundaries at normal depth without friction --------------------------------------------------

class WithoutFriction : public UnreadInput {
 protected:
  // The friction coefficient is there, and nothing fills it.
  WithoutFriction() {
    useSample("bc_100_104");
    neverRun(2);
    neverRun(22);
  }
};

TEST_F(WithoutFriction, AnInflowRunsAsWithACoefficientOfZero) {
  const std::string withFriction = resultsOf("on.h5");
  overwrite(runFile, "Parameters/FrictionOn", 0, 0);
  const std::string without = resultsOf("off.h5");
  EXPECT_THAT(support::differences(withFriction, without), IsEmpty());
}

TEST_F(UnreadInput, AModelWithoutFrictionHasACoefficientOfZero) {
  useSample("bc_114_levels");
  setCommand(R"("start": 0, "end": 0.1, "out": 0.1)");
  setColumn("EdgHydBC/HydBType", 2, 0, 100);
  setColumn("EdgHydBC/HydBType", 2, 1, -1);
  setColumn("EdgeData/NumValue", 7, 1, 0.01);
  setColumn("EdgeData/NumValue", 7, 2, 0.5);
  ASSERT_EQ(simulate().status, 0);
  for (const double value : lastState()) EXPECT_TRUE(std::isfinite(value));
  const std::vector<double> state = lastState();

  // Whoever says that there is friction but has none computes the same.
  overwrite(runFile, "Parameters/FrictionOn", 0, 1);
  ASSERT_EQ(simulate().status, 0);
  EXPECT_EQ(lastState(), state);

  // Over a dry bed the depth is the normal depth, which without friction there is none.
  overwrite(runFile, "Parameters/FrictionOn", 0, 0);
  const std::vector<double> bed = support::readNumbers(runFile, "CellsAll/BottomEl");
  for (std::size_t i = 0; i < bed.size(); ++i) set("CellsAll/HydState", {bed[i], 0, 0}, 3 * i);
  EXPECT_EQ(simulate().status, 0);
}

TEST_F(UnreadInput, BoundariesOfTheBedByConveyanceRunWithoutFriction) {
  for (const double code : {408.0, 414.0}) {
    useSample("full_model");
    setCommand(R"("start": 0, "end": 0.1, "out": 0.1)");
    neverRun(2);
    neverRun(22);
    overwrite(runFile, "Parameters/FrictionOn", 0, 0);
    setColumn("EdgMorBC/MorBType", 2, 0, code);
    ASSERT_EQ(simulate().status, 0) << code;
    const std::vector<double> bed =
        support::readNumbers(resultFile, "RESULTS/CellsAll/BottomEl/0000001");
    setColumn("EdgMorBC/MorBType", 2, 0, 999);  // nothing passes
    ASSERT_EQ(simulate().status, 0);
    EXPECT_EQ(support::readNumbers(resultFile, "RESULTS/CellsAll/BottomEl/0000001"), bed);
    std::filesystem::remove_all(dir.path());
    std::filesystem::create_directory(dir.path());
  }
}

// -- indices that nobody follows ------------------------------------------------------------------

// A weir (3), a switch (8) and a gate by time (5) beside each other, which know no second string.
class UnusedIndices : public UnreadInput {
 protected:
  UnusedIndices() {
    useSample("interpolation_keys");
    set("EdModDat/ModfInfo", {3, 3, 0, 1, 2, 0, 0}, 7);
    set("EdModDat/ModfInfo", {8, 3, 0, 1, 2, 4, 5}, 14);
    set("EdModDat/ModfInfo", {5, 1, 0, 0, 0, 0, 0}, 21);
    set("EdModDat/ModfInfo", {99, -1, -1, -1, -1, -1, -1}, 28);
  }
  void setUnused(double index) {
    set("EdModDat/NodeStrg", {index}, 3);
    set("EdModDat/NodeStrg", {index}, 5);
    set("EdModDat/NodeStrg", {index, index}, 6);
    set("EdModDat/NodeStrg", {index, index}, 8);
    set("EdModDat/EdgeData", {index}, 4);
    for (const std::size_t timeOrUnknown : {0, 4, 5, 6}) {
      set("EdInterp/NodeStrg", {index}, timeOrUnknown);
    }
    setColumn("EdgHydBC/CellsAll", 2, 1, index);
  }
};

TEST_F(UnusedIndices, PlayNoPart) {
  setUnused(0);
  const std::string expected = resultsOf("valid.h5");
  setUnused(-1);
  EXPECT_THAT(support::differences(expected, resultsOf("negative.h5")), IsEmpty());
  setUnused(2147483647);
  EXPECT_THAT(support::differences(expected, resultsOf("large.h5")), IsEmpty());
}

TEST_F(UnusedIndices, AreRefusedWhereTheyAreUsed) {
  set("EdModDat/NodeStrg", {-1}, 2);
  const support::Outcome run = simulate();
  EXPECT_EQ(run.status, 2);
  EXPECT_THAT(run.out, HasSubstr("map EdModDat/NodeStrg: row 1, column 0 holds -1, which is not in "
                                 "the range 0 to 3 of set NodeStrg/set\n"));
}

TEST_F(UnreadInput, AnEdgeOfSignZeroLetsNothingPassButMomentum) {
  useSample("one_cell");
  overwrite(runFile, "CellsAll/EdgeSign", 1, 0);
  EXPECT_EQ(simulate().status, 0);
}

TEST_F(UnreadInput, ANodestringOfLessThanNoEdgesIsEmpty) {
  useSample("bc_114_levels");
  set("NodeStrg/ListSize", {0}, 3);
  const std::string expected = resultsOf("empty.h5");
  set("NodeStrg/ListSize", {-5}, 3);
  EXPECT_THAT(support::differences(expected, resultsOf("negative.h5")), IsEmpty());
}

TEST_F(UnreadInput, ASeriesThatNobodyUsesMayBeEmpty) {
  useSample("bc_100_104");
  const std::vector<double> sizes = support::readNumbers(runFile, "InSeries/ListSize");
  ASSERT_EQ(sizes.size(), 1U);
  set("InSeries/ListSize", {0});
  neverRun(5);
  EXPECT_EQ(simulate().status, 0);
}

// -- kernels that are called late, or never -------------------------------------------------------

class BadPosition : public UnreadInput {
 protected:
  BadPosition() {
    useSample("bc_100_104");
    set("EdInterp/KeyPostn", {0, 7});
  }
};

const char* const REFUSAL =
    " -> data <EdInterp/KeyPostn> in row 0, column 1 is 7: position in a boundary record must be "
    "from 0 to 6\n";

TEST_F(BadPosition, OfAKernelWithoutARowIsNotLookedAt) {
  neverRun(5);
  EXPECT_EQ(simulate().status, 0);
}

TEST_F(BadPosition, OfAKernelThatStartsBehindTheEndIsNotLookedAt) {
  runFrom(5, 10.5);
  EXPECT_EQ(simulate().status, 0);
}

TEST_F(BadPosition, IsRefusedByTheFirstCall) {
  runFrom(5, 4.0);
  const support::Outcome run = simulate();
  EXPECT_EQ(run.status, 1);
  EXPECT_THAT(ownLines(run.err), HasSubstr(REFUSAL));
  EXPECT_EQ(support::readTime(resultFile, "RESULTS/CellsAll/HydState/0000002"), 4.0);
}

TEST_F(BadPosition, IsRefusedBeforeTheFirstRecordWhereTheFirstPassLooks) {
  const support::Outcome run = simulate({"-l", "2"});
  EXPECT_EQ(run.status, 1);
  EXPECT_THAT(ownLines(run.err), HasSubstr(REFUSAL));
  EXPECT_THAT(run.out, ::testing::Not(HasSubstr("writing output")));
}

TEST_F(BadPosition, PlaysNoPartInARunWithoutDuration) {
  setCommand(R"("start": 0, "end": 0, "out": 0)");
  EXPECT_EQ(simulate().status, 0);
}

// -- a group where a dataset is expected ----------------------------------------------------------

class Groups : public support::Simulation {};

TEST_F(Groups, InPlaceOfAnyDatasetEndInAMessage) {
  useSample("full_model");
  setCommand(R"("start": 0, "end": 0.01, "out": 0.01)", R"("friction_chezy", "ns_hyd_discharge")");
  const std::string whole = support::readFile(runFile);
  for (const std::string& path : support::datasetPaths(runFile)) {
    SCOPED_TRACE(path);
    support::replaceByGroup(runFile, path);
    const support::Outcome run = simulate();
    EXPECT_TRUE(run.status == 0 || run.status == 1 || run.status == 2) << run.status;
    if (run.status == 1) {
      EXPECT_THAT(run.err, HasSubstr(" -> "));
    }
    support::writeFile(runFile, whole);
  }
}

TEST_F(Groups, InPlaceOfAMapAreToldByTheKernelThatNeedsIt) {
  useSample("bc_100_104");
  support::replaceByGroup(runFile, "EdInterp/InSeries");
  const support::Outcome run = simulate();
  EXPECT_EQ(run.status, 1);
  EXPECT_THAT(run.err, HasSubstr(" -> kernel <EdgeDataInterpolation> needs the map "
                                 "<EdInterp/InSeries>, which this run does not have"));
}

}  // namespace
