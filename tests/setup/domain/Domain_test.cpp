#include "setup/domain/Domain.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "setup/faults.h"
#include "setup/mesh/made_meshes.h"
#include "support/Process.h"
#include "support/TempDir.h"

using ::testing::ElementsAre;

namespace {

setup::RectangleMesh basin() {
  setup::RectangleMesh rectangle;
  rectangle.length = 40.0;
  rectangle.width = 10.0;
  rectangle.cells = {40, 10};
  return rectangle;
}

}  // namespace

TEST(Domain, IsBuiltFromAFile) {
  const support::TempDir dir;
  support::writeFile(dir.file("m.2dm"),
                     "MESH2D\nND 1 0 0 1\nND 2 1 0 1\nND 3 0 1 1\nND 4 9 9 9\nE3T 1 1 3 2 1\n");
  setup::Study study;
  study.mesh = setup::MeshFile{dir.file("m.2dm")};
  study.water.level = 3.0;
  const setup::Domain domain = setup::buildDomain(study);
  EXPECT_EQ(domain.tidying.turnedCells, 1);
  EXPECT_EQ(domain.tidying.unusedNodes, 1);
  EXPECT_THAT(domain.geometry.areas, ElementsAre(0.5));
  EXPECT_THAT(domain.bed, ElementsAre(1.0));
  EXPECT_THAT(domain.flow, ElementsAre(ElementsAre(3.0, 0.0, 0.0)));
}

TEST(Domain, IsBuiltFromARectangleAndNumberedAcrossIt) {
  setup::Study study;
  study.mesh = basin();
  const setup::Domain domain = setup::buildDomain(study);
  EXPECT_EQ(domain.mesh.cells.size(), 800U);
  EXPECT_EQ(domain.bed.size(), 800U);
  EXPECT_GE(domain.bandwidthAsGiven, 79);
  EXPECT_LT(domain.bandwidthAsNumbered, 30);
}

TEST(Domain, IsBuiltFromAChannel) {
  setup::Study study;
  setup::ChannelMesh channel;
  channel.length = 20.0;
  channel.bedWidth = 4.0;
  channel.cells = {10, 2, 1};
  study.mesh = channel;
  EXPECT_EQ(setup::buildDomain(study).mesh.cells.size(), 40U);
}

TEST(Domain, StateBelongsToTheCellsAsNumbered) {
  setup::Study study;
  study.mesh = basin();
  study.waterZones.push_back({{"ZONES[0]", {}, std::array{0.0, 0.0, 20.0, 10.0}}, {2.0, {}, {}}});
  const setup::Domain domain = setup::buildDomain(study);
  for (std::size_t cell = 0; cell < domain.flow.size(); ++cell) {
    EXPECT_EQ(domain.flow[cell][0] > 0.0, domain.geometry.centroid(cell)[0] < 20.0);
  }
}
