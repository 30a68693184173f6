#include "setup/domain/areas.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "setup/faults.h"
#include "setup/meshes.h"

using ::testing::DoubleEq;
using ::testing::ElementsAre;

namespace {

/// The square of two cells, the second of material 2; centroids (4/3, 2/3) and (2/3, 4/3).
class Areas : public ::testing::Test {
 protected:
  Areas() {
    mesh.cells[1].material = 2;
    geometry = setup::measure(mesh, setup::findTopology(mesh));
    study.file = "s.json";
  }

  static setup::Area box(double xMin, double yMin, double xMax, double yMax) {
    setup::Area area;
    area.path = "ZONES[0]";
    area.box = {xMin, yMin, xMax, yMax};
    return area;
  }

  static setup::Area region(int material) {
    setup::Area area;
    area.path = "ZONES[0]";
    area.region = setup::Region{material, "r"};
    return area;
  }

  std::vector<int> cellsOf(const setup::Area& area) const {
    return setup::cellsOf(area, study, mesh, geometry);
  }

  setup::Mesh mesh = meshes::square();
  setup::Geometry geometry;
  setup::Study study;
};

}  // namespace

TEST_F(Areas, HoldTheCellsWithTheirCentroidInTheBox) {
  EXPECT_THAT(cellsOf(box(0, 0, 2, 2)), ElementsAre(0, 1));
  EXPECT_THAT(cellsOf(box(1, 0, 2, 1)), ElementsAre(0));
}

TEST_F(Areas, HoldTheCellsOfTheRegion) {
  EXPECT_THAT(cellsOf(region(2)), ElementsAre(1));
}

TEST_F(Areas, HoldTheCellsThatAreInBoxAndRegion) {
  setup::Area area = box(0, 0, 2, 2);
  area.region = setup::Region{1, "r"};
  EXPECT_THAT(cellsOf(area), ElementsAre(0));
}

TEST_F(Areas, AreRefusedWithoutACell) {
  EXPECT_EQ(faults::messageOf([this] { cellsOf(box(5, 5, 6, 6)); }),
            "study file <s.json>: <ZONES[0]> holds no cell of the mesh");
}

TEST_F(Areas, AreRefusedInARegionThatTheMeshDoesNotHave) {
  EXPECT_EQ(faults::messageOf([this] { cellsOf(region(7)); }),
            "study file <s.json>: region <r> has the index 7, but the mesh has the materials 1, 2");
}

TEST_F(Areas, OfRegionsAreThoseOfTheirCells) {
  study.regions = {{2, "r"}, {7, "nowhere"}};
  EXPECT_THAT(setup::regionAreas(study, mesh, geometry), ElementsAre(DoubleEq(2.0), 0.0));
}
