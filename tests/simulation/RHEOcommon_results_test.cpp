#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "simulation/Driver.h"
#include "support/H5Compare.h"

namespace {

using ::testing::Contains;
using ::testing::HasSubstr;

class TrackedData : public support::Driven {
 protected:
  TrackedData() : Driven("full_model") {}
};

TEST_F(TrackedData, AreInTheFileAsSoonAsTheRunTellsOfItsEnd) {
  setTimes(R"("start": 0, "end": 0, "out": 1)");
  EXPECT_THAT(run(), HasSubstr(" -> simulation finished!"));
  EXPECT_THAT(support::datasetPaths(resultFile), Contains("RESULTS/CellsAll/FloodVar/0000000"));
}

}  // namespace
