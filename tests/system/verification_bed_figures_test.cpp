// How far are bed load and bed off on a given mesh? The figures of docs/morphology.md.
//
// The flux of the bed over an edge is the HLL average: where the bed falls from one cell to the
// next, it carries more than either cell can. That pays for stability, and spreads the bed. With
// weak transport, the speed that stands in the flux exceeds that of the bed,
//
//   c = 3 qs / ((1 - p) h (1 - F^2)),
//
// by the factor (1 + F) / F along the flow, F being the Froude number.
//
//   S. Soares-Frazao, Y. Zech: HLLC scheme with novel wave-speed estimators appropriate for
//   two-dimensional shallow-water flow on erodible bed. International Journal for Numerical Methods
//   in Fluids 66, 2011, 1019-1036.
//
// To expect: the figures that were measured when the tests were written, with some room.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <numbers>
#include <string>

#include "support/Process.h"
#include "support/TempDir.h"
#include "system/verification/BedRun.h"
#include "system/verification/Solution.h"
#include "system/verification/TriangleMesh.h"
#include "system/verification/exner.h"
#include "system/verification/flume.h"

namespace verification {
namespace {

constexpr std::size_t SEDIMENT = 8;  ///< what passes a string [m3/s]
constexpr std::size_t CAPACITY = 9;  ///< what the flow at a string can carry [m3/s]

struct Excess {
  double grainSize;  ///< [m]
  double cellWidth;  ///< [m]
  double expected;   ///< share of the capacity
};

/// Share of the capacity by which the bed load in the middle of a river exceeds it. The river is
/// 1.8 m deep, falls by 0.5 per mille and has Manning's n = 0.035.
double excessOnASlope(const Excess& of) {
  const double slope = 0.0005;
  const double depth = 1.8;
  const double u = std::pow(depth, 2.0 / 3.0) * std::sqrt(slope) / 0.035;
  const Flume flume{.length = 2000.0,
                    .columns = static_cast<int>(std::lround(2000.0 / of.cellWidth)),
                    .slope = slope};
  const support::TempDir dir;
  const Silence silence;
  setUp(dir.path(),
        {.geometry = geometryOf(flume),
         .hydraulics = R"("FRICTION": {"type": "manning", "value": 0.035}, "BOUNDARY": [
             {"string": "inlet", "type": "inflow", "slope": 0.0005, "discharge": )" +
                       number(u * depth * flume.width()) + R"(},
             {"string": "outlet", "type": "normal_depth", "slope": 0.0005}])",
         .morphology = R"("PARAMETER": {"start": 3800}, "BEDMATERIAL": {"grain_size": )" +
                       number(of.grainSize) + R"(}, "BEDLOAD": {
             "FORMULA": {"type": "meyer_peter_mueller_1948"}, "BOUNDARY": [
             {"string": "inlet", "type": "capacity_inflow"},
             {"string": "outlet", "type": "capacity_outflow"}]})",
         .end = 4000.0});
  BedRun run(dir.path());
  run.setCells(
      [&](const Point& at) { return BedRun::Cell{.bed = -slope * at.x, .depth = depth, .u = u}; });
  run.go();
  return run.ofString(MIDDLE, SEDIMENT) / run.ofString(MIDDLE, CAPACITY) - 1.0;
}

TEST(BedFigures, OnASlopeMoreMovesThanTheFlowCanCarry) {
  for (const Excess& of : {Excess{0.002, 100.0, 0.260}, Excess{0.002, 50.0, 0.125},
                           Excess{0.002, 25.0, 0.061}, Excess{0.01, 50.0, 0.896}}) {
    EXPECT_NEAR(excessOnASlope(of), of.expected, 0.02 * of.expected)
        << of.grainSize << " m, " << of.cellWidth << " m";
  }
}

/// A mesh of 4 m by 4 m with water that runs around a far centre, which lies in a direction.
struct Bend {
  std::string mesh;  ///< keys of GEOMETRY
  double direction;  ///< [degrees]
};

/// A mesh of a pattern of the setup.
std::string squares(const std::string& pattern, int count) {
  const std::string side = std::to_string(count);
  return R"("RECTANGLE": {"length": 4, "width": 4, "cells": [)" + side + ", " + side +
         R"(], "pattern": ")" + pattern + R"("})";
}

