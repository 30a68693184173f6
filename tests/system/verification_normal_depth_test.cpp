// Does a river run at the depth that its roughness asks for?
//
// In a long channel of even slope the bed holds the water back as hard as its weight pulls it down.
// The depth at which it does is the normal depth; each law of roughness gives its own:
//
//   u / u* = K(h),  u* = sqrt(g h S),  q = u h,
//
//   V. T. Chow: Open-Channel Hydraulics. McGraw-Hill, New York, 1959, chapters 5 and 6.
//   G. H. Keulegan: Laws of turbulent flow in open channels. Journal of Research of the National
//   Bureau of Standards 21, 1938, 707-741.
//   G. R. Bezzola: Fliesswiderstand und Sohlenstabilitaet natuerlicher Gerinne. Dissertation, ETH
//   Zuerich, 2002.
//
// To expect: in the steady state, through each string, the discharge that comes in, to rounding.
// The depth comes nearer to the normal depth in the first order of the width of the cells. So does
// the discharge that is stored in the cells, which is not that of the fluxes: the bed falls in
// steps from cell to cell, and the upwinding of the Riemann solver makes of a step S dx of the
// depth a flux of (1 - Fr^2) / (2 Fr) S dx / h of the discharge. The known errors are those that
// the solver had when the test was written: it may get better, but not worse.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <functional>
#include <ostream>
#include <sstream>
#include <string>

#include "support/TempDir.h"
#include "system/verification/Solution.h"

