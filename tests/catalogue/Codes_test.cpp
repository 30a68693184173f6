#include "catalogue/Codes.h"

#include <gmock/gmock.h>

#include <initializer_list>
#include <type_traits>
#include <vector>

namespace model {
namespace {

using testing::ElementsAre;

template <class Code>
std::vector<int> numbers(std::initializer_list<Code> codes) {
  static_assert(std::is_same_v<std::underlying_type_t<Code>, int>);
  std::vector<int> values;
  for (const Code code : codes) values.push_back(static_cast<int>(code));
  return values;
}

}  // namespace

TEST(Codes, OfBoundariesOfTheFlowAreThoseOfTheRunFile) {
  using enum HydBoundaryCode;
  EXPECT_THAT(numbers({InflowNormalDepth, InflowFroude, OutflowNormalDepth, OutflowWeir,
                       OutflowRatingCurve, OutflowDischarge, OutflowFree, WaterLevel}),
              ElementsAre(100, 102, 104, 106, 108, 110, 112, 114));
  EXPECT_THAT(numbers({InnerTransfer, InnerGate, InnerWall}), ElementsAre(216, 218, 220));
  EXPECT_THAT(numbers({LinkWeirInflow, LinkRatingCurveInflow, LinkDischargeInflow, LinkSwitchInflow,
                       LinkLevelInflow}),
              ElementsAre(322, 324, 326, 328, 330));
  EXPECT_THAT(numbers({LinkWeirOutflow, LinkRatingCurveOutflow, LinkDischargeOutflow,
                       LinkSwitchOutflow, LinkLevelOutflow}),
              ElementsAre(323, 325, 327, 329, 331));
}

TEST(Codes, OfBoundariesOfTheBedLoadAreThoseOfTheRunFile) {
  using enum MorBoundaryCode;
  EXPECT_THAT(numbers({LowestBed, HighestBed, Inflow, InflowByDepth, InflowByConveyance, Capacity,
                       CapacityByDepth, CapacityByConveyance}),
              ElementsAre(400, 402, 404, 406, 408, 410, 412, 414));
}

TEST(Codes, OfModificationsAndLookupsAreThoseOfTheRunFile) {
  using enum EdgeModificationCode;
  EXPECT_THAT(numbers({OverLength, OverSecondLength, WeirVelocity, OverWettedArea, OpenFromTime,
                       Switch, WettedAreaOverSecondLength, BedloadOverLength, BedloadOverWettedArea,
                       BedloadOverConveyance, CapacityOverLength, CapacityOverWettedArea,
                       CapacityOverConveyance, DischargeOverSecondLength}),
              ElementsAre(1, 2, 3, 4, 5, 8, 9, 10, 11, 12, 13, 14, 15, 16));
  EXPECT_THAT(
      numbers({CellModificationCode::OverRegionArea, CellModificationCode::MillimetresPerHour}),
      ElementsAre(6, 7));
  EXPECT_THAT(numbers({InterpolationKey::Time, InterpolationKey::Depth,
                       InterpolationKey::WaterLevel, InterpolationKey::Discharge}),
              ElementsAre(0, 1, 2, 3));
}

TEST(Codes, OfSinksTellTheirBehaviourByTheLastDigit) {
  using enum SinkCode;
  EXPECT_THAT(numbers({DischargeExact, RainExact, SedimentExact}), ElementsAre(10, 20, 30));
  EXPECT_THAT(numbers({DischargeAvailable, RainAvailable, SedimentAvailable}),
              ElementsAre(11, 21, 31));
  EXPECT_THAT(numbers({DischargeInfinity, RainInfinity, SedimentInfinity}),
              ElementsAre(12, 22, 32));
}

TEST(Codes, OfClosuresAndFormulasAreThoseOfTheRunFile) {
  EXPECT_THAT(numbers({FrictionCode::Manning, FrictionCode::Strickler, FrictionCode::SandRoughness,
                       FrictionCode::SandRoughnessShallow}),
              ElementsAre(1, 2, 3, 4));
  EXPECT_THAT(numbers({BedloadCode::MeyerPeterMueller, BedloadCode::Grass, BedloadCode::PowerLaw}),
              ElementsAre(1, 3, 4));
  EXPECT_THAT(numbers({SlopeCorrectionCode::VanRijn, SlopeCorrectionCode::Chen}),
              ElementsAre(1, 2));
}

}  // namespace model
