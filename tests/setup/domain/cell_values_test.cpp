#include "setup/domain/cell_values.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "setup/meshes.h"

using ::testing::DoubleEq;
using ::testing::ElementsAre;

namespace {

/// The square of two cells, the second of material 2; centroids (4/3, 2/3) and (2/3, 4/3).
class InitialState : public ::testing::Test {
 protected:
  InitialState() {
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

  std::vector<std::array<double, 3>> flow() const {
    return setup::initialFlow(study, mesh, geometry, {0.3, 0.5});
  }

  setup::Mesh mesh = meshes::square();
  setup::Geometry geometry;
  setup::Study study;
};

}  // namespace

TEST_F(InitialState, BedIsTheMeanOfTheNodes) {
  EXPECT_THAT(setup::cellBeds(study, mesh, geometry), ElementsAre(DoubleEq(0.3), DoubleEq(0.5)));
}

TEST_F(InitialState, ABedZoneIsAPlane) {
  study.bed.push_back({region(2), 2.0, {3.0, 6.0}, {0.0, 1.0}, 0.0});
  EXPECT_THAT(setup::cellBeds(study, mesh, geometry), ElementsAre(DoubleEq(0.3), DoubleEq(6.0)));
}

TEST_F(InitialState, ALaterBedZoneGoesOverAnEarlierOne) {
  study.bed.push_back({box(0, 0, 2, 2), 2.0, {}, {}, 0.0});
  study.bed.push_back({region(2), {}, {}, {}, 0.5});
  EXPECT_THAT(setup::cellBeds(study, mesh, geometry), ElementsAre(2.0, 2.5));
}

TEST_F(InitialState, WithoutWaterTheSurfaceIsTheBed) {
  EXPECT_THAT(flow(), ElementsAre(ElementsAre(0.3, 0.0, 0.0), ElementsAre(0.5, 0.0, 0.0)));
}

TEST_F(InitialState, CellsAreDryWhereTheLevelIsNotAboveTheBed) {
  study.water = {0.4, {}, {2.0, 1.0}};
  EXPECT_THAT(flow(), ElementsAre(ElementsAre(0.4, DoubleEq(0.2), DoubleEq(0.1)),
                                  ElementsAre(0.5, 0.0, 0.0)));
}

TEST_F(InitialState, ALevelThatIsTheBedLeavesTheCellDry) {
  study.water = {0.3, {}, {2.0, 1.0}};
  EXPECT_THAT(flow()[0], ElementsAre(0.3, 0.0, 0.0));
}

TEST_F(InitialState, ADepthFollowsTheBed) {
  study.water = {{}, 0.5, {}};
  EXPECT_THAT(flow(), ElementsAre(ElementsAre(0.8, 0.0, 0.0), ElementsAre(1.0, 0.0, 0.0)));
}

TEST_F(InitialState, ALayerBelowTheMinimumDepthDoesNotMove) {
  study.hydraulics.minimumWaterDepth = 0.5;
  study.water = {{}, 0.5, {2.0, 1.0}};
  EXPECT_THAT(flow()[0], ElementsAre(0.8, 0.0, 0.0));
}

TEST_F(InitialState, ALaterZoneReplacesAnEarlierOne) {
  study.water = {1.0, {}, {1.0, 1.0}};
  study.waterZones.push_back({box(0, 0, 2, 2), {2.0, {}, {}}});
  study.waterZones.push_back({region(2), {}});
  EXPECT_THAT(flow(), ElementsAre(ElementsAre(2.0, 0.0, 0.0), ElementsAre(0.5, 0.0, 0.0)));
}
