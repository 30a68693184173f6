#include "setup/report.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>

#include "model/Factory.h"
#include "setup/mesh/tidying.h"
#include "setup/meshes.h"

using ::testing::HasSubstr;
using ::testing::Not;

namespace {

setup::Domain square() {
  setup::Domain domain;
  domain.mesh = meshes::square();
  domain.topology = setup::findTopology(domain.mesh);
  domain.geometry = setup::measure(domain.mesh, domain.topology);
  domain.bed = {0.25, 0.5};
  domain.flow = {{1.25, 0.0, 0.0}, {0.5, 0.0, 0.0}};
  domain.bandwidthAsGiven = 9;
  domain.bandwidthAsNumbered = 1;
  return domain;
}

std::string reportOn(const setup::Domain& domain, const setup::Study& study = {}) {
  const std::unique_ptr<api::IModel> model(
      model::Factory::getModelFromAggregates({model::AggregateID::hydraulics_aggr}, true));
  model->create();
  ::testing::internal::CaptureStdout();
  setup::printReport(*model, domain, study);
  return ::testing::internal::GetCapturedStdout();
}

}  // namespace

TEST(Report, WaterVolumeIsThatOfTheWetCells) {
  EXPECT_EQ(setup::waterVolume(square()), 2.0);
}

TEST(Report, TellsOfMeshWaterAndModel) {
  EXPECT_EQ(reportOn(square()),
            " -> cells: 2, edges: 5 (on the boundary: 4), nodes: 4\n"
            " -> numbering: neighbours are 1 cells apart at most (as given: 9)\n"
            " -> area: 4 m2, shortest edge: 2 m, smallest cell size: 0.942809 m\n"
            " -> initial water volume: 2 m3\n"
            " -> aggregates: hydraulics_aggr\n");
}

TEST(Report, TellsWhatHadToBeChanged) {
  setup::Domain domain = square();
  domain.tidying = {3, 2};
  EXPECT_TRUE(
      reportOn(domain).starts_with(" -> turned 3 clockwise elements\n"
                                   " -> left out 2 nodes that no element uses\n"));
}

TEST(Report, TellsOfStringsAndBoundaries) {
  setup::Domain domain = square();
  domain.strings = {{"inlet", {0, 1}, {-1, -1}, {0, 0}, 4.0}};
  domain.boundaries.flow.edges = {0, 1};
  setup::Study study;
  study.boundaries.resize(1);
  EXPECT_THAT(reportOn(domain, study),
              HasSubstr(" -> string <inlet>: 2 edges, 4 m\n"
                        " -> boundaries: 1, on 2 edges; all other edges on the boundary are "
                        "walls\n"));
}

namespace {

/// The square without water, and rain of 36 mm/h on it.
setup::Domain dryAndRaining() {
  setup::Domain domain = square();
  domain.flow = {{0.25, 0.0, 0.0}, {0.5, 0.0, 0.0}};
  domain.sources.strongestRate = 1e-5;
  return domain;
}

}  // namespace

TEST(Report, ProposesATimeStepWhereRainFallsOnADryDomain) {
  setup::Study study;
  study.hydraulics.maximumTimeStep = 200.0;
  study.hydraulics.cfl = 0.5;
  study.hydraulics.minimumWaterDepth = 0.001;
  EXPECT_THAT(reportOn(dryAndRaining(), study),
              HasSubstr(" -> no cell is wet at the start: until one is, a step is "
                        "cfl * maximum_time_step = 100 s, in which the strongest source adds 0.001 "
                        "m of water; a maximum_time_step of about 100 s (minimum_water_depth over "
                        "its rate) would be right\n"));
}

TEST(Report, ProposesNoTimeStepWhereThatOfTheStudyIsRight) {
  setup::Study study;
  study.hydraulics.maximumTimeStep = 100.0;
  EXPECT_THAT(reportOn(dryAndRaining(), study), Not(HasSubstr("no cell is wet")));
}

TEST(Report, ProposesNoTimeStepWhereACellIsWet) {
  setup::Study study;
  study.hydraulics.maximumTimeStep = 1e6;
  setup::Domain domain = dryAndRaining();
  domain.flow[0][0] = 0.2511;
  EXPECT_THAT(reportOn(domain, study), Not(HasSubstr("no cell is wet")));
  domain.flow[0][0] = 0.2509;
  EXPECT_THAT(reportOn(domain, study), HasSubstr("no cell is wet"));
}

TEST(Report, ProposesNoTimeStepWhereSourcesOnlyTakeWaterAway) {
  setup::Study study;
  study.hydraulics.maximumTimeStep = 1e6;
  setup::Domain domain = dryAndRaining();
  domain.sources.strongestRate = 0.0;
  EXPECT_THAT(reportOn(domain, study), Not(HasSubstr("no cell is wet")));
}
