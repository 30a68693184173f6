#include "simulation/kernels/morphology/source.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <string>
#include <type_traits>

#include "simulation/kernels/Notices.h"
#include "simulation/loops/descriptions.h"

static_assert(std::is_same_v<decltype(kernels::morphology::source), loops::MorSource::Body>);

namespace {

/// A cell with its bed at 2 m, its fixed bed at 1 m and 3 m of water; a time step of 0.5 s.
class MorSource : public ::testing::Test {
 protected:
  double dt = 0.5;
  double bed = 2.0;
  double fixedBed = 1.0;
  std::array<double, 3> state{5.0, 0.25, -0.75};
  int massKept = 1;
  std::string text;

  void run(int type, double rate) {
    const std::array<double, 2> data{1e9, rate};
    support::Notices notices;
    kernels::morphology::source(notices.diagnostics(), &dt, data.data(), &type, &bed, &fixedBed,
                                state.data(), &massKept);
    text = notices.text();
  }
};

class MorSourceType : public MorSource, public ::testing::WithParamInterface<int> {};

INSTANTIATE_TEST_SUITE_P(all, MorSourceType, ::testing::Values(30, 31, 32));

TEST_P(MorSourceType, AddsAPositiveAmountWithoutLimit) {
  run(GetParam(), 4.0);
  EXPECT_EQ(bed, 4.0);
  EXPECT_EQ(massKept, 1);
}

TEST_P(MorSourceType, LiftsTheWaterSurfaceWithTheBedAndKeepsTheDischarges) {
  run(GetParam(), 4.0);
  EXPECT_EQ(state, (std::array<double, 3>{7.0, 0.25, -0.75}));
}

TEST_P(MorSourceType, DoesNothingAtARateOfZero) {
  run(GetParam(), 0.0);
  EXPECT_EQ(bed, 2.0);
  EXPECT_EQ(state[0], 5.0);
}

TEST_P(MorSourceType, DoesNothingAtARateOfNegativeZero) {
  run(GetParam(), -0.0);
  EXPECT_EQ(bed, 2.0);
  EXPECT_EQ(state[0], 5.0);
}

TEST_F(MorSource, ExactRemovesTheWholeAmount) {
  run(30, -1.0);
  EXPECT_EQ(bed, 1.5);
  EXPECT_EQ(state[0], 4.5);
  EXPECT_EQ(massKept, 1);
  EXPECT_EQ(text, "");
}

TEST_F(MorSource, ExactReportsABedBelowTheFixedBed) {
  run(30, -4.0);
  EXPECT_EQ(bed, 0.0);
  EXPECT_EQ(state[0], 3.0);
  EXPECT_EQ(massKept, 0);
  EXPECT_EQ(text, "MASS BALANCE PROBLEM: z = 0 < zFix = 1\n");
}

TEST_F(MorSource, AvailableRemovesTheAmountThatIsThere) {
  run(31, -1.0);
  EXPECT_EQ(bed, 1.5);
  EXPECT_EQ(state[0], 4.5);
}

TEST_F(MorSource, AvailableStopsAtTheFixedBed) {
  run(31, -4.0);
  EXPECT_EQ(bed, 1.0);
  EXPECT_EQ(state[0], 4.0);
  EXPECT_EQ(massKept, 1);
}

TEST_F(MorSource, AvailableTakesNothingFromACellAtItsFixedBed) {
  bed = 1.0;
  run(31, -4.0);
  EXPECT_EQ(bed, 1.0);
  EXPECT_EQ(state[0], 5.0);
}

TEST_F(MorSource, AvailableLiftsACellFromBelowItsFixedBed) {
  bed = 0.75;
  run(31, -4.0);
  EXPECT_EQ(bed, 1.0);
  EXPECT_EQ(state[0], 5.25);
}

TEST_F(MorSource, InfinityLowersTheCellToTheFixedBedAtOnce) {
  run(32, -1e-30);
  EXPECT_EQ(bed, 1.0);
  EXPECT_EQ(state[0], 4.0);
  EXPECT_EQ(massKept, 1);
}

TEST_F(MorSource, InfinityStopsAtTheFixedBed) {
  run(32, -100.0);
  EXPECT_EQ(bed, 1.0);
  EXPECT_EQ(state[0], 4.0);
}

TEST_F(MorSource, UnknownTypesChangeNothing) {
  for (const int type : {0, 10, 12, 20, 29, 33}) {
    run(type, -4.0);
    EXPECT_EQ(bed, 2.0) << type;
    EXPECT_EQ(state[0], 5.0) << type;
  }
}

TEST_F(MorSource, UnknownTypesAreCheckedAllTheSame) {
  bed = 0.5;
  run(0, 0.0);
  EXPECT_EQ(massKept, 0);
  EXPECT_EQ(text, "MASS BALANCE PROBLEM: z = 0.5 < zFix = 1\n");
}

TEST_F(MorSource, ADifferenceOfExactlyTheToleranceIsNoDeficit) {
  bed = -1e-12;
  fixedBed = 0.0;
  run(30, 0.0);
  EXPECT_EQ(massKept, 1);
  EXPECT_EQ(text, "");
}

TEST_F(MorSource, ADifferenceJustBeyondTheToleranceIsADeficit) {
  bed = std::nextafter(-1e-12, -1.0);
  fixedBed = 0.0;
  run(30, 0.0);
  EXPECT_EQ(massKept, 0);
  EXPECT_EQ(text, "MASS BALANCE PROBLEM: z = -1e-12 < zFix = 0\n");
}

TEST_F(MorSource, TheVerdictIsThatOfTheLastCell) {
  run(30, -4.0);
  EXPECT_EQ(massKept, 0);
  bed = 2.0;
  run(30, 0.0);
  EXPECT_EQ(massKept, 1);
}

TEST_F(MorSource, SourcesOfOneCellAddUp) {
  run(30, 1.0);
  run(30, 0.5);
  EXPECT_EQ(bed, 2.75);
  EXPECT_EQ(state[0], 5.75);
}

}  // namespace
