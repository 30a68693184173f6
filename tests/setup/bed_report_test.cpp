#include "setup/report.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "setup/MovingBed.h"

using ::testing::HasSubstr;
using ::testing::Not;

namespace {

class BedReport : public studies::MovingBed {
 protected:
  std::string reportOn(const std::string& material, const std::string& bedload,
                       const std::string& flow = "") const {
    return reportOn(folder.read(GEOMETRY, ROUGH_FLOW + flow, bed(material, bedload)));
  }

  static std::string reportOn(const setup::Study& study) {
    const setup::Domain domain = setup::buildDomain(study);
    ::testing::internal::CaptureStdout();
    setup::printBedReport(domain, study);
    return ::testing::internal::GetCapturedStdout();
  }
};

}  // namespace

TEST_F(BedReport, IsEmptyIfTheBedStays) {
  EXPECT_EQ(reportOn(folder.read(GEOMETRY, FLOW)), "");
}

TEST_F(BedReport, TellsTheFormula) {
  EXPECT_EQ(reportOn(GRAINS, MPM), " -> bed load: 8 sqrt(s g d^3) (t - 0.047)^1.5, times 1\n");
  EXPECT_EQ(reportOn(GRAINS, GRASS), " -> bed load: 0.001 (u - 0)^3, times 1\n");
  EXPECT_EQ(reportOn(GRAINS, R"("FORMULA": {"type": "power_law", "factor": 2})"),
            " -> bed load: 0.05 sqrt(s) q^2 / (g^2 d C^3 h^5), times 2\n");
}

TEST_F(BedReport, TellsWhatBecomesOfTheFactorsOfTheDirection) {
  const std::string report = reportOn(
      GRAINS, GRASS + R"(, "DIRECTION": {"IKEDA": {"factor": 0.5}, "CURVATURE": {"factor": 20}})");
  EXPECT_THAT(report, HasSubstr(" -> lateral slope: the factor 0.5 stands in the run file as "
                                "4.905, times gravity, as the stress there is g^2 times the "
                                "Shields parameter\n"));
  EXPECT_THAT(report, HasSubstr(" -> curvature: the factor 20 counts about 0.55 times the mesh "
                                "width; it must grow where the mesh is refined\n"));
}

TEST_F(BedReport, TellsOfTheFixedBed) {
  const auto fixed = [this](const std::string& zones) {
    return reportOn(GRAINS + R"(, "FIXED_BED": {"ZONES": [)" + zones + "]}", GRASS);
  };
  EXPECT_THAT(fixed(R"({"region": "all", "below_bed": 0})"), HasSubstr(" -> fixed bed: 8 cells\n"));
  EXPECT_THAT(fixed(R"({"box": [0, 0, 2, 4], "elevation": 1})"),
              HasSubstr(" -> fixed bed: 4 cells, in 4 of them at the bed, which lies below the "
                        "elevation of the study\n"));
}

TEST_F(BedReport, TellsOfStringsWhereOnlyWaterPasses) {
  const std::string flow = R"(, "BOUNDARY": [
      {"string": "west", "type": "inflow", "discharge": 1, "slope": 1},
      {"string": "east", "type": "free_outflow"}, {"string": "middle", "type": "inner_wall"}])";
  const std::string report = reportOn(
      GRAINS, GRASS + R"(, "BOUNDARY": [{"string": "east", "type": "capacity_outflow"}])", flow);
  EXPECT_THAT(report, HasSubstr(" -> string <west>: water passes, but no bed load, as "
                                "BEDLOAD/BOUNDARY has no entry for it\n"));
  EXPECT_THAT(report, Not(HasSubstr("string <east>")));
  EXPECT_THAT(report, Not(HasSubstr("string <middle>")));
  EXPECT_THAT(report, HasSubstr(" -> boundaries of the bed load: 1, on 2 edges; nothing passes "
                                "all others\n"));
}

TEST_F(BedReport, TellsOfBothStringsOfALink) {
  const std::string report = reportOn(GRAINS, GRASS, R"(, "BOUNDARY": [
      {"string": "west", "to": "east", "type": "linked_discharge", "discharge": 1}])");
  EXPECT_THAT(report, HasSubstr("string <west>: water passes, but no bed load"));
  EXPECT_THAT(report, HasSubstr("string <east>: water passes, but no bed load"));
}
