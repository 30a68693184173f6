#include "simulation/kernels/data/edge_modification.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <cstddef>
#include <type_traits>

#include "simulation/kernels/RunParameters.h"
#include "simulation/loops/descriptions.h"

static_assert(
    std::is_same_v<decltype(kernels::data::edge_modification), loops::EdgeDataModification::Body>);

namespace {

using model::MISSING_VALUE;

class EdgeModification : public support::Parameters {
 protected:
  using Record = std::array<double, 7>;

  EdgeModification() {
    set(ParameterID::Gravity, 8.0);
    set(ParameterID::MinWaterDepth, 0.25);
  }

  /// Runs the modification with the given write and read positions.
  void modify(int type, int write = 0, std::array<int, 5> read = {1, 2, 3, 4, 5}) {
    const std::array<int, 7> info{type, write, read[0], read[1], read[2], read[3], read[4]};
    std::array<double, 10> other{};
    other.fill(std::nan(""));
    kernels::data::edge_modification(par(), info.data(), string.data(), other.data(), &length,
                                     &lengthOther, &time, memory.data(), record.data());
  }

  double result(int type) {
    record[0] = -1.0;
    modify(type);
    return record[0];
  }

  //                               H     Q     A     z    zmin  Lw   V    K     Qs   Cap
  std::array<double, 10> string{10.0, 32.0, 16.0, 6.0, 4.0, 3.0, 5.0, 64.0, 7.0, 24.0};
  double length = 8.0;
  double lengthOther = 2.0;
  double time = 100.0;
  std::array<double, 2> memory{0.0, 0.0};
  Record record{-1.0, 12.0, 0.0, 0.0, 0.0, 0.0, 0.0};
};

TEST_F(EdgeModification, SpreadsATotalOverTheLength) {
  EXPECT_EQ(result(1), 1.5);
  EXPECT_EQ(result(10), 1.5);
}

TEST_F(EdgeModification, SpreadsATotalOverTheLengthOfTheOther) {
  EXPECT_EQ(result(2), 6.0);
}

TEST_F(EdgeModification, SpreadsATotalOverTheWettedArea) {
  EXPECT_EQ(result(4), 0.75);
  EXPECT_EQ(result(11), 0.75);
}

TEST_F(EdgeModification, SpreadsATotalOverTheConveyance) {
  EXPECT_EQ(result(12), 0.1875);
}

TEST_F(EdgeModification, SpreadsStatesOfTheString) {
  EXPECT_EQ(result(9), 8.0);     // A / L of the other
  EXPECT_EQ(result(13), 3.0);    // capacity / L
  EXPECT_EQ(result(14), 1.5);    // capacity / A
  EXPECT_EQ(result(15), 0.375);  // capacity / K
  EXPECT_EQ(result(16), 16.0);   // Q / L of the other
}

TEST_F(EdgeModification, DivisorsThatAreNotPositiveGiveZero) {
  record[1] = 12.0;
  for (const double divisor : {0.0, 9e-13, -1.0}) {
    length = divisor;
    lengthOther = divisor;
    string[2] = divisor;
    string[7] = divisor;
    for (const int type : {1, 2, 4, 9, 10, 11, 12, 13, 14, 15, 16}) {
      EXPECT_EQ(result(type), 0.0) << "type " << type << ", divisor " << divisor;
    }
  }
}

TEST_F(EdgeModification, TheSmallestDivisorThatCountsIsDividedBy) {
  length = 1e-12;
  EXPECT_DOUBLE_EQ(result(1), 12e12);
}

TEST_F(EdgeModification, MultipliesByTheInverse) {
  length = 49.0;
  record[1] = 5.0;
  EXPECT_EQ(result(1), 5.0 * (1.0 / 49.0));
  EXPECT_NE(result(1), 5.0 / 49.0);
}

TEST_F(EdgeModification, Type5OpensOnlyAfterItsTime) {
  record[1] = 99.0;
  EXPECT_EQ(result(5), 1.0);
  record[1] = 100.0;
  EXPECT_EQ(result(5), -1.0);
  record[1] = 101.0;
  EXPECT_EQ(result(5), -1.0);
}

TEST_F(EdgeModification, OtherTypesChangeNothing) {
  const Record before = record;
  for (const int type : {-1, 0, 6, 7, 17, 18, 100}) {
    modify(type, -1, {-1, -1, -1, -1, -1});
    EXPECT_EQ(record, before) << type;
    EXPECT_EQ(memory, (std::array<double, 2>{0.0, 0.0})) << type;
  }
}

TEST_F(EdgeModification, WritesOnlyAtItsPosition) {
  record = {1.0, 2.0, 3.0, 4.0, 5.0, 6.0, 16.0};
  modify(1, 4, {6, -1, -1, -1, -1});
  EXPECT_EQ(record, (Record{1.0, 2.0, 3.0, 4.0, 2.0, 6.0, 16.0}));
}

TEST_F(EdgeModification, MayReadWhereItWrites) {
  record[3] = 16.0;
  modify(1, 3, {3, -1, -1, -1, -1});
  EXPECT_EQ(record[3], 2.0);
}

class Weir : public EdgeModification {
 protected:
  /// Crest [m] at position 1, coefficients at 2 and 3.
  void weir(double crest, double a, double b) { record = {-1.0, crest, a, b, 0.0, 0.0, 0.0}; }
};

TEST_F(Weir, GivesTheSpecificDischarge) {
  // Head 4, height 2: Cd = 2/3 (0.25 * 4 / 2 + 1) = 1; sqrt(2 * 8 * 4^3) = 32; 32 * 8 / 16.
  string[4] = 4.0;
  weir(6.0, 1.0, 0.25);
  EXPECT_DOUBLE_EQ(result(3), 16.0);
}

TEST_F(Weir, KeepsTheOrderOfItsOperations) {
  set(ParameterID::Gravity, 9.81);
  string[0] = 10.3;
  string[4] = 3.4;
  string[2] = 19.5;
  length = 5.5;
  weir(7.0, 0.7, 0.051);
  const volatile double head = 10.3 - 7.0;
  volatile double Cd = 0.051 * head;
  Cd = Cd * (1.0 / (7.0 - 3.4));
  Cd = Cd + 0.7;
  Cd = 0.6666666666666666 * Cd;
  volatile double root = 2.0 * 9.81 * head;
  root = root * head;
  root = root * head;
  volatile double Q = Cd * std::sqrt(root);
  Q = Q * 5.5;
  EXPECT_EQ(result(3), Q * (1.0 / 19.5));
}

TEST_F(Weir, ReadsItsValuesWhereItIsTold) {
  record = {0.25, 0.0, 0.0, 6.0, 0.0, 0.0, 1.0};
  modify(3, 5, {3, 6, 0, -1, -1});
  EXPECT_DOUBLE_EQ(record[5], 16.0);
}

TEST_F(Weir, FlowsFromAHeadOfTheMinimumDepthOn) {
  weir(9.75, 1.0, 0.0);
  EXPECT_GT(result(3), 0.0);
  string[0] = std::nextafter(10.0, 0.0);
  EXPECT_EQ(result(3), 0.0);
}

TEST_F(Weir, IsZeroAtADryString) {
  string[0] = MISSING_VALUE;
  weir(6.0, 1.0, 0.25);
  EXPECT_EQ(result(3), 0.0);
}

TEST_F(Weir, WithItsCrestOnTheBedTakesTheFirstCoefficientAlone) {
  string[4] = 6.0;
  weir(6.0, 1.5, 1e9);
  EXPECT_DOUBLE_EQ(result(3), 16.0);
}

TEST_F(Weir, BelowTheBedCountsItsHeightAsNegative) {
  // Height -2: Cd = 2/3 (-0.25 * 4 / 2 + 2) = 1.
  string[4] = 8.0;
  weir(6.0, 2.0, 0.25);
  EXPECT_DOUBLE_EQ(result(3), 16.0);
}

TEST_F(Weir, WithoutWettedAreaIsZero) {
  string[2] = 0.0;
  weir(6.0, 1.0, 0.25);
  EXPECT_EQ(result(3), 0.0);
}

class Switch : public EdgeModification {
 protected:
  Switch() {
    string[2] = 4.0;
    //        out   on    off   level off  delay  level on
    record = {-1.0, 20.0, 8.0, 10.0, 30.0, 6.0, 0.0};
  }

