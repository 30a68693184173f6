// What the moving bed of a study does in a run.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "support/H5Compare.h"
#include "support/Process.h"
#include "support/TempDir.h"

using ::testing::AllOf;
using ::testing::DoubleNear;
using ::testing::Each;
using ::testing::Ge;
using ::testing::HasSubstr;
using ::testing::Le;

namespace {

const std::string GRAINS = R"("grain_size": 0.002)";
const std::string MPM = R"("FORMULA": {"type": "meyer_peter_mueller_1948"})";
const std::string GRASS = R"("FORMULA": {"type": "grass_1981", "coefficient": 0.001})";

constexpr std::size_t WEST = 0;
constexpr std::size_t EAST = 1;
constexpr std::size_t MIDDLE = 2;

/// 1/(1 - porosity) with the default.
constexpr double BULK = 1.0 / 0.6;

/// A flume of 20 m by 4 m, in which water of 1 m depth flows with 1 m/s for 2 s. All cells have
/// 0.5 m2.
class MovableFlume : public ::testing::Test {
 protected:
  static std::string bed(const std::string& material, const std::string& bedload,
                         const std::string& further = "") {
    return R"("MORPHOLOGY": {"BEDMATERIAL": {)" + material + R"(}, "BEDLOAD": {)" + bedload + "}" +
           (further.empty() ? "" : ", " + further) + "}";
  }

  /// @param geometry further groups of it
  void setUp(const std::string& morphology, const std::string& geometry = "") {
    const std::string study = R"({"SETUP": {"DOMAIN": {"RHEOPLANE_2D": {"GEOMETRY": {
        "RECTANGLE": {"length": 20, "width": 4, "cells": [20, 4]},
        "REGIONDEF": [{"index": 1, "name": "flume"}],
        "STRINGDEF": [{"name": "west", "from": [0, 0], "to": [0, 4]},
                      {"name": "east", "from": [20, 4], "to": [20, 0]},
                      {"name": "middle", "from": [10, 4], "to": [10, 0], "reverse": true}])" +
                              geometry + R"(},
      "HYDRAULICS": {"FRICTION": {"type": "manning", "value": 0.02},
        "INITIAL": {"water_level": 1, "velocity": [1, 0]},
        "BOUNDARY": [{"string": "west", "type": "inflow", "discharge": 4, "slope": 1e-3},
                     {"string": "east", "type": "level", "level": 1}]}, )" +
                              morphology + "}}}}";
    support::writeFile(dir.file("study.json"), study);
    support::writeFile(dir.file("command.json"),
                       R"({"SIMULATION": {"TIME": {"start": 0, "end": 2, "out": 2},
                           "OUTPUT": ["ns_mor_discharge", "bottom_elevation"]}})");
    const auto setup = support::runIn(dir.path(), SETUP_EXE, {"-f", "study.json"});
    ASSERT_EQ(setup.status, 0) << setup.err;
  }

  support::Outcome simulate() const {
    return support::runIn(dir.path(), SIMULATION_EXE,
                          {"-f", "command.json", "-r", "run.h5", "-o", "results.h5"});
  }

  void run(const std::string& morphology, const std::string& geometry = "") {
    setUp(morphology, geometry);
    const auto simulation = simulate();
    ASSERT_EQ(simulation.status, 0) << simulation.err;
  }

  void runBoundary(const std::string& boundary, const std::string& bedload = MPM) {
    run(bed(GRAINS, bedload + R"(, "BOUNDARY": [)" + boundary + "]"));
  }

  std::vector<double> numbers(const std::string& path) const {
    return support::readNumbers(dir.file("results_results.h5"), "RESULTS/" + path);
  }

  /// A state of a string in the last step.
  double state(std::size_t string, std::size_t component) const {
    return numbers("NodeStrg/StateVar/0000001").at(10 * string + component);
  }

  double bedload(std::size_t string) const { return state(string, 8); }
  double capacity(std::size_t string) const { return state(string, 9); }

  /// Per cell [m].
  std::vector<double> rise() const {
    std::vector<double> change = numbers("CellsAll/BottomEl/0000001");
    const std::vector<double> atStart = numbers("CellsAll/BottomEl/0000000");
    for (std::size_t cell = 0; cell < change.size(); ++cell) change[cell] -= atStart[cell];
    return change;
  }

  double deepest() const {
    const std::vector<double> change = rise();
    return *std::min_element(change.begin(), change.end());
  }

  /// Bed, with its pores, that has come into the flume [m3].
  double gain() const {
    double sum = 0.0;
    for (const double change : rise()) sum += 0.5 * change;
    return sum;
  }

  const support::TempDir dir;
};

}  // namespace

