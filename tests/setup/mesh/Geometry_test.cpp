#include "setup/mesh/Geometry.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <numeric>

#include "setup/mesh/Mesh.h"
#include "setup/meshes.h"

using setup::index;
using setup::Vector2;
using ::testing::DoubleEq;
using ::testing::DoubleNear;
using ::testing::ElementsAre;

namespace {

double dot(const Vector2& a, const Vector2& b) {
  return a[0] * b[0] + a[1] * b[1];
}

struct Measured {
  explicit Measured(setup::Mesh given)
      : mesh(std::move(given)),
        topology(setup::findTopology(mesh)),
        geometry(setup::measure(mesh, topology)) {}

  /// Sum of length times outward normal over the edges of a cell.
  Vector2 closure(std::size_t cell) const {
    Vector2 sum{};
    for (const int edge : topology.cellEdges[cell]) {
      const double sign = topology.edgeCells[index(edge)][0] == static_cast<int>(cell) ? 1.0 : -1.0;
      const double length = sign * geometry.lengths[index(edge)];
      sum[0] += length * geometry.normals[index(edge)][0];
      sum[1] += length * geometry.normals[index(edge)][1];
    }
    return sum;
  }

  setup::Mesh mesh;
  setup::Topology topology;
  setup::Geometry geometry;
};

/// Random meshes near the origin and at the coordinates of a national grid.
class GeometryOfRandomMesh : public ::testing::TestWithParam<std::array<double, 2>> {
 protected:
  const Measured measured{meshes::random(11, 12, GetParam()[0], GetParam()[1])};
};

}  // namespace

TEST(Geometry, OfTwoCellsIsAsCalculatedByHand) {
  const Measured m(meshes::square());
  const setup::Geometry& g = m.geometry;
  EXPECT_THAT(g.areas, ElementsAre(2.0, 2.0));
  EXPECT_THAT(g.centroids[0], ElementsAre(DoubleEq(4.0 / 3.0), DoubleEq(2.0 / 3.0)));
  EXPECT_THAT(g.centroids[1], ElementsAre(DoubleEq(2.0 / 3.0), DoubleEq(4.0 / 3.0)));
  const double r = std::sqrt(0.5);
  EXPECT_THAT(g.lengths, ElementsAre(2.0, 2.0, DoubleEq(4.0 * r), 2.0, 2.0));
  EXPECT_THAT(g.normals, ElementsAre(ElementsAre(0.0, -1.0), ElementsAre(1.0, 0.0),
                                     ElementsAre(DoubleEq(-r), DoubleEq(r)), ElementsAre(0.0, 1.0),
                                     ElementsAre(-1.0, 0.0)));
  EXPECT_THAT(g.charSizes[0], ElementsAre(DoubleEq(4.0 / 3.0), DoubleEq(4.0 / 3.0)));
  EXPECT_THAT(g.charSizes[2], ElementsAre(DoubleEq(4.0 / 3.0 * r), DoubleEq(4.0 / 3.0 * r)));
}

TEST(Geometry, CentroidVectorPointsFromLeftToRight) {
  const Measured m(meshes::square());
  EXPECT_THAT(setup::centroidVector(m.geometry, m.topology, 2),
              ElementsAre(DoubleEq(-2.0 / 3.0), DoubleEq(2.0 / 3.0)));
}

TEST(Geometry, CentroidVectorAtABoundaryGoesToTheMirroredCell) {
  const Measured m(meshes::square());
  EXPECT_THAT(setup::centroidVector(m.geometry, m.topology, 0),
              ElementsAre(0.0, DoubleEq(-4.0 / 3.0)));
}

TEST(Geometry, CentroidsAreInTheCoordinatesOfTheMesh) {
  const Measured m(meshes::of({{100, 200, 0}, {103, 200, 0}, {100, 203, 0}}, {{0, 1, 2}}));
  EXPECT_THAT(m.geometry.centroid(0), ElementsAre(101.0, 201.0));
}

TEST_P(GeometryOfRandomMesh, EdgeVectorsOfACellClose) {
  for (std::size_t cell = 0; cell < measured.mesh.cells.size(); ++cell) {
    EXPECT_THAT(measured.closure(cell),
                ElementsAre(DoubleNear(0.0, 1e-15), DoubleNear(0.0, 1e-15)));
  }
}

TEST_P(GeometryOfRandomMesh, NormalsHaveLengthOneAndPointToTheRightCell) {
  for (std::size_t edge = 0; edge < measured.topology.edgeCells.size(); ++edge) {
    const Vector2& normal = measured.geometry.normals[edge];
    EXPECT_DOUBLE_EQ(dot(normal, normal), 1.0);
    EXPECT_GT(dot(normal, setup::centroidVector(measured.geometry, measured.topology, edge)), 0.0);
  }
}

TEST_P(GeometryOfRandomMesh, CharSizesAreTwiceTheDistancesOfTheCentroids) {
  for (std::size_t edge = 0; edge < measured.topology.edgeCells.size(); ++edge) {
    const setup::Node& node = measured.mesh.nodes[index(measured.topology.edgeNodes[edge][0])];
    for (std::size_t side = 0; side < 2; ++side) {
      const Vector2& c =
          measured.geometry.centroids[index(measured.topology.edgeCells[edge][side])];
      const Vector2 away{node.x - measured.geometry.origin[0] - c[0],
                         node.y - measured.geometry.origin[1] - c[1]};
      EXPECT_NEAR(measured.geometry.charSizes[edge][side],
                  2.0 * std::abs(dot(away, measured.geometry.normals[edge])), 1e-14);
    }
  }
}

TEST_P(GeometryOfRandomMesh, AreasSumUpToThatOfTheOutline) {
  double outline = 0.0;  // by the divergence theorem
  for (const int edge : measured.topology.boundaryEdges()) {
    const auto [first, second] = measured.topology.edgeNodes[index(edge)];
    const setup::Node& a = measured.mesh.nodes[index(first)];
    const setup::Node& b = measured.mesh.nodes[index(second)];
    const Vector2 middle{0.5 * (a.x + b.x) - GetParam()[0], 0.5 * (a.y + b.y) - GetParam()[1]};
    outline += 0.5 * measured.geometry.lengths[index(edge)] *
               dot(middle, measured.geometry.normals[index(edge)]);
  }
  const std::vector<double>& areas = measured.geometry.areas;
  EXPECT_NEAR(std::accumulate(areas.begin(), areas.end(), 0.0), outline, 1e-12);
}

TEST_P(GeometryOfRandomMesh, IsTheSameAtAnyPlace) {
  const Measured atOrigin(meshes::random(11));
  const setup::Geometry& g = measured.geometry;
  EXPECT_EQ(g.areas, atOrigin.geometry.areas);
  EXPECT_EQ(g.lengths, atOrigin.geometry.lengths);
  EXPECT_EQ(g.normals, atOrigin.geometry.normals);
  EXPECT_EQ(g.charSizes, atOrigin.geometry.charSizes);
  EXPECT_EQ(g.centroids, atOrigin.geometry.centroids);
}

INSTANTIATE_TEST_SUITE_P(Places, GeometryOfRandomMesh,
                         ::testing::Values(std::array{0.0, 0.0}, std::array{2.6e6, 1.2e6},
                                           std::array{-4.0e5, 5.9e6}));
