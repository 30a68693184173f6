#include "simulation/kernels/morphology/fixed_bed_correction_find_max.h"

#include <gtest/gtest.h>

#include <limits>
#include <type_traits>

#include "simulation/loops/descriptions.h"

static_assert(std::is_same_v<decltype(kernels::morphology::fixed_bed_correction_find_max),
                             loops::MorFixBedCorrectionMax::Body>);

namespace {

double largest(double fixedBed, double newBed, double start) {
  double deviation = start;
  kernels::morphology::fixed_bed_correction_find_max(&fixedBed, &newBed, &deviation);
  return deviation;
}

TEST(MorFixedBedCorrectionFindMax, TakesALargerDeviation) {
  EXPECT_EQ(largest(2.0, 1.5, 0.001), 0.5);
}

TEST(MorFixedBedCorrectionFindMax, KeepsALargerStart) {
  EXPECT_EQ(largest(2.0, 1.5, 0.75), 0.75);
}

TEST(MorFixedBedCorrectionFindMax, CountsABedAboveItsFixedBedAsZero) {
  EXPECT_EQ(largest(1.0, 3.0, 0.001), 0.001);
  EXPECT_EQ(largest(1.0, 3.0, -5.0), 0.0);
  EXPECT_EQ(largest(1.0, 1.0, -5.0), 0.0);
}

TEST(MorFixedBedCorrectionFindMax, DoesNotTakeANaN) {
  EXPECT_EQ(largest(std::numeric_limits<double>::quiet_NaN(), 1.0, 0.25), 0.25);
}

TEST(MorFixedBedCorrectionFindMax, RunsOverSeveralCells) {
  double deviation = 0.01;
  const double fixedBed = 1.0;
  for (const double newBed : {0.75, 0.25, 0.5}) {
    kernels::morphology::fixed_bed_correction_find_max(&fixedBed, &newBed, &deviation);
  }
  EXPECT_EQ(deviation, 0.75);
}

}  // namespace
