// Does rock stay rock?
//
// A bar of sand lies on a bare floor in a flume, and the flow washes it away. Nothing comes in, so
// that each cell of the floor may let out only what it gets from the cell before. The bed load is
// cut to that cell by cell, and what a cell lets out less, the next one lacks: it takes passes for
// this to run down the floor.
//
// To expect: a bed that is never below the floor by more than the accuracy as long as there are
// passes enough. With too few the bed sinks in; a source of sediment then tells the user by how
// much.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdio>
#include <string>
#include <vector>

#include "support/H5Compare.h"
#include "support/Process.h"
#include "support/TempDir.h"
#include "system/verification/BedRun.h"
#include "system/verification/flume.h"

namespace verification {
namespace {

using ::testing::ContainsRegex;
using ::testing::HasSubstr;
using ::testing::Not;

constexpr double TIME = 20.0;   ///< [s]
constexpr double DIG = 3.4e-3;  ///< what the flow would dig in a step [m], whatever the mesh

/// A flume with the floor at 0 and a bar of sand, and a source over all of it that brings and takes
/// nothing.
/// @param limits of the correction, keys of FIXED_BED
BedCase bareFloor(const Flume& flume, const std::string& limits, double end = TIME) {
  return {.geometry = geometryOf(flume) + R"(, "REGIONDEF": [{"index": 1, "name": "floor"}],
              "BED": [{"box": [3, 0, 5, 1], "raise": 0.02}])",
          .hydraulics = R"("PARAMETER": {"cfl": 0.8, "safe_mode": false},
              "INITIAL": {"water_level": 1.0, "velocity": [1.0, 0.0]}, "BOUNDARY": [
              {"string": "inlet", "type": "inflow_froude", "froude": 0.5, "discharge": )" +
                        number(flume.width()) +
                        R"(}, {"string": "outlet", "type": "level", "level": 1.0}])",
          .morphology = R"("BEDMATERIAL": {"FIXED_BED": {)" + limits +
                        R"(, "ZONES": [{"region": "floor", "elevation": 0}]}},
              "BEDLOAD": {"FORMULA": {"type": "grass_1981", "coefficient": 0.01},
              "BOUNDARY": [{"string": "outlet", "type": "capacity_outflow"}]},
              "SOURCE": [{"region": "floor", "type": "rise", "rate": 0, "sink": "exact"}])",
          .end = end};
}

constexpr Flume FLUME{.length = 10.0, .columns = 20};

struct Undercut {
  double deepest;    ///< below the floor [m]
  double sandAbove;  ///< [m3]
};

Undercut undercutWith(const Flume& flume, const std::string& limits, double end = TIME) {
  const support::TempDir dir;
  const Silence silence;
  setUp(dir.path(), bareFloor(flume, limits, end));
  BedRun run(dir.path());
  run.go();
  return {run.deepestUndercut(), run.sand()};
}

class FixedBedAccuracy : public ::testing::TestWithParam<double> {};

TEST_P(FixedBedAccuracy, IsKeptInEveryStep) {
  const Undercut undercut =
      undercutWith(FLUME, R"("maximum_passes": 100, "accuracy": )" + number(GetParam()));
  EXPECT_LE(undercut.deepest, GetParam());
}

INSTANTIATE_TEST_SUITE_P(all, FixedBedAccuracy, ::testing::Values(1e-12, 1e-6, 1e-3, 2e-3, 3e-3));

TEST(FixedBed, SinksInAsFarAsTheAccuracyAllows) {
  EXPECT_GT(undercutWith(FLUME, R"("accuracy": 3e-3)").deepest, 2e-3);
}

TEST(FixedBed, IsUndercutWithFewerPassesThanTheFloorAsksFor) {
  double lost = 1.0;
  for (const int passes : {1, 3, 10}) {
    const Undercut undercut = undercutWith(FLUME, R"("maximum_passes": )" + std::to_string(passes));
    EXPECT_NEAR(undercut.deepest, DIG, 0.1 * DIG) << passes;
    EXPECT_LT(-undercut.sandAbove, lost) << passes;
    lost = -undercut.sandAbove;
  }
  EXPECT_GT(lost, 1e-3);
}

TEST(FixedBed, AsksForAsManyPassesAsItHasCellsAlongTheFlow) {
  const Flume finer{.length = 10.0, .columns = 200};
  EXPECT_NEAR(undercutWith(finer, R"("maximum_passes": 100)", 1.0).deepest, DIG, 0.1 * DIG);
  EXPECT_LE(undercutWith(finer, R"("maximum_passes": 200)", 1.0).deepest, 1e-6);
}

/// Runs the executable over the bare floor.
support::Outcome simulated(const support::TempDir& dir, const std::string& limits) {
  setUp(dir.path(), bareFloor(FLUME, limits));
  return support::runIn(dir.path(), SIMULATION_EXE,
                        {"-f", "command.json", "-r", "run.h5", "-o", "results.h5"});
}

TEST(FixedBed, ASourceTellsHowFarTheBedIsBelow) {
  const support::TempDir dir;
  const support::Outcome outcome = simulated(dir, R"("maximum_passes": 1)");
  EXPECT_EQ(outcome.status, 0) << outcome.err;
  const std::vector<double> bed =
      support::readNumbers(dir.file("results_results.h5"), "RESULTS/CellsAll/BottomEl/0000001");
  const double lowest = *std::min_element(bed.begin(), bed.end());
  EXPECT_LT(lowest, -1e-4);
  std::array<char, 100> message{};
  std::snprintf(message.data(), message.size(), "MASS BALANCE PROBLEM: z = %g < zFix = 0\n",
                lowest);
  EXPECT_THAT(outcome.out, HasSubstr(message.data()));
}

/// Lifts the floor of a cell above the bed before the run, in safe mode; the sources are in the
/// order of the cells.
class FloorAboveTheBed : public ::testing::Test {
 protected:
  support::Outcome inCell(std::size_t cell) {
    setUp(dir.path(), bareFloor(FLUME, R"("maximum_passes": 1)", 0.01));
    support::overwrite(dir.file("run.h5"), "Parameters/SafeMode", 0, 1);
    support::overwrite(dir.file("run.h5"), "CellsFix/FixBedEl", cell, 0.5);
    return support::runIn(dir.path(), SIMULATION_EXE,
                          {"-f", "command.json", "-r", "run.h5", "-o", "results.h5"});
  }

