#include "export/results/origin.h"

#include <gmock/gmock.h>

#include "dataio/failures.h"
#include "export/SampleResults.h"

namespace {

using exporter::epsgOf;
using exporter::Results;
using exporter::titleOf;

class StudyFacts : public samples::SampleResults {};

TEST_F(StudyFacts, TitleIsTheNameOfTheStudy) {
  use("dam_dry");
  EXPECT_EQ(titleOf(Results(file)), "dam_dry");
}

TEST_F(StudyFacts, TitleIsTheNameOfTheFileWhereTheStudyHasNone) {
  use("dam_dry");
  setDomain("name", "");
  EXPECT_EQ(titleOf(Results(file)), "run_results.h5");
}

TEST_F(StudyFacts, ReferenceSystemIsACode) {
  use("dam_dry");
  EXPECT_EQ(epsgOf(Results(file)), 0);
  setDomain("crs", "EPSG:2056");
  EXPECT_EQ(epsgOf(Results(file)), 2056);
}

TEST_F(StudyFacts, RefusesAReferenceSystemWithoutACode) {
  use("dam_dry");
  for (const std::string crs :
       {"WGS 84", "EPSG:", "EPSG:x", "EPSG:1x", "EPSG:-1", "EPSG:99999999999"}) {
    setDomain("crs", crs);
    const Results results(file);
    EXPECT_EQ(failures::reportOf([&] { epsgOf(results); }),
              " -> the study names the coordinate reference system <" + crs +
                  ">, which is no code such as EPSG:2056\n");
  }
}

class StringNames : public samples::SampleResults {};

TEST_F(StringNames, AreThoseOfTheStudy) {
  use("full_model");
  EXPECT_THAT(exporter::stringNamesOf(Results(file)),
              ::testing::ElementsAre("west", "east", "middle"));
}

TEST_F(StringNames, AreNumbersWhereTheStudyHasNone) {
  use("full_model");
  remove("NodeStrg/StrNames");
  EXPECT_THAT(exporter::stringNamesOf(Results(file)),
              ::testing::ElementsAre("nodestring 1", "nodestring 2", "nodestring 3"));
}

TEST_F(StringNames, AreNoneWithoutOutputsOnThem) {
  use("full_model");
  setOutputs(R"("water_depth")");
  EXPECT_THAT(exporter::stringNamesOf(Results(file)), ::testing::IsEmpty());
}

}  // namespace
