// Does the bed move as it should, and better on finer meshes?
//
// Two solutions of the shallow-water equations with Exner's equation are known in closed form or
// nearly so; exner.h derives them. Both run here in flumes without friction. The state at the start
// is the exact one at the centroids. The bed load at either end does not change in time: it is
// given as such (`inflow`, `outflow`). Water comes in at the given discharge and goes out against
// the exact level. No exact state is needed outside of the domain, and the error is taken over all
// of it.
//
// To expect: an error of the bed that falls with every refinement, of first order for the smooth
// solution. The scheme spreads the bed as upwinding does, but more: see
// verification_bed_figures_test.cpp. The known errors are those that the solver had when the test
// was written: it may get better, but not worse.
//
// The characteristics follow flows that are steady at each moment. The bed in the full equations is
// slower by the part d / (1 - F^2) (1 + 2 F^2 / (1 - F^2)) of its speed, d = 3 A u^2 / ((1 - p) h):
// 1.8 % of the way of this hump.
#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <string>

#include "support/Process.h"
#include "support/TempDir.h"
#include "system/verification/BedRun.h"
#include "system/verification/Solution.h"
#include "system/verification/exner.h"
#include "system/verification/flume.h"

namespace verification {
namespace {

struct Resolution {
  int columns;
  double knownError;  ///< [m]
};

TEST(FallingBedFlume, ConvergesToTheSteadyFlow) {
  const GrassFlow flow{
      .discharge = 1.0, .coefficient = 0.0005, .porosity = 0.4, .gravity = GRAVITY};
  const FallingBed exact(flow, 0.0005, 0.0005);
  const double time = 30.0;
  double coarserError = 0.0;
  for (const auto& [columns, knownError] :
       std::array<Resolution, 3>{{{28, 2.336e-3}, {56, 1.244e-3}, {112, 6.418e-4}}}) {
    SCOPED_TRACE(columns);
    const Flume flume{.length = 7.0, .columns = columns};
    const auto level = [&](double t) { return exact.bed(flume.to(), t) + exact.depth(flume.to()); };
    const support::TempDir dir;
    const Silence silence;
    support::writeFile(dir.file("levels.txt"), levels(time, level(0.0), level(time)));
    setUp(dir.path(), {.geometry = geometryOf(flume),
                       .hydraulics = frictionlessFlow(flow, flume),
                       .morphology = grassBed(flow, knownRates(flume, exact.bedload(flume.from),
                                                               exact.bedload(flume.to()))),
                       .end = time});
    BedRun run(dir.path());
    run.setCells([&exact](const Point& at) {
      return BedRun::Cell{
          .bed = exact.bed(at.x, 0.0), .depth = exact.depth(at.x), .u = exact.velocity(at.x)};
    });
    run.go();

    const double error = bedError(run, [&](double x) { return exact.bed(x, time); });
    EXPECT_LE(error, 1.05 * knownError);
    if (coarserError > 0.0) {
      EXPECT_GE(std::log2(coarserError / error), 0.7);
    }
    coarserError = error;
  }
}

TEST(HumpFlume, CarriesItsHumpAlongLikeTheCharacteristics) {
  const GrassFlow flow{.discharge = 0.6 * std::sqrt(GRAVITY),
                       .coefficient = 0.0003,
                       .porosity = 0.4,
                       .gravity = GRAVITY};
  const TravellingHump exact(flow, 1.0, 0.05, 10.0);
  const double time = 100.0;
  ASSERT_LT(time, exact.breakingTime());
  double coarserError = 1.0;
  for (const auto& [columns, knownError] :
       std::array<Resolution, 3>{{{32, 2.59e-3}, {64, 1.444e-3}, {128, 8.366e-4}}}) {
    SCOPED_TRACE(columns);
    const Flume flume{.from = -6.0, .length = 16.0, .columns = columns};
    const support::TempDir dir;
    const Silence silence;
    support::writeFile(dir.file("levels.txt"), levels(time, 1.0, 1.0));
    setUp(dir.path(),
          {.geometry = geometryOf(flume),
           .hydraulics = frictionlessFlow(flow, flume),
           .morphology = grassBed(flow, knownRates(flume, exact.bedload(0.0), exact.bedload(0.0))),
           .end = time});
    BedRun run(dir.path());
    run.setCells([&exact, &flow](const Point& at) {
      const double bed = exact.shape(at.x);
      const double u = exact.velocity(bed);
      return BedRun::Cell{.bed = bed, .depth = flow.discharge / u, .u = u};
    });
    const double volume = run.sand();
    const double centre = centreOfBed(run);
    run.go();

    EXPECT_NEAR(run.sand(), volume, 1e-13 * volume);
    const double way = exact.centreSpeed() * time;
    EXPECT_NEAR(centreOfBed(run) - centre, way, 0.05 * way);
    const double error = bedError(run, [&](double x) { return exact.bed(x, time); });
    EXPECT_LE(error, 1.05 * knownError);
    EXPECT_LT(error, coarserError);
    coarserError = error;
  }
}

}  // namespace
}  // namespace verification
