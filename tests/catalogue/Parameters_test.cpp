#include "catalogue/Parameters.h"

#include <gmock/gmock.h>

#include <set>
#include <stdexcept>

#include "catalogue/keys.h"

namespace model {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(Parameters, HaveAPropertyAndADescriptionEach) {
  EXPECT_EQ(ParameterProps.size(), 27U);
  EXPECT_EQ(catalogue::keysOf(ParameterDescription), catalogue::keysOf(ParameterProps));
}

TEST(Parameters, LeaveTheSecondSlotOfBedloadIntsFree) {
  EXPECT_EQ(ParameterProps.at(ParameterID::BedloadInts).size, 2);
  EXPECT_EQ(ParameterProps.count(static_cast<ParameterID>(20)), 0U);
  EXPECT_THROW(ParameterProps.at(static_cast<ParameterID>(20)), std::out_of_range);
}

TEST(Parameters, FillEachSlotOnceAndNoneBeyondTwentyEight) {
  std::set<int> slots;
  for (const auto& [id, property] : ParameterProps) {
    for (int i = 0; i < property.size; ++i) {
      EXPECT_TRUE(slots.insert(static_cast<int>(id) + i).second) << property.name;
    }
  }
  EXPECT_EQ(*slots.begin(), 0);
  EXPECT_EQ(*slots.rbegin(), 27);
}

TEST(Parameters, NameTheBedloadTypeAsRunFilesDo) {
  EXPECT_EQ(ParameterProps.at(ParameterID::BeadloadType).name, "BeadloadType");
}

TEST(Parameters, ListWhatTheSimulationDerives) {
  EXPECT_THAT(ParameterSimulation, ElementsAre(ParameterID::InvGravity, ParameterID::InvBedPorosity,
                                               ParameterID::SedRelDensity));
  EXPECT_THAT(ParameterSetup, IsEmpty());
}

}  // namespace
}  // namespace model
