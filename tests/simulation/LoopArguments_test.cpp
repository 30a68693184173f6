#include "simulation/LoopArguments.h"

#include <gtest/gtest.h>

#include <string>

#include "common/BaseException.h"
#include "simulation/loops/descriptions.h"

namespace {

using model::DataID;
using model::KernelID;
using model::MapID;
using model::SetID;

static_assert(simulation::globalOrdinal<loops::Update, 1>() == 0);
static_assert(simulation::globalOrdinal<loops::Update, 2>() == 1);
static_assert(simulation::globalOrdinal<loops::Update, 11>() == 2);
static_assert(simulation::globalOrdinal<loops::NodeStringStateCalc, 1>() == 1);
static_assert(simulation::globalOrdinal<loops::TimeStepCalculation, 8>() == 0);

template <class Action>
std::string reportOf(Action&& action) {
  ::testing::internal::CaptureStderr();
  EXPECT_THROW(action(), BaseException);
  return ::testing::internal::GetCapturedStderr();
}

TEST(LoopArguments, AnAbsentDatumIsNamedTogetherWithItsKernel) {
  EXPECT_EQ(reportOf([] {
              simulation::requireDat(nullptr, DataID::CellsAll_GeomArea, KernelID::Update);
            }),
            " -> kernel <Update> needs the data <CellsAll/GeomArea>, which this run does not have: "
            "the run file must hold it\n");
}

TEST(LoopArguments, AnAbsentMapIsNamedTogetherWithItsKernel) {
  EXPECT_EQ(reportOf([] {
              simulation::requireMap(nullptr, MapID::EdgesSWE_CellsAll,
                                     KernelID::HydInternalFluxes);
            }),
            " -> kernel <HydInternalFluxes> needs the map <EdgesSWE/CellsAll>, which this run does "
            "not have: the run file must hold it\n");
}

TEST(LoopArguments, AbsentElementNumbersAreNamedByTheirSet) {
  EXPECT_EQ(
      reportOf([] { simulation::requireDat(nullptr, SetID::CellsAll, KernelID::Update); }),
      " -> kernel <Update> needs the element numbers of <CellsAll>, which this run does not have: "
      "the run file must hold it\n");
}

TEST(LoopArguments, WhatIsThereIsAccepted) {
  op_dat_core dat{};
  op_map_core map{};
  EXPECT_NO_THROW(simulation::requireDat(&dat, DataID::HydState, KernelID::Update));
  EXPECT_NO_THROW(simulation::requireDat(&dat, SetID::CellsAll, KernelID::Update));
  EXPECT_NO_THROW(simulation::requireMap(&map, MapID::CellsAll_EdgesAll, KernelID::Update));
}

}  // namespace