TEST_F(MovableFlume, TheBedLoadIsThatOfItsFormula) {
  const auto phi = [](double A, double B, double critical, double shields) {
    return A * std::sqrt(1.65 * 9.81 * std::pow(0.002, 3)) * std::pow(shields - critical, B);
  };
  const auto shields = [](double u, double C2) { return u * u / (C2 * 1.65 * 9.81 * 0.002); };
  const auto check = [this](const std::string& formula, const auto& rate) {
    run(bed(GRAINS, R"("FORMULA": {)" + formula + "}"));
    const double h = state(MIDDLE, 2) / 4.0;
    const double u = state(MIDDLE, 1) / state(MIDDLE, 2);
    const double C2 = std::cbrt(h) / (9.81 * 0.02 * 0.02);
    const double expected = 4.0 * rate(u, h, C2);
    EXPECT_NEAR(capacity(MIDDLE), expected, 0.02 * expected) << formula;
    EXPECT_NEAR(bedload(MIDDLE), capacity(MIDDLE), 0.02 * expected) << formula;
  };
  check(R"("type": "meyer_peter_mueller_1948")",
        [&](double u, double, double C2) { return phi(8.0, 1.5, 0.047, shields(u, C2)); });
  check(R"("type": "wong_parker_2006_power_1_6")",
        [&](double u, double, double C2) { return phi(4.93, 1.6, 0.047, shields(u, C2)); });
  check(R"("type": "mpm", "coefficient": 6, "exponent": 2, "critical_shields": 0.01)",
        [&](double u, double, double C2) { return phi(6.0, 2.0, 0.01, shields(u, C2)); });
  check(R"("type": "grass_1981", "coefficient": 0.001, "critical_velocity": 0.2)",
        [](double u, double, double) { return 0.001 * std::pow(u - 0.2, 3); });
  check(R"("type": "engelund_hansen_1967", "chezy": 16)",
        [&](double u, double, double) { return phi(0.05 * 256.0, 2.5, 0.0, shields(u, 256.0)); });
  check(R"("type": "power_law")", [](double u, double h, double C2) {
    return 0.05 * std::sqrt(1.65) * u * u / (9.81 * 9.81 * 0.002 * std::pow(C2, 1.5) * h * h * h);
  });
}

TEST_F(MovableFlume, TheFactorCountsInTheFluxes) {
  run(bed(GRAINS, R"("FORMULA": {"type": "meyer_peter_mueller_1948", "factor": 3})"));
  EXPECT_NEAR(bedload(MIDDLE), 3.0 * capacity(MIDDLE), 0.05 * bedload(MIDDLE));
}

TEST_F(MovableFlume, AClosedBedKeepsItsVolume) {
  run(bed(GRAINS, MPM));
  EXPECT_NEAR(gain(), 0.0, 1e-14);
  EXPECT_LT(deepest(), -1e-5);
}

TEST_F(MovableFlume, GivenAmountsPassWhateverTheFactorOfTheFormula) {
  const std::string formula = R"("FORMULA": {"type": "meyer_peter_mueller_1948", "factor": 0.5})";
  for (const std::string weight : {"", "_by_depth", "_by_conveyance"}) {
    runBoundary(R"({"string": "west", "type": "inflow)" + weight + R"(", "discharge": 0.003})",
                formula);
    EXPECT_NEAR(bedload(WEST), 0.003, 1e-6) << weight;
    EXPECT_NEAR(gain(), 0.006 * BULK, 1e-5) << weight;
    runBoundary(R"({"string": "east", "type": "outflow)" + weight + R"(", "discharge": 0.003})",
                formula);
    EXPECT_NEAR(bedload(EAST), 0.003, 1e-6) << weight;
    EXPECT_NEAR(gain(), -0.006 * BULK, 1e-5) << weight;
  }
}

