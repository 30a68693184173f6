#include "setup/report.h"

#include <gtest/gtest.h>

#include <memory>

#include "model/Factory.h"
#include "setup/meshes.h"
#include "setup/numbering.h"

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

std::string reportOn(const setup::Domain& domain) {
  const std::unique_ptr<api::IModel> model(
      model::Factory::getModelFromAggregates({model::AggregateID::hydraulics_aggr}, true));
  model->create();
  ::testing::internal::CaptureStdout();
  setup::printReport(*model, domain);
  return ::testing::internal::GetCapturedStdout();
}

}  // namespace

TEST(Report, waterVolumeIsThatOfTheWetCells) {
  EXPECT_EQ(setup::waterVolume(square()), 2.0);
}

TEST(Report, tellsOfMeshWaterAndModel) {
  EXPECT_EQ(reportOn(square()),
            " -> cells: 2, edges: 5 (on the boundary: 4), nodes: 4\n"
            " -> numbering: neighbours are 1 cells apart at most (as given: 9)\n"
            " -> area: 4 m2, shortest edge: 2 m, smallest cell size: 0.942809 m\n"
            " -> initial water volume: 2 m3\n"
            " -> aggregates: hydraulics_aggr\n");
}

TEST(Report, tellsWhatHadToBeChanged) {
  setup::Domain domain = square();
  domain.tidying = {3, 2};
  EXPECT_TRUE(
      reportOn(domain).starts_with(" -> turned 3 clockwise elements\n"
                                   " -> left out 2 nodes that no element uses\n"));
}
