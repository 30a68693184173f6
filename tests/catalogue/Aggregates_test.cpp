#include "catalogue/Aggregates.h"

#include <gmock/gmock.h>

#include <algorithm>

#include "catalogue/keys.h"

namespace model {
namespace {

using catalogue::keysOf;
using testing::ElementsAre;

TEST(Aggregates, HaveAPropertyADescriptionAndPathsEach) {
  EXPECT_EQ(AggregateProps.size(), 12U);
  EXPECT_EQ(keysOf(AggregateDescription), keysOf(AggregateProps));
  EXPECT_EQ(keysOf(Aggregate2CmdFilePaths), keysOf(AggregateProps));
}

TEST(Aggregates, HaveNeitherSizeNorType) {
  for (const auto& [id, property] : AggregateProps) {
    EXPECT_EQ(property.size, 0) << property.name;
    EXPECT_EQ(property.type, DataType::None) << property.name;
  }
}

TEST(Aggregates, AreWalkedInNumericOrder) {
  const auto ids = keysOf(Aggregate2CmdFilePaths);
  EXPECT_TRUE(std::is_sorted(ids.begin(), ids.end()));
  const auto slope = std::find(ids.begin(), ids.end(), AggregateID::mor_local_bed_slope);
  ASSERT_NE(slope, ids.end());
  EXPECT_EQ(*(slope + 1), AggregateID::hyd_friction_aggr);
}

TEST(Aggregates, NeedABoundaryAndItsStrings) {
  EXPECT_THAT(Aggregate2CmdFilePaths.at(AggregateID::mor_boundary_aggr),
              ElementsAre("SETUP/DOMAIN/RHEOPLANE_2D/MORPHOLOGY/BEDLOAD/BOUNDARY",
                          "SETUP/DOMAIN/RHEOPLANE_2D/GEOMETRY/STRINGDEF"));
}

TEST(Aggregates, TellWhatTheyAreFor) {
  EXPECT_EQ(AggregateDescription.at(AggregateID::hydraulics_aggr),
            "This Aggregate is the basis and is required for all simulations. A circular dam break "
            "simulation is possible,        invoking DT calculation, flux calculation of type "
            "'WALL' and 'SWE', and cell update.");
}

}  // namespace
}  // namespace model