TEST_F(MovableFlume, CapacitiesPassWithTheirShareAndTheFactor) {
  const std::string formula = R"("FORMULA": {"type": "meyer_peter_mueller_1948", "factor": 2})";
  for (const std::string weight : {"", "_by_depth", "_by_conveyance"}) {
    runBoundary(R"({"string": "west", "type": "capacity_inflow)" + weight + R"(", "share": 0.8})",
                formula);
    EXPECT_NEAR(bedload(WEST), 1.6 * capacity(WEST), 0.05 * bedload(WEST)) << weight;
    EXPECT_GT(gain(), 1e-4) << weight;
    runBoundary(R"({"string": "east", "type": "capacity_outflow)" + weight + R"("})", formula);
    EXPECT_NEAR(bedload(EAST), 2.0 * capacity(EAST), 0.05 * bedload(EAST)) << weight;
    EXPECT_LT(gain(), -1e-4) << weight;
  }
}

TEST_F(MovableFlume, ASeriesOfSedimentIsFollowed) {
  support::writeFile(dir.file("qs.txt"), "0, 0\n8, 0.008\n");
  runBoundary(R"({"string": "west", "type": "inflow", "discharge_file": "qs.txt",
                  "over": "discharge"})");
  EXPECT_NEAR(bedload(WEST), 0.004, 1e-5);
  runBoundary(R"({"string": "west", "type": "inflow", "discharge_file": "qs.txt"})");
  EXPECT_NEAR(gain(), 0.002 * BULK, 2e-4);
}

TEST_F(MovableFlume, AHeldBedIsAtItsElevation) {
  runBoundary(R"({"string": "east", "type": "lowest_bed", "elevation": 0.05})");
  EXPECT_NEAR(state(EAST, 4), 0.05, 1e-3);
  EXPECT_GT(gain(), 0.05);
  runBoundary(R"({"string": "east", "type": "highest_bed", "elevation": -0.05})");
  EXPECT_NEAR(state(EAST, 3), -0.05, 1e-3);
  EXPECT_LT(gain(), -0.05);
}

TEST_F(MovableFlume, TheBedMovesFromItsStartOn) {
  run(bed(GRAINS, MPM, R"("PARAMETER": {"start": 10})"));
  EXPECT_THAT(rise(), Each(0.0));
  EXPECT_EQ(bedload(MIDDLE), 0.0);
}

TEST_F(MovableFlume, CoarserGrainsMoveLess) {
  run(bed(GRAINS + R"(, "ZONES": [{"box": [9, 0, 20, 4], "grain_size": 0.02}])", MPM));
  EXPECT_GT(capacity(WEST), 1e-4);
  EXPECT_EQ(capacity(EAST), 0.0);
}

TEST_F(MovableFlume, AFixedBedIsNotEroded) {
  const std::string outlet = GRASS + R"(, "BOUNDARY": [
      {"string": "east", "type": "outflow", "discharge": 0.05}])";
  const auto fixed = [&](const std::string& keys) {
    return bed(GRAINS + R"(, "FIXED_BED": {"ZONES": [{"region": "flume", )" + keys + "}]}", outlet);
  };
  run(bed(GRAINS, outlet));
  EXPECT_LT(deepest(), -0.01);
  run(fixed(R"("below_bed": 0.002)"));
  EXPECT_NEAR(deepest(), -0.002, 1e-6);
  run(fixed(R"("elevation": 0.5)"));
  EXPECT_NEAR(deepest(), 0.0, 1e-6);
}

