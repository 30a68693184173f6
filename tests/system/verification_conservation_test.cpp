// Does water get lost or come into being?
//
// What leaves a cell over an edge must enter the neighbour, also where the water advances over dry
// ground and where it withdraws: no depth may be cut off or filled up. Each volume moves by
// rounding errors only, whatever the flow.
//
//   R. J. LeVeque: Finite Volume Methods for Hyperbolic Problems. Cambridge University Press, 2002,
//   sections 4.1 and 13.2.
//
// To expect: a volume that is constant to 1e-13 of itself and no depth below zero by more than the
// rounding of the surface, for a CFL number of 0.5.
#include <gtest/gtest.h>

#include <cmath>

#include "support/Process.h"
#include "support/TempDir.h"
#include "system/verification/Solution.h"
#include "system/verification/TriangleMesh.h"

namespace verification {
namespace {

/// A reservoir (material 2) above a rough plain with two hills, and a pond at its far end.
TriangleMesh reservoirAndPlain() {
  Random random(2);
  TriangleMesh mesh = irregularMesh({40.0, 20.0}, {40, 20}, random);
  for (Node& node : mesh.nodes) {
    const double toHill = std::hypot(node.x - 22.0, node.y - 8.0);
    const double toHighHill = std::hypot(node.x - 30.0, node.y - 16.0);
    node.z = 0.01 * node.x + random.between(-0.03, 0.03) + 0.5 * std::exp(-toHill * toHill / 8.0) +
             1.5 * std::exp(-toHighHill * toHighHill / 10.0);
  }
  for (Element& element : mesh.elements) {
    if (centroid(mesh, element).x < 12.0) element.material = 2;
  }
  return mesh;
}

TEST(ClosedDamBreak, KeepsItsVolumeAndHasNoNegativeDepth) {
  const support::TempDir dir;
  support::writeFile(dir.file("mesh.2dm"), to2dm(reservoirAndPlain()));
  Case study;
  study.geometry = R"("MESH": {"file": "mesh.2dm"},
                      "REGIONDEF": [{"index": 2, "name": "reservoir"}])";
  study.initial = R"("water_level": "dry",
                     "ZONES": [{"region": "reservoir", "water_level": 1.5},
                               {"box": [35.0, 0.0, 40.0, 8.0], "water_level": 0.6}])";
  study.end = 20.0;
  study.out = 1.0;
  const Solution run = simulate(dir.path(), study);

  ASSERT_EQ(run.records.size(), 21U);
  const double atStart = volume(run, run.records[0]);
  EXPECT_GT(atStart, 300.0);
  for (const Record& record : run.records) {
    EXPECT_NEAR(volume(run, record), atStart, 1e-13 * atStart) << "at " << record.time << " s";
  }
  EXPECT_GE(leastDepth(run), -1e-12);

  // The water has spread, and some ground has stayed dry.
  EXPECT_GT(countDeeper(run, run.last(), 0.001), 2 * countDeeper(run, run.records[0], 0.001));
  EXPECT_LT(countDeeper(run, run.last(), 0.001), run.bed.size());
}

}  // namespace
}  // namespace verification
