// Does rain fill a basin as fast as it falls?
//
// On level ground between walls the water that has fallen has nowhere to go: at every time and in
// every cell the depth is the intensity times the time, from the first film, which is too thin to
// move, to any depth.
//
// To expect: this depth but for rounding. The steps of the clock are added up in the same way, with
// an error of their own.
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

TEST(RainOnADryFlatBasin, StandsAsDeepAsItHasFallen) {
  const support::TempDir dir;
  Random random(5);
  support::writeFile(dir.file("mesh.2dm"), to2dm(irregularMesh({20.0, 10.0}, {12, 6}, random)));
  const Solution run = simulate(
      dir.path(),
      {.geometry = R"("MESH": {"file": "mesh.2dm"}, "REGIONDEF": [{"index": 1, "name": "basin"}])",
       .initial = R"("water_level": "dry")",
       .processes = R"("SOURCE": [{"region": "basin", "type": "rain", "intensity": 90.0}])",
       .end = 1200.0,
       .out = 20.0,
       .longestStep = 10.0});

  const double intensity = 90.0 / 3.6e6;  // [m/s]
  ASSERT_EQ(run.records.size(), 61U);
  EXPECT_EQ(countDeeper(run, run.records[0], 0.0), 0U);
  EXPECT_EQ(countDeeper(run, run.records[1], 0.001), 0U);  // a film that counts as dry
  EXPECT_EQ(countDeeper(run, run.last(), 0.001), run.bed.size());
  EXPECT_GE(callsOf("Update", run.console), 500);
  for (const Record& record : run.records) {
    const double expected = intensity * record.time;
    for (std::size_t cell = 0; cell < run.bed.size(); ++cell) {
      EXPECT_NEAR(run.depth(record, cell), expected, 1e-13 * expected)
          << "cell " << cell << " at " << record.time << " s";
    }
  }
}

}  // namespace
}  // namespace verification
