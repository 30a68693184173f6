#include "simulation/kernels/morphology/fixed_bed_correction.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <limits>
#include <string>
#include <type_traits>

#include "simulation/kernels/Notices.h"
#include "simulation/kernels/RunParameters.h"
#include "simulation/loops/descriptions.h"

static_assert(std::is_same_v<decltype(kernels::morphology::fixed_bed_correction),
                             loops::MorFixBedCorrection::Body>);

namespace {

using Fluxes = std::array<double, 3>;

/// A cell of 2 m2 with edges of 1 m, a bed at 1 m and a time step of 1 s.
class MorFixedBedCorrection : public support::Parameters {
 protected:
  double dt = 1.0;
  double area = 2.0;
  double bed = 1.0;
  double fixedBed = 0.5;
  std::array<int, 3> sign{1, 1, 1};
  std::array<double, 3> length{1.0, 1.0, 1.0};
  double newBed = 99.0;
  Fluxes flux{};

  /// @return what the correction has to tell
  std::string correct(const int* cell = nullptr) {
    support::Notices notices;
    const std::array<const double*, 3> lengths{&length[0], &length[1], &length[2]};
    const std::array<double*, 3> fluxes{&flux[0], &flux[1], &flux[2]};
    kernels::morphology::fixed_bed_correction(par(), notices.diagnostics(), cell, &dt, &area, &bed,
                                              &fixedBed, sign.data(), lengths.data(), &newBed,
                                              fluxes.data());
    return notices.text();
  }
};

TEST_F(MorFixedBedCorrection, LeavesTheFluxesAloneWithoutAnOverdraft) {
  flux = {0.5, 0.25, -0.5};
  correct();
  EXPECT_EQ(newBed, 0.875);
  EXPECT_EQ(flux, (Fluxes{0.5, 0.25, -0.5}));
}

TEST_F(MorFixedBedCorrection, LeavesTheFluxesAloneIfTheOutflowIsExactlyTheRoom) {
  flux = {0.5, 0.5, 0.0};
  correct();
  EXPECT_EQ(newBed, 0.5);
  EXPECT_EQ(flux, (Fluxes{0.5, 0.5, 0.0}));
}

TEST_F(MorFixedBedCorrection, ScalesTheOutflowDownToTheRoom) {
  flux = {1.0, 1.0, 0.0};  // digs 1 m where 0.5 m may go
  correct();
  EXPECT_EQ(flux, (Fluxes{0.5, 0.5, 0.0}));
}

TEST_F(MorFixedBedCorrection, ReportsTheNewBedFromBeforeTheCorrection) {
  flux = {1.0, 1.0, 0.0};
  correct();
  EXPECT_EQ(newBed, 0.0);
  correct();
  EXPECT_EQ(newBed, 0.5);
}

TEST_F(MorFixedBedCorrection, TakesFluxesAgainstNegativeSignsAsOutflow) {
  sign = {-1, 1, -1};
  flux = {-1.0, 1.0, 0.25};  // the third comes in
  correct();
  // net 1.75, z' 0.125, overdraft 0.375, outflow 2: f = 1 - 0.375 / 1
  EXPECT_EQ(newBed, 0.125);
  EXPECT_EQ(flux, (Fluxes{-0.625, 0.625, 0.25}));
}

TEST_F(MorFixedBedCorrection, LetsAnInflowPreventTheOverdraft) {
  flux = {1.5, -1.0, 0.0};
  correct();
  EXPECT_EQ(newBed, 0.75);
  EXPECT_EQ(flux, (Fluxes{1.5, -1.0, 0.0}));
}

TEST_F(MorFixedBedCorrection, WeighsTheFluxesByTheLengths) {
  length = {2.0, 4.0, 1.0};
  flux = {0.5, 0.25, 0.0};
  correct();
  EXPECT_EQ(newBed, 0.0);
  EXPECT_EQ(flux, (Fluxes{0.25, 0.125, 0.0}));
}

TEST_F(MorFixedBedCorrection, CountsAnEdgeWithoutSignInNeitherDirection) {
  sign = {1, 0, 0};
  flux = {2.0, 5.0, -5.0};
  correct();
  EXPECT_EQ(newBed, 0.0);
  EXPECT_EQ(flux, (Fluxes{1.0, 5.0, -5.0}));
}

TEST_F(MorFixedBedCorrection, StopsAllOutflowOfACellTooFarBelow) {
  fixedBed = 3.0;
  flux = {1.0, 0.5, -0.25};
  correct();
  EXPECT_EQ(flux, (Fluxes{0.0, 0.0, -0.25}));
}

TEST_F(MorFixedBedCorrection, ChangesNothingBelowTheFixedBedWithoutOutflow) {
  fixedBed = 3.0;
  flux = {-1.0, 0.0, -0.25};
  correct();
  EXPECT_EQ(newBed, 1.625);
  EXPECT_EQ(flux, (Fluxes{-1.0, 0.0, -0.25}));
}

TEST_F(MorFixedBedCorrection, NeverEnlargesAnOutflow) {
  length = {-1.0, 1.0, 1.0};  // a negative outflow: 1 - 1.5 / -0.5 is 4
  fixedBed = 3.0;
  flux = {1.0, 0.0, 0.0};
  correct();
  EXPECT_EQ(newBed, 1.5);
  EXPECT_EQ(flux, (Fluxes{1.0, 0.0, 0.0}));
}

TEST_F(MorFixedBedCorrection, PassesOverANaN) {
  flux = {std::numeric_limits<double>::quiet_NaN(), 2.0, 0.0};
  correct();
  EXPECT_TRUE(std::isnan(newBed));
  EXPECT_TRUE(std::isnan(flux[0]));
  EXPECT_EQ(flux[1], 2.0);
}

TEST_F(MorFixedBedCorrection, RoundsInTheOrderOfItsSums) {
  dt = 0.7;
  area = 1.2;
  fixedBed = 0.98;
  sign = {1, -1, 1};
  length = {1.1, 1.8, 1.8};
  flux = {0.17, -0.26, -0.03};
  correct();
  EXPECT_EQ(newBed, 0.64941666666666664);
  EXPECT_EQ(flux, (Fluxes{0.02291384950926937, -0.03504471101417668, -0.03}));
}

TEST_F(MorFixedBedCorrection, LetsTheSecondCellOfAnEdgeSeeTheCorrectedFlux) {
  flux = {2.0, 0.0, 0.0};
  correct();  // this cell lets only half of it out
  EXPECT_EQ(flux[0], 1.0);
  sign = {-1, 1, 1};
  flux[1] = 2.0;
  correct();  // the neighbour gets 1, loses 2 and has room for that
  EXPECT_EQ(newBed, 0.5);
  EXPECT_EQ(flux, (Fluxes{1.0, 2.0, 0.0}));
}

TEST_F(MorFixedBedCorrection, NamesTheCellInDebugMode) {
  G_Debug = 1;
  const int cell = 17;
  flux = {1.0, 1.0, 0.0};
  EXPECT_EQ(correct(&cell), "overdraft in cell 17 by dz = 0.500000 [m]\n");
}

TEST_F(MorFixedBedCorrection, IsSilentInDebugModeWithoutAnOverdraft) {
  G_Debug = 1;
  const int cell = 17;
  flux = {0.5, 0.5, 0.0};
  EXPECT_EQ(correct(&cell), "");
}

TEST_F(MorFixedBedCorrection, IsSilentOutsideDebugMode) {
  flux = {1.0, 1.0, 0.0};
  EXPECT_EQ(correct(nullptr), "");
}

}  // namespace