namespace verification {
namespace {

constexpr double LENGTH = 20.0;    ///< [m]
constexpr double WIDTH = 2.0;      ///< [m]
constexpr double SLOPE = 0.005;    ///< [-]
constexpr double DISCHARGE = 1.0;  ///< per metre of width [m2/s]

struct Closure {
  std::string name;                     ///< of the test
  std::string type;                     ///< in the study
  double value;                         ///< roughness, in the unit of the closure
  std::function<double(double)> speed;  ///< u / u* at a depth [m]
  std::array<double, 3> knownErrors;    ///< of the depth [m], from mesh to mesh
};

void PrintTo(const Closure& closure, std::ostream* stream) {
  *stream << closure.name;
}

double normalDepth(const Closure& closure) {
  double low = 0.01;
  double high = 10.0;
  for (int k = 0; k < 100; ++k) {
    const double depth = 0.5 * (low + high);
    const double discharge = closure.speed(depth) * std::sqrt(GRAVITY * depth * SLOPE) * depth;
    (discharge < DISCHARGE ? low : high) = depth;
  }
  return low;
}

std::string channel(int across) {
  std::ostringstream text;
  text << R"("RECTANGLE": {"length": )" << LENGTH << R"(, "width": )" << WIDTH << R"(, "slope": )"
       << SLOPE << R"(, "cells": [)" << 10 * across << ", " << across << R"(]},
      "STRINGDEF": [{"name": "inlet", "from": [0, 0], "to": [0, 2]},
                    {"name": "middle", "from": [10, 0], "to": [10, 2]},
                    {"name": "outlet", "from": [20, 0], "to": [20, 2]}])";
  return text.str();
}

std::string initialFlow(double depth) {
  std::ostringstream text;
  text << R"("water_depth": )" << depth << R"(, "velocity": [)" << DISCHARGE / depth << ", 0]";
  return text.str();
}

std::string frictionAndBoundaries(const Closure& closure) {
  std::ostringstream text;
  text << R"("FRICTION": {"type": ")" << closure.type << R"(", "value": )" << closure.value << R"(},
      "BOUNDARY": [{"string": "inlet", "type": "inflow", "discharge": )"
       << DISCHARGE * WIDTH << R"(, "slope": )" << SLOPE << R"(},
                   {"string": "outlet", "type": "normal_depth", "slope": )"
       << SLOPE << "}]";
  return text.str();
}

/// Mean absolute error of the depth [m].
double depthError(const Solution& run, double normal) {
  double error = 0.0;
  double area = 0.0;
  for (std::size_t cell = 0; cell < run.areas.size(); ++cell) {
    error += run.areas[cell] * std::abs(run.depth(run.last(), cell) - normal);
    area += run.areas[cell];
  }
  return error / area;
}

/// Largest error of the discharge that is stored in a cell, as part of the discharge.
double storedDischargeError(const Solution& run) {
  double error = 0.0;
  for (const double qx : run.last().dischargeX) {
    error = std::max(error, std::abs(qx / DISCHARGE - 1.0));
  }
  return error;
}

class NormalDepth : public ::testing::TestWithParam<Closure> {};

TEST_P(NormalDepth, IsThatOfTheClosure) {
  const double normal = normalDepth(GetParam());
  const double froude = DISCHARGE / (normal * std::sqrt(GRAVITY * normal));
  double coarserError = 0.0;
  for (const int refinement : {0, 1, 2}) {
    const int across = 1 << refinement;
    SCOPED_TRACE(across);
    const support::TempDir dir;
    const Solution run = simulate(dir.path(), {.geometry = channel(across),
                                               .initial = initialFlow(normal),
                                               .processes = frictionAndBoundaries(GetParam()),
                                               .end = 200.0,
                                               .out = 100.0});
    ASSERT_EQ(run.last().throughStrings.size(), 3U);
    for (const double discharge : run.last().throughStrings) {
      EXPECT_NEAR(discharge, DISCHARGE * WIDTH, 1e-9 * DISCHARGE * WIDTH);
    }
    const double error = depthError(run, normal);
    EXPECT_LE(error, 1.05 * GetParam().knownErrors.at(static_cast<std::size_t>(refinement)));
    if (refinement > 0) {
      EXPECT_GE(std::log2(coarserError / error), 0.7);
    }
    coarserError = error;

    const double step = SLOPE * WIDTH / across;
    EXPECT_LE(storedDischargeError(run), (1.0 - froude * froude) / froude * step / normal);
  }
}

using Errors = std::array<double, 3>;

/// @param k Strickler's value [m^(1/3)/s]; Manning's is its inverse
Closure powerLaw(const std::string& name, const std::string& type, double value, double k,
                 const Errors& knownErrors) {
  return {name, type, value,
          [k](double depth) { return k * std::pow(depth, 1.0 / 6.0) / std::sqrt(GRAVITY); },
          knownErrors};
}

Closure logarithmic(const std::string& name, double ks, const Errors& knownErrors) {
  return {name, "sand_roughness", ks,
          [ks](double depth) { return 5.75 * std::log10(12.0 * depth / ks); }, knownErrors};
}

/// For depths of half the roughness and more.
double roughLayerSpeed(double ks, double depth) {
  const double y = depth / ks;
  const double profile = std::log(10.9 * y);
  return y > 2.0 ? 2.5 * std::sqrt(1.0 - 1.0 / y) * profile : 1.25 * std::sqrt(y) * profile;
}

Closure roughLayer(const std::string& name, double ks, const Errors& knownErrors) {
  return {name, "sand_roughness_shallow", ks,
          [ks](double depth) { return roughLayerSpeed(ks, depth); }, knownErrors};
}

const std::array CLOSURES{
    powerLaw("Manning", "manning", 0.03, 1.0 / 0.03, {1.220e-3, 4.922e-4, 2.110e-4}),
    powerLaw("Strickler", "strickler", 33.0, 33.0, {1.207e-3, 4.868e-4, 2.088e-4}),
    logarithmic("SandRoughness", 0.1, {1.417e-3, 5.690e-4, 2.452e-4}),
    roughLayer("RoughLayerInDeepFlow", 0.2, {1.498e-3, 5.337e-4, 2.704e-4}),
    roughLayer("RoughLayerInShallowFlow", 0.5, {2.767e-3, 1.132e-3, 6.066e-4})};

std::string nameOf(const ::testing::TestParamInfo<Closure>& closure) {
  return closure.param.name;
}

INSTANTIATE_TEST_SUITE_P(Of, NormalDepth, ::testing::ValuesIn(CLOSURES), nameOf);

}  // namespace
}  // namespace verification