TEST_F(MovableFlume, SourcesRaiseAndLowerTheBedAtTheirRate) {
  const std::string still = R"("FORMULA": {"type": "grass_1981", "coefficient": 1e-9})";
  const std::string bottom =
      R"(, "FIXED_BED": {"ZONES": [{"region": "flume", "below_bed": 0.001}]})";
  const auto rises = [&](const std::string& source, const std::string& fixed = "") {
    run(bed(GRAINS + fixed, still, R"("SOURCE": [{"region": "flume", )" + source + "}]"));
    return rise();
  };
  EXPECT_THAT(rises(R"("type": "rise", "rate": 3600)"), Each(DoubleNear(0.002, 1e-7)));
  EXPECT_THAT(rises(R"("type": "discharge", "discharge": 0.08)"), Each(DoubleNear(0.002, 1e-7)));
  EXPECT_THAT(rises(R"("type": "rise", "rate": -3600)"), Each(DoubleNear(-0.002, 1e-7)));
  EXPECT_THAT(rises(R"("type": "rise", "rate": -3600)", bottom), Each(DoubleNear(-0.001, 1e-7)));
  EXPECT_THAT(rises(R"("type": "rise", "rate": -0.001, "sink": "infinity")", bottom),
              Each(DoubleNear(-0.001, 1e-7)));
}

TEST_F(MovableFlume, ASinkThatTakesItsAmountInAnyCaseEndsTheRunAtTheFixedBed) {
  setUp(bed(GRAINS + R"(, "FIXED_BED": {"ZONES": [{"region": "flume", "below_bed": 0}]})", GRASS,
            R"("SOURCE": [{"region": "flume", "type": "rise", "rate": -3600, "sink": "exact"}])"));
  const support::Outcome outcome = simulate();
  EXPECT_EQ(outcome.status, 1);
  EXPECT_THAT(outcome.err, HasSubstr("SEDIMENT MASS not conserved"));
}

TEST_F(MovableFlume, TheLateralSlopeTurnsTheBedLoadDownslope) {
  const std::string tilted = R"(, "BED": [{"region": "flume", "elevation": 0,
                                           "gradient": [0, 0.02], "at": [0, 2]}])";
  const auto shiftToTheSouth = [&](const std::string& direction) {
    run(bed(GRAINS, MPM + direction), tilted);
    const std::vector<double> beds = numbers("CellsAll/BottomEl/0000000");
    const std::vector<double> change = rise();
    double shift = 0.0;
    for (std::size_t cell = 0; cell < beds.size(); ++cell) {
      if (beds[cell] < 0.0) shift += 0.5 * change[cell];
    }
    return shift;
  };
  const double without = shiftToTheSouth("");
  const double with = shiftToTheSouth(R"(, "DIRECTION": {"IKEDA": {"factor": 0.5}})");
  // Over 20 m of the middle line and 2 s: qb times tan = 0.5 slope / sqrt(t).
  const double qb = capacity(MIDDLE) / 4.0;
  const double shields = 9.81 * 0.02 * 0.02 / (1.65 * 9.81 * 0.002);
  const double expected = 20.0 * 2.0 * qb * 0.5 * 0.02 / std::sqrt(shields) * BULK;
  EXPECT_NEAR(with - without, expected, 0.2 * expected);
}

TEST_F(MovableFlume, AllCorrectionsRunTogether) {
  for (const std::string type : {"van_rijn_1989", "chen_2010"}) {
    run(bed(GRAINS + R"(, "FIXED_BED": {"ZONES": [{"region": "flume", "below_bed": 0.1}]})",
            MPM + R"(, "DIRECTION": {"IKEDA": {"factor": 0.5}, "CURVATURE": {"factor": 20}},
                    "BOUNDARY": [{"string": "west", "type": "capacity_inflow"},
                                 {"string": "east", "type": "capacity_outflow"}])",
            R"("INCIPIENT_MOTION": {"type": ")" + type + R"(", "angle_of_repose": 35},
               "SOURCE": [{"region": "flume", "type": "rise", "rate": 1}])"),
        R"(, "BED": [{"box": [5, 1, 8, 3], "raise": 0.05}])");
    EXPECT_THAT(rise(), Each(AllOf(Ge(-0.1), Le(0.1)))) << type;
    EXPECT_GT(bedload(MIDDLE), 1e-4) << type;
  }
}