/// The curvature of the solver times the radius, per mesh width, which is the side of a square of
/// two cells.
double scaledCurvature(const Bend& bend, const support::TempDir& dir) {
  const double radius = 100.0;
  const double size = 4.0;
  const double angle = bend.direction * std::numbers::pi / 180.0;
  const Point centre{0.5 * size - radius * std::cos(angle), 0.5 * size - radius * std::sin(angle)};
  const Silence silence;
  setUp(
      dir.path(),
      {.geometry = bend.mesh,
       .hydraulics = R"("PARAMETER": {"cfl": 0.5})",
       .morphology =
           R"("BEDMATERIAL": {"porosity": 0.4}, "BEDLOAD": {"DIRECTION": {"CURVATURE": {"factor": 1}},
             "FORMULA": {"type": "grass_1981", "coefficient": 1e-6}})",
       .end = 0.001});
  BedRun run(dir.path());
  run.setCells([&centre](const Point& at) {
    const double r = std::hypot(at.x - centre.x, at.y - centre.y);
    return BedRun::Cell{.depth = 1.0, .u = -(at.y - centre.y) / r, .v = (at.x - centre.x) / r};
  });
  run.go();
  double sum = 0.0;
  int count = 0;
  for (std::size_t cell = 0; cell < run.cells(); ++cell) {
    const auto [x, y] = run.centroid(cell);
    if (std::min(x, y) < 0.9 || std::max(x, y) > size - 0.9) continue;  // not at the walls
    sum += run.curvature(cell) * radius / std::sqrt(2.0 * run.area(cell));
    ++count;
  }
  return sum / count;
}

TEST(BedFigures, CurvatureGrowsWithTheCells) {
  for (const int count : {10, 20, 40}) {
    const support::TempDir dir;
    EXPECT_NEAR(scaledCurvature({squares("alternating", count), 0.0}, dir), 0.611, 0.005) << count;
  }
}

TEST(BedFigures, CurvatureDependsOnPatternAndDirection) {
  struct Range {
    std::string pattern;
    std::array<double, 4> of;  ///< for a centre at 0, 45, 90 and 135 degrees
  };
  for (const Range& range : {Range{"alternating", {0.611, 0.471, 0.611, 0.471}},
                             Range{"diagonal", {0.556, 0.393, 0.556, 0.707}},
                             Range{"crossed", {0.471, 0.611, 0.471, 0.611}}}) {
    for (std::size_t k = 0; k < range.of.size(); ++k) {
      const support::TempDir dir;
      const double direction = 45.0 * static_cast<double>(k);
      EXPECT_NEAR(scaledCurvature({squares(range.pattern, 20), direction}, dir), range.of.at(k),
                  0.005)
          << range.pattern << " " << direction;
    }
  }
}

TEST(BedFigures, CurvatureOfIrregularMeshesIsHalfAMeshWidthOverTheRadius) {
  for (const double direction : {0.0, 30.0, 60.0, 90.0, 120.0, 150.0}) {
    const support::TempDir dir;
    Random random(3);
    support::writeFile(dir.file("mesh.2dm"), to2dm(irregularMesh({4.0, 4.0}, {20, 20}, random)));
    EXPECT_NEAR(scaledCurvature({R"("MESH": {"file": "mesh.2dm"})", direction}, dir), 0.56, 0.04)
        << direction;
  }
}

/// Error of a falling bed that is held at its ends, half a metre inside of them [m].
struct HeldBed {
  double atInlet = 0.0;
  double atOutlet = 0.0;
};

constexpr double HELD_TIME = 30.0;  ///< [s]

FallingBed fallingBed(const GrassFlow& flow) {
  return {flow, 0.0005, 0.0005};
}

HeldBed heldBed(int columns, const std::string& boundaries, const GrassFlow& flow) {
  const FallingBed exact = fallingBed(flow);
  const Flume flume{.length = 7.0, .columns = columns};
  const auto bedAt = [&exact](double x) {
    return levels(HELD_TIME, exact.bed(x, 0.0), exact.bed(x, HELD_TIME));
  };
  const support::TempDir dir;
  const Silence silence;
  const double depth = exact.depth(flume.to());
  support::writeFile(dir.file("levels.txt"), levels(HELD_TIME, exact.bed(flume.to(), 0.0) + depth,
                                                    exact.bed(flume.to(), HELD_TIME) + depth));
  support::writeFile(dir.file("inlet.txt"), bedAt(flume.from));
  support::writeFile(dir.file("outlet.txt"), bedAt(flume.to()));
  setUp(dir.path(), {.geometry = geometryOf(flume),
                     .hydraulics = frictionlessFlow(flow, flume),
                     .morphology = grassBed(flow, boundaries),
                     .end = HELD_TIME});
  BedRun run(dir.path());
  run.setCells([&exact](const Point& at) {
    return BedRun::Cell{
        .bed = exact.bed(at.x, 0.0), .depth = exact.depth(at.x), .u = exact.velocity(at.x)};
  });
  run.go();
  const auto errorAround = [&](double x) {
    double sum = 0.0;
    int count = 0;
    for (std::size_t cell = 0; cell < run.cells(); ++cell) {
      const double at = run.centroid(cell).x;
      if (std::abs(at - x) > 0.25) continue;
      sum += run.bed(cell) - exact.bed(at, HELD_TIME);
      ++count;
    }
    return sum / count;
  };
  return {errorAround(0.75), errorAround(6.25)};
}