 private:
  support::TempDir dir;
};

TEST_F(FloorAboveTheBed, IsToldAndPassedOverInAnyCellButTheLast) {
  const support::Outcome outcome = inCell(0);
  EXPECT_EQ(outcome.status, 0) << outcome.err;
  EXPECT_THAT(outcome.out, ContainsRegex("MASS BALANCE PROBLEM: z = .* < zFix = 0.5\n"));
}

TEST_F(FloorAboveTheBed, EndsTheRunInTheLastCell) {
  const support::Outcome outcome = inCell(39);
  EXPECT_EQ(outcome.status, 1);
  EXPECT_THAT(outcome.out, ContainsRegex("MASS BALANCE PROBLEM: z = .* < zFix = 0.5\n"));
  EXPECT_THAT(outcome.err, HasSubstr("SEDIMENT MASS not conserved"));
}

/// The source takes a bed for undercut that is 1e-12 m below the floor.
TEST(FixedBed, ASourceIsSilentWhereTheAccuracyIsThatOfItsCheck) {
  const support::TempDir dir;
  const support::Outcome outcome = simulated(dir, R"("maximum_passes": 100, "accuracy": 1e-12)");
  EXPECT_EQ(outcome.status, 0) << outcome.err;
  EXPECT_THAT(outcome.out, Not(HasSubstr("MASS BALANCE PROBLEM")));
}

}  // namespace
}  // namespace verification
