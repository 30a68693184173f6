// Do results depend on anything but the physics?
//
// The same input must give the same bits. The order of nodes and elements in the mesh file and the
// sense in which an element runs around must not matter beyond rounding; nor must the direction of
// the axes: a flow that is symmetric at the start stays symmetric.
//
//   P. J. Roache: Verification and Validation in Computational Science and Engineering. Hermosa,
//   Albuquerque, 1998 (symmetry and invariance as tests of a code).
//
// To expect: no difference at all between two runs, and differences of the size of rounding errors
// between the runs of one problem in two numberings and between the mirrored parts of a run.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstring>
#include <functional>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "support/H5Compare.h"
#include "support/Process.h"
#include "support/TempDir.h"
#include "system/verification/Solution.h"
#include "system/verification/TriangleMesh.h"

namespace verification {
namespace {

/// Closed walls, a dry bed and a reservoir (material 2).
Case damBreak(double end) {
  return {.geometry = R"("MESH": {"file": "mesh.2dm"},
                         "REGIONDEF": [{"index": 2, "name": "reservoir"}])",
          .initial = R"("water_level": "dry",
                        "ZONES": [{"region": "reservoir", "water_level": 1.0}])",
          .end = end,
          .out = 0.5 * end};
}

Solution simulate(const support::TempDir& dir, const TriangleMesh& mesh, double end) {
  support::writeFile(dir.file("mesh.2dm"), to2dm(mesh));
  return simulate(dir.path(), damBreak(end));
}

/// A rough bed, half of it under water.
TriangleMesh roughBasin() {
  Random random(3);
  TriangleMesh mesh = irregularMesh({30.0, 20.0}, {30, 20}, random);
  for (Node& node : mesh.nodes) node.z = random.between(-0.1, 0.1) + 0.02 * node.x;
  for (Element& element : mesh.elements) {
    if (centroid(mesh, element).x < 10.0) element.material = 2;
  }
  return mesh;
}

/// A round column of water at the bottom of a bowl, which is too deep to be filled.
TriangleMesh roundColumn() {
  TriangleMesh mesh = symmetricMesh(28, 1.0);
  for (Node& node : mesh.nodes) node.z = 0.005 * (node.x * node.x + node.y * node.y);
  for (Element& element : mesh.elements) {
    const Point middle = centroid(mesh, element);
    if (std::hypot(middle.x, middle.y) < 5.1) element.material = 2;
  }
  return mesh;
}

/// The corners of a cell in the order of their coordinates: the same in all numberings.
using Place = std::array<std::pair<double, double>, 3>;
/// Turns or mirrors a point.
using Motion = std::function<Point(const Point&)>;

Place placeOf(const std::array<Point, 3>& corners, const Motion& motion) {
  Place place;
  std::transform(corners.begin(), corners.end(), place.begin(), [&motion](const Point& corner) {
    const Point moved = motion(corner);
    return std::pair(moved.x, moved.y);
  });
  std::sort(place.begin(), place.end());
  return place;
}

Point unmoved(const Point& point) {
  return point;
}

std::map<Place, double> depthsByPlace(const Solution& run, const Record& record,
                                      const Motion& motion) {
  std::map<Place, double> depths;
  for (std::size_t cell = 0; cell < run.cells.size(); ++cell) {
    depths[placeOf(run.cells[cell], motion)] = run.depth(record, cell);
  }
  return depths;
}

/// The greatest difference of two depths at the same place; infinite if the places differ.
double greatestDifference(const std::map<Place, double>& first,
                          const std::map<Place, double>& second) {
  if (first.size() != second.size()) return INFINITY;
  double greatest = 0.0;
  for (const auto& [place, depth] : first) {
    const auto found = second.find(place);
    if (found == second.end()) return INFINITY;
    greatest = std::max(greatest, std::abs(depth - found->second));
  }
  return greatest;
}

bool haveSameBits(const std::vector<double>& first, const std::vector<double>& second) {
  return first.size() == second.size() &&
         std::memcmp(first.data(), second.data(), first.size() * sizeof(double)) == 0;
}

TEST(Invariance, TwoRunsGiveTheSameBits) {
  const support::TempDir firstDir;
  const support::TempDir secondDir;
  const TriangleMesh mesh = roughBasin();
  const Solution first = simulate(firstDir, mesh, 6.0);
  const Solution second = simulate(secondDir, mesh, 6.0);

  for (const std::string& difference : support::differences(first.name, second.name)) {
    ADD_FAILURE() << difference;
  }
  // What the comparison above lets pass: zeros of either sign.
  std::size_t compared = 0;
  for (const std::string& path : support::datasetPaths(first.name)) {
    if (path.rfind(".config/", 0) == 0) continue;
    EXPECT_TRUE(haveSameBits(support::readNumbers(first.name, path),
                             support::readNumbers(second.name, path)))
        << path;
    ++compared;
  }
  EXPECT_GE(compared, 6U);
}

TEST(Invariance, AnotherNumberingGivesTheSameFlow) {
  const support::TempDir firstDir;
  const support::TempDir secondDir;
  const TriangleMesh mesh = roughBasin();
  Random random(4);
  const Solution asMade = simulate(firstDir, mesh, 6.0);
  const Solution other = simulate(secondDir, renumbered(mesh, random), 6.0);

  ASSERT_EQ(asMade.records.size(), 3U);
  ASSERT_EQ(other.records.size(), 3U);
  EXPECT_NE(asMade.last().surface, other.last().surface) << "the numbering has not changed";
  for (std::size_t k = 0; k < asMade.records.size(); ++k) {
    const double water = volume(asMade, asMade.records[k]);
    EXPECT_NEAR(volume(other, other.records[k]), water, 1e-12 * water);
    EXPECT_LE(greatestDifference(depthsByPlace(asMade, asMade.records[k], unmoved),
                                 depthsByPlace(other, other.records[k], unmoved)),
              1e-9)
        << "at " << asMade.records[k].time << " s";
  }
  EXPECT_GT(greatestDifference(depthsByPlace(asMade, asMade.records[0], unmoved),
                               depthsByPlace(asMade, asMade.last(), unmoved)),
            0.1)
      << "nothing has moved";
}

TEST(Invariance, ASymmetricFlowStaysSymmetric) {
  const support::TempDir dir;
  const Solution run = simulate(dir, roundColumn(), 6.0);
  const std::map<std::string, Motion> motions{
      {"turned by 90 degrees",
       [](const Point& p) {
         return Point{-p.y, p.x};
       }},
      {"mirrored at the y axis",
       [](const Point& p) {
         return Point{-p.x, p.y};
       }},
      {"mirrored at a diagonal",
       [](const Point& p) {
         return Point{p.y, p.x};
       }},
  };

  ASSERT_EQ(run.records.size(), 3U);
  EXPECT_LT(countDeeper(run, run.last(), 0.001), run.bed.size()) << "no shore is left";
  for (const Record& record : run.records) {
    const std::map<Place, double> depths = depthsByPlace(run, record, unmoved);
    for (const auto& [name, motion] : motions) {
      EXPECT_LE(greatestDifference(depths, depthsByPlace(run, record, motion)), 1e-10)
          << name << " at " << record.time << " s";
    }
  }
  EXPECT_GT(greatestDifference(depthsByPlace(run, run.records[0], unmoved),
                               depthsByPlace(run, run.last(), unmoved)),
            0.1)
      << "nothing has moved";
}

}  // namespace
}  // namespace verification