struct Held {
  int columns;
  double errorByRate;  ///< at the outlet, with known rates at both ends [m]
  double errorByBed;   ///< at the outlet, with given beds at both ends [m]
  double atInlet;      ///< with given beds [m]
};

TEST(BedFigures, AHighestBedAtAnOutletIsOffOnEveryMesh) {
  const GrassFlow flow{
      .discharge = 1.0, .coefficient = 0.0005, .porosity = 0.4, .gravity = GRAVITY};
  const FallingBed exact = fallingBed(flow);
  for (const Held& known :
       {Held{28, -1.011e-3, 6.29e-4, -2.10e-3}, Held{56, -5.05e-4, 6.54e-4, -7.34e-4},
        Held{112, -2.52e-4, 6.71e-4, -2.59e-4}}) {
    SCOPED_TRACE(known.columns);
    const Flume flume{.length = 7.0, .columns = known.columns};
    const HeldBed byRate = heldBed(
        known.columns, knownRates(flume, exact.bedload(0.0), exact.bedload(flume.to())), flow);
    const HeldBed byBed =
        heldBed(known.columns,
                R"({"string": "inlet", "type": "lowest_bed", "elevation_file": "inlet.txt"},
           {"string": "outlet", "type": "highest_bed", "elevation_file": "outlet.txt"})",
                flow);
    EXPECT_NEAR(byRate.atOutlet, known.errorByRate, 0.05 * std::abs(known.errorByRate));
    EXPECT_NEAR(byBed.atOutlet, known.errorByBed, 0.05 * known.errorByBed);
    EXPECT_NEAR(byBed.atInlet, known.atInlet, 0.05 * std::abs(known.atInlet));
  }
}

/// Share of the height that a train of dunes of 10 m length keeps on a way of 2 m.
/// @param columns of a flume of three dunes
double heightKept(double froude, int columns) {
  const double length = 10.0;
  const double height = 0.005;
  // The bed is slow against the water: the coefficient makes it equally slow for all flows.
  const GrassFlow flow{.discharge = froude * std::sqrt(GRAVITY),
                       .coefficient = 0.0006 / (froude * froude),
                       .porosity = 0.4,
                       .gravity = GRAVITY};
  const TravellingHump steadyFlow(flow, 1.0, height, length);
  const double time = 0.2 * length / steadyFlow.speed(0.0);
  const Flume flume{.from = -15.0, .length = 30.0, .columns = columns};
  const support::TempDir dir;
  const Silence silence;
  support::writeFile(dir.file("levels.txt"), levels(time, 1.0, 1.0));
  setUp(dir.path(), {.geometry = geometryOf(flume),
                     .hydraulics = frictionlessFlow(flow, flume),
                     .morphology = grassBed(
                         flow, knownRates(flume, steadyFlow.bedload(0.0), steadyFlow.bedload(0.0))),
                     .end = time});
  BedRun run(dir.path());
  const double waveNumber = 2.0 * std::numbers::pi / length;
  run.setCells([&](const Point& at) {
    const double bed = height * std::sin(waveNumber * at.x);
    const double u = steadyFlow.velocity(bed);
    return BedRun::Cell{.bed = bed, .depth = flow.discharge / u, .u = u};
  });
  // The wave in the dune in the middle.
  const auto amplitude = [&] {
    double sine = 0.0;
    double cosine = 0.0;
    for (std::size_t cell = 0; cell < run.cells(); ++cell) {
      const double x = run.centroid(cell).x;
      if (std::abs(x) > 0.5 * length) continue;
      sine += run.area(cell) * run.bed(cell) * std::sin(waveNumber * x);
      cosine += run.area(cell) * run.bed(cell) * std::cos(waveNumber * x);
    }
    return std::hypot(sine, cosine);
  };
  const double atStart = amplitude();
  run.go();
  return amplitude() / atStart;
}

TEST(BedFigures, DunesAreFlattenedTheMoreTheSlowerTheFlow) {
  EXPECT_NEAR(heightKept(0.1, 60), 0.22, 0.005);
  EXPECT_NEAR(heightKept(0.2, 60), 0.47, 0.005);
  EXPECT_NEAR(heightKept(0.4, 60), 0.69, 0.005);
  EXPECT_NEAR(heightKept(0.6, 60), 0.78, 0.005);
  // Squares of half the width, half the logarithm.
  EXPECT_NEAR(heightKept(0.6, 120), std::sqrt(0.78), 0.01);
}

}  // namespace
}  // namespace verification
