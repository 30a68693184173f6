#include "export/stringNames.h"

#include <gmock/gmock.h>

#include "export/SampleResults.h"

namespace {

using exporter::Results;
using exporter::stringNamesOf;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class StringNames : public samples::SampleResults {};

TEST_F(StringNames, AreThoseOfTheStudy) {
  use("full_model");
  EXPECT_THAT(stringNamesOf(Results(file)), ElementsAre("west", "east", "middle"));
}

TEST_F(StringNames, AreNumbersWhereTheStudyHasNone) {
  use("full_model");
  remove("NodeStrg/StrNames");
  EXPECT_THAT(stringNamesOf(Results(file)),
              ElementsAre("nodestring 1", "nodestring 2", "nodestring 3"));
}

TEST_F(StringNames, AreNoneWithoutOutputsOnThem) {
  use("full_model");
  setOutputs(R"("water_depth")");
  EXPECT_THAT(stringNamesOf(Results(file)), IsEmpty());
}

}  // namespace
