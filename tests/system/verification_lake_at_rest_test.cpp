// Does a lake stay a lake?
//
// Still water over an uneven bed is the state that most models start from and that gravity and the
// bed slope must balance in every cell. A solver that balances them only nearly makes currents out
// of nothing, worst at the shores, where the bed rises above the water.
//
//   A. Bermúdez, M. E. Vázquez: Upwind methods for hyperbolic conservation laws with source terms.
//   Computers & Fluids 23 (8), 1994, 1049-1071.
//   E. Audusse, F. Bouchut, M.-O. Bristeau, R. Klein, B. Perthame: A fast and stable well-balanced
//   scheme with hydrostatic reconstruction for shallow water flows. SIAM Journal on Scientific
//   Computing 25 (6), 2004, 2050-2065.
//
// To expect: discharges and movements of the surface of the size of rounding errors, in wet and in
// dry cells, after any number of steps.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstddef>

#include "support/Process.h"
#include "support/TempDir.h"
#include "system/verification/Solution.h"
#include "system/verification/TriangleMesh.h"

namespace verification {
namespace {

/// About 1 m deep under the level 0, rough from node to node, with three islands.
TriangleMesh roughLake() {
  Random random(1);
  TriangleMesh mesh = irregularMesh({60.0, 40.0}, {42, 28}, random);
  const auto island = [](const Node& node, double x, double y, double radius) {
    const double distance = std::hypot(node.x - x, node.y - y) / radius;
    return 1.8 * std::exp(-distance * distance);
  };
  for (Node& node : mesh.nodes) {
    node.z = random.between(-1.4, -0.6) + island(node, 15.0, 12.0, 5.0) +
             island(node, 38.0, 25.0, 7.0) + island(node, 60.0, 0.0, 6.0);
  }
  return mesh;
}

double greatestDischarge(const Record& record) {
  double greatest = 0.0;
  for (std::size_t cell = 0; cell < record.surface.size(); ++cell) {
    greatest =
        std::max({greatest, std::abs(record.dischargeX[cell]), std::abs(record.dischargeY[cell])});
  }
  return greatest;
}

double greatestMovement(const Record& before, const Record& after) {
  double greatest = 0.0;
  for (std::size_t cell = 0; cell < before.surface.size(); ++cell) {
    greatest = std::max(greatest, std::abs(after.surface[cell] - before.surface[cell]));
  }
  return greatest;
}

TEST(LakeAtRest, StaysAtRestOverARoughBedWithIslands) {
  const support::TempDir dir;
  support::writeFile(dir.file("mesh.2dm"), to2dm(roughLake()));
  const Solution run = simulate(dir.path(), {.geometry = R"("MESH": {"file": "mesh.2dm"})",
                                             .initial = R"("water_level": 0.0)",
                                             .end = 48.0,
                                             .out = 12.0});

  const std::size_t wet = countDeeper(run, run.last(), 0.001);
  const std::size_t dry = run.bed.size() - wet;
  EXPECT_GE(run.bed.size(), 2000U);
  EXPECT_GE(wet, 1500U);
  EXPECT_GE(dry, 50U);
  EXPECT_GE(callsOf("Update", run.console), 1000);
  ASSERT_EQ(run.records.size(), 5U);
  for (const Record& record : run.records) {
    EXPECT_LE(greatestDischarge(record), 5e-12) << "at " << record.time << " s";
    EXPECT_LE(greatestMovement(run.records[0], record), 1e-13) << "at " << record.time << " s";
  }
}

}  // namespace
}  // namespace verification
