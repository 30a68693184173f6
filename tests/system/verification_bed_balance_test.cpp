// Does sand get lost or come into being?
//
// What leaves a cell over an edge must enter the neighbour, pores included, also where the water
// advances over dry sand and where the bed load is cut at a fixed bed. What goes in and out over
// boundaries must be what the strings report, which are grains without pores. A flux of the bed
// lifts or lowers the water with the bed: the depth is none of its business.
//
//   R. J. LeVeque: Finite Volume Methods for Hyperbolic Problems. Cambridge University Press, 2002,
//   sections 4.1 and 13.2.
//
// To expect: an account that closes at the end of every step but for rounding.
#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>
#include <string>

#include "support/Process.h"
#include "support/TempDir.h"
#include "system/verification/BedRun.h"
#include "system/verification/Solution.h"
#include "system/verification/exner.h"
#include "system/verification/flume.h"

namespace verification {
namespace {

/// Copies an example and makes its run file; the run ends at `end` [s].
void setUpExample(const std::string& name, const support::TempDir& dir, int end) {
  std::filesystem::copy(std::string(EXAMPLES_FOLDER) + "/" + name, dir.path(),
                        std::filesystem::copy_options::recursive);
  support::writeFile(dir.file("command.json"),
                     R"({"SIMULATION": {"TIME": {"start": 0, "end": )" + std::to_string(end) +
                         R"(, "out": 1}, "OUTPUT": ["bottom_elevation"]}})");
  const support::Outcome setup = support::runIn(dir.path(), SETUP_EXE, {"-f", "study.json"});
  ASSERT_EQ(setup.status, 0) << setup.err;
}

/// Sum of the changes of the bed in both directions [m3].
double movedSand(const BedRun& run) {
  double moved = 0.0;
  for (std::size_t cell = 0; cell < run.cells(); ++cell) {
    moved += run.area(cell) * std::abs(run.bed(cell));
  }
  return moved;
}

TEST(SandBalance, ClosesForADamBreakBetweenWalls) {
  const support::TempDir dir;
  const Silence silence;
  setUpExample("dam_break_mobile", dir, 1);
  BedRun run(dir.path());
  run.go();
  EXPECT_GE(run.steps(), 100);
  EXPECT_EQ(run.sandIn(), 0.0);
  EXPECT_EQ(run.sandOut(), 0.0);
  EXPECT_GT(movedSand(run), 1e-3);
  EXPECT_LE(run.largestSandError(), 1e-13 * 0.12 * 6.0 * 0.25);  // of what lies on the floor
}

/// A flume with more bed load at the inlet than the flow can carry, and less at the outlet.
TEST(SandBalance, ClosesBetweenBoundariesAndCountsThePores) {
  const GrassFlow flow{
      .discharge = 1.0, .coefficient = 0.002, .porosity = 0.35, .gravity = GRAVITY};
  const Flume flume{.length = 10.0, .columns = 20};
  const support::TempDir dir;
  const Silence silence;
  support::writeFile(dir.file("levels.txt"), levels(20.0, 1.0, 1.0));
  setUp(dir.path(), {.geometry = geometryOf(flume),
                     .hydraulics = frictionlessFlow(flow, flume),
                     .morphology = grassBed(flow, knownRates(flume, 0.004, 0.001)),
                     .end = 20.0});
  BedRun run(dir.path());
  run.setCells([](const Point& at) {
    return BedRun::Cell{.bed = 0.02 * std::sin(at.x), .depth = 1.0, .u = 1.0};
  });
  run.go();
  EXPECT_NEAR(run.sandIn(), 0.004 * flume.width() * 20.0 / 0.65, 1e-14);
  EXPECT_NEAR(run.sandOut(), 0.001 * flume.width() * 20.0 / 0.65, 1e-14);
  EXPECT_LE(run.largestSandError(), 1e-13 * run.sandIn());
  EXPECT_NEAR(run.ofString(INLET, 8), 0.004 * flume.width(), 1e-16);
  EXPECT_NEAR(run.ofString(OUTLET, 8), 0.001 * flume.width(), 1e-16);
}

TEST(SandBalance, OfTheTrenchIsThatOfItsInflowAndOutflow) {
  const support::TempDir dir;
  const Silence silence;
  setUpExample("trench", dir, 240);
  BedRun run(dir.path());
  const double atStart = run.sand();
  run.go();
  // The capacity at both ends, in 120 s: about 1.1e-5 m3/s of grains.
  EXPECT_NEAR(run.sandIn(), 1.1e-5 * 120.0 / 0.6, 0.05 * run.sandIn());
  EXPECT_GT(run.sandOut(), 0.5 * run.sandIn());
  EXPECT_LE(run.largestSandError(), 1e-13 * (run.sandIn() + std::abs(atStart)));
}

TEST(BedFlux, LiftsTheWaterWithTheBed) {
  const GrassFlow flow{.discharge = 1.0, .coefficient = 0.002, .porosity = 0.4, .gravity = GRAVITY};
  const Flume flume{.length = 10.0, .columns = 20};
  const support::TempDir dir;
  const Silence silence;
  support::writeFile(dir.file("levels.txt"), levels(20.0, 1.0, 1.0));
  setUp(dir.path(), {.geometry = geometryOf(flume),
                     .hydraulics = frictionlessFlow(flow, flume),
                     .morphology = grassBed(flow, knownRates(flume, 0.004, 0.001)),
                     .end = 20.0});
  BedRun run(dir.path());
  const auto bedAt = [](double x) { return 0.1 * std::sin(x); };
  run.setCells([&bedAt](const Point& at) {
    return BedRun::Cell{.bed = bedAt(at.x), .depth = 1.0 + 0.1 * std::cos(at.x), .u = 1.0};
  });
  run.holdWater();
  run.go();
  EXPECT_GE(run.steps(), 400);
  EXPECT_GT(bedError(run, bedAt), 0.005);
  EXPECT_LE(run.largestDepthChange(), 1.0);
}

}  // namespace
}  // namespace verification
