// Do the waves of a dam break come out right, and better on finer meshes?
//
// The two dam breaks have exact solutions with all that makes flood waves hard: a rarefaction, a
// front over dry ground and a bore. They run here in channels of triangles, frictionless, and end
// before a wave reaches a wall.
//
//   A. Ritter: Die Fortpflanzung der Wasserwellen. Zeitschrift des Vereines Deutscher Ingenieure 36
//   (33), 1892, 947-954.
//   J. J. Stoker: Water Waves. Interscience, New York, 1957, section 10.8.
//
// To expect: an error that falls with every refinement. The scheme is of first order; since the
// solutions have kinks and a step, the order that is seen in the mean error lies below 1, but above
// 0.6. The constants are the errors that the solver had when the test was written: it may get
// better, but not worse.
#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <cstddef>
#include <functional>
#include <sstream>
#include <string>

#include "support/TempDir.h"
#include "system/verification/Solution.h"
#include "system/verification/exact.h"

namespace verification {
namespace {

constexpr double TIME = 6.0;  ///< since the break [s]

struct Resolution {
  int along;          ///< squares along the channel, each of two triangles
  int across;         ///< squares across
  double knownError;  ///< [m]
};

/// The channel reaches 50 m to either side of the dam and is 4 m wide.
std::string channel(const Resolution& resolution) {
  std::ostringstream text;
  text << R"("RECTANGLE": {"origin": [-50.0, 0.0], "length": 100.0, "width": 4.0, "cells": [)"
       << resolution.along << ", " << resolution.across << R"(], "pattern": "alternating"})";
  return text.str();
}

/// Mean absolute error of the depth at the end [m].
double depthError(const Solution& run, const std::function<Flow(double, double)>& exact) {
  double error = 0.0;
  double area = 0.0;
  for (std::size_t cell = 0; cell < run.areas.size(); ++cell) {
    const double expected = exact(run.centroid(cell).x, run.last().time).depth;
    error += run.areas[cell] * std::abs(run.depth(run.last(), cell) - expected);
    area += run.areas[cell];
  }
  return error / area;
}

/// Runs the dam break of an initial state on all meshes.
void expectConvergence(const std::string& initial, const std::function<Flow(double, double)>& exact,
                       const std::array<Resolution, 3>& resolutions) {
  double coarserError = 0.0;
  for (const Resolution& resolution : resolutions) {
    const support::TempDir dir;
    const Solution run = simulate(dir.path(), {.geometry = channel(resolution),
                                               .initial = initial,
                                               .end = TIME,
                                               .out = TIME,
                                               .minimumDepth = 1e-6});
    ASSERT_EQ(run.last().time, TIME);
    const double error = depthError(run, exact);
    EXPECT_LE(error, 1.05 * resolution.knownError) << resolution.along << " squares";
    if (coarserError > 0.0) {
      EXPECT_GE(std::log2(coarserError / error), 0.6) << resolution.along << " squares";
    }
    coarserError = error;
  }
}

TEST(DamBreak, ConvergesToRittersSolutionOnADryBed) {
  const Ritter exact(1.0, GRAVITY);
  expectConvergence(
      R"("water_level": "dry", "ZONES": [{"box": [-50.0, 0.0, 0.0, 4.0], "water_depth": 1.0}])",
      [&exact](double x, double t) { return exact.at(x, t); },
      {{{50, 2, 0.0146}, {100, 4, 0.008491}, {200, 8, 0.004917}}});
}

TEST(DamBreak, ConvergesToStokersSolutionInStillWater) {
  const Stoker exact(1.0, 0.1, GRAVITY);
  expectConvergence(
      R"("water_depth": 0.1, "ZONES": [{"box": [-50.0, 0.0, 0.0, 4.0], "water_depth": 1.0}])",
      [&exact](double x, double t) { return exact.at(x, t); },
      {{{50, 2, 0.01397}, {100, 4, 0.007949}, {200, 8, 0.00452}}});
}

}  // namespace
}  // namespace verification
