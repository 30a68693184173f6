#include "setup/study/bed_material.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "setup/MovingBed.h"

using ::testing::Each;
using ::testing::IsEmpty;

namespace {

class BedMaterial : public studies::MovingBed {
 protected:
  setup::Domain build(const std::string& material) const {
    return folder.build(GEOMETRY, FLOW, bed(material, GRASS));
  }

  std::string refusalOf(const std::string& material) const {
    return folder.refusalOf(GEOMETRY, FLOW, bed(material, GRASS));
  }
};

}  // namespace

TEST_F(BedMaterial, HasSensibleDefaults) {
  const setup::Study study = folder.read(GEOMETRY, FLOW, bed(R"("grain_size": 0.01)", GRASS));
  const setup::BedMaterial& material = study.morphology.value().material;
  EXPECT_EQ(material.porosity, 0.4);
  EXPECT_EQ(material.density, 2650.0);
  EXPECT_EQ(material.waterDensity, 1000.0);
  EXPECT_EQ(material.grainSize, 0.01);
}

TEST_F(BedMaterial, GrainsAreTheSameEverywhereIfNoZoneSaysOtherwise) {
  EXPECT_THAT(build(R"("grain_size": 0.01)").grainSizes, Each(0.01));
}

TEST_F(BedMaterial, LaterZonesReplaceEarlierOnes) {
  const setup::Domain domain = build(R"("grain_size": 0.01, "ZONES": [
      {"box": [0, 0, 4, 4], "grain_size": 0.02}, {"box": [2, 0, 4, 4], "grain_size": 0.03}])");
  for (std::size_t cell = 0; cell < domain.mesh.cells.size(); ++cell) {
    const double x = domain.geometry.centroid(cell)[0];
    EXPECT_EQ(domain.grainSizes[cell], x < 2.0 ? 0.02 : 0.03);
  }
}

TEST_F(BedMaterial, IsNotThereIfTheBedStays) {
  EXPECT_THAT(folder.build(GEOMETRY, FLOW).grainSizes, IsEmpty());
}

TEST_F(BedMaterial, RefusesGrainsThatFloat) {
  EXPECT_EQ(refusalOf(R"("density": 1000)"),
            "<" + MATERIAL +
                "> must hold a density above that of the water, 1000 kg/m3, but it is "
                "1000");
}

TEST_F(BedMaterial, RefusesZonesWithoutASizeOutsideOfThem) {
  EXPECT_EQ(refusalOf(R"("ZONES": [{"box": [0, 0, 4, 4], "grain_size": 0.02}])"),
            "<" + MATERIAL + "> must hold a grain_size for the cells outside of its zones");
}

TEST_F(BedMaterial, RefusesZonesThatAreNowhere) {
  EXPECT_EQ(refusalOf(R"("grain_size": 1, "ZONES": [{"box": [8, 8, 9, 9], "grain_size": 1}])"),
            "<" + MATERIAL + "/ZONES/0> holds no cell of the mesh");
}