  /// The output at a water surface; 5 is on, 2 is off.
  double at(double level, double now) {
    string[0] = level;
    time = now;
    return result(8);
  }

  static constexpr double ON = 5.0;
  static constexpr double OFF = 2.0;
  static constexpr std::size_t DELAY = 4;
  static constexpr std::size_t LEVEL_ON = 5;
};

TEST_F(Switch, IsOnAtTheStart) {
  EXPECT_EQ(at(9.0, 0.0), ON);
  EXPECT_EQ(memory, (std::array<double, 2>{0.0, 1e12}));
}

TEST_F(Switch, SwitchesOffAfterTheDelay) {
  at(9.0, 0.0);
  EXPECT_EQ(at(11.0, 10.0), ON);
  EXPECT_EQ(memory[1], 40.0);
  EXPECT_EQ(at(11.0, 25.0), ON);
  EXPECT_EQ(memory[1], 40.0);
  EXPECT_EQ(at(11.0, 40.0), ON);
  EXPECT_EQ(at(11.0, 40.5), OFF);
  EXPECT_EQ(memory, (std::array<double, 2>{-1.0, 1e12}));
}

TEST_F(Switch, ForgetsTheDelayWhenTheWaterFalls) {
  at(9.0, 0.0);
  at(11.0, 10.0);
  EXPECT_EQ(at(9.5, 20.0), ON);
  EXPECT_EQ(memory[1], 1e12);
  EXPECT_EQ(at(11.0, 45.0), ON);
  EXPECT_EQ(memory[1], 75.0);
}

TEST_F(Switch, ReachesTheLevelAtTheVeryLevel) {
  at(9.0, 0.0);
  EXPECT_EQ(at(std::nextafter(10.0, 0.0), 10.0), ON);
  EXPECT_EQ(memory[1], 1e12);
  EXPECT_EQ(at(10.0, 10.0), ON);
  EXPECT_EQ(memory[1], 40.0);
}

TEST_F(Switch, WithoutDelaySwitchesOffAtOnce) {
  record[DELAY] = 0.0;
  at(9.0, 0.0);
  EXPECT_EQ(at(10.0, 10.0), OFF);
  EXPECT_EQ(memory[0], -1.0);
}

TEST_F(Switch, AboveTheLevelFromTheStartGoesOffAfterTheFirstStep) {
  EXPECT_EQ(at(11.0, 0.0), ON);
  EXPECT_EQ(memory[1], 0.0);
  EXPECT_EQ(at(11.0, 0.5), OFF);
}

TEST_F(Switch, AboveTheLevelAfterTimeZeroStartsOff) {
  EXPECT_EQ(at(11.0, 0.5), OFF);
}

TEST_F(Switch, GoesOnAgainAtTheLowerLevel) {
  memory = {-1.0, 1e12};
  EXPECT_EQ(at(8.0, 0.0), OFF);
  EXPECT_EQ(at(std::nextafter(6.0, 7.0), 1.0), OFF);
  EXPECT_EQ(memory[0], -1.0);
  EXPECT_EQ(at(6.0, 2.0), ON);
  EXPECT_EQ(memory, (std::array<double, 2>{1.0, 1e12}));
  EXPECT_EQ(at(8.0, 3.0), ON);
}

TEST_F(Switch, StaysOffForEverWithoutALevel) {
  memory = {-1.0, 1e12};
  record[LEVEL_ON] = MISSING_VALUE;
  EXPECT_EQ(at(-100.0, 0.0), OFF);
  EXPECT_EQ(at(MISSING_VALUE, 1.0), OFF);
  EXPECT_EQ(memory[0], -1.0);
}

TEST_F(Switch, DoesNotGoOnInTheStepInWhichItGoesOff) {
  record[DELAY] = 0.0;
  record[LEVEL_ON] = 20.0;
  at(9.0, 0.0);
  EXPECT_EQ(at(11.0, 1.0), OFF);
  EXPECT_EQ(at(11.0, 2.0), ON);
}

TEST_F(Switch, WithoutWettedAreaGivesZero) {
  string[2] = 0.0;
  EXPECT_EQ(at(9.0, 0.0), 0.0);
  EXPECT_EQ(memory[1], 1e12);
}

TEST_F(Switch, WritesOnlyAtItsPosition) {
  Record expected = record;
  expected[6] = ON;
  string[0] = 9.0;
  modify(8, 6);
  EXPECT_EQ(record, expected);
}

}  // namespace
