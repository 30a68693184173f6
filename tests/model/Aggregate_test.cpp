#include "model/Aggregate.h"

#include <gtest/gtest.h>

#include "model/reports.h"

namespace model {
namespace {

const Aggregate FLOOD(AggregateID::hyd_flood_aggr, "hyd_flood_aggr", "tracks floods");

TEST(Aggregate, TellsWhatItWasGiven) {
  EXPECT_EQ(FLOOD.getID(), AggregateID::hyd_flood_aggr);
  EXPECT_EQ(FLOOD.getName(), "hyd_flood_aggr");
  EXPECT_STREQ(FLOOD.getNameC(), "hyd_flood_aggr");
  EXPECT_EQ(FLOOD.getDescription(), "tracks floods");
}

TEST(Aggregate, HasNoSizeAndIsOnNoSide) {
  EXPECT_EQ(FLOOD.getSize(), 0);
  EXPECT_FALSE(FLOOD.isSimulationOnly());
  EXPECT_FALSE(FLOOD.isSetupOnly());
}

TEST(Aggregate, HasItsNameForAPath) {
  EXPECT_EQ(FLOOD.getH5Path(), "hyd_flood_aggr");
}

TEST(Aggregate, PrintsItsPath) {
  EXPECT_EQ(reports::outputOf([] { FLOOD.print(); }), "Aggregate: hyd_flood_aggr\n");
}

}  // namespace
}  // namespace model
