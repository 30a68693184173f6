#include "setup/mesh/Geometry.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "setup/mesh/Mesh.h"
#include "setup/meshes.h"

using setup::index;
using setup::Vector2;
using ::testing::DoubleEq;
using ::testing::DoubleNear;
using ::testing::ElementsAre;

namespace {

/// The gradient that the weights give to the field 2 x - 3 y.
Vector2 gradientOfPlane(const std::vector<Vector2>& distances) {
  const std::vector<Vector2> weights = setup::leastSquaresWeights(distances);
  Vector2 gradient{};
  for (std::size_t k = 0; k < distances.size(); ++k) {
    const double difference = 2.0 * distances[k][0] - 3.0 * distances[k][1];
    gradient[0] += weights[k][0] * difference;
    gradient[1] += weights[k][1] * difference;
  }
  return gradient;
}

}  // namespace

TEST(Gradient, OfAPlaneIsExactWithTwoOrThreeNeighbours) {
  EXPECT_THAT(gradientOfPlane({{1.0, 0.2}, {-0.3, 2.0}}),
              ElementsAre(DoubleNear(2.0, 1e-14), DoubleNear(-3.0, 1e-14)));
  EXPECT_THAT(gradientOfPlane({{1.0, 0.2}, {-0.3, 2.0}, {-1.0, -0.7}}),
              ElementsAre(DoubleNear(2.0, 1e-14), DoubleNear(-3.0, 1e-14)));
}

TEST(Gradient, FitsBestWhereNoPlaneGoesThroughAllValues) {
  // Normal equations by hand: xx = 2, xy = 0, yy = 1.
  EXPECT_THAT(setup::leastSquaresWeights({{1.0, 0.0}, {-1.0, 0.0}, {0.0, 1.0}}),
              ElementsAre(ElementsAre(0.5, 0.0), ElementsAre(-0.5, 0.0), ElementsAre(0.0, 1.0)));
}

TEST(Gradient, WithOneNeighbourIsTheOneTowardsIt) {
  EXPECT_THAT(setup::leastSquaresWeights({{3.0, 4.0}}),
              ElementsAre(ElementsAre(DoubleEq(0.12), DoubleEq(0.16))));
}

TEST(Gradient, WithNeighboursOnALineIsTheOneAlongTheLine) {
  EXPECT_THAT(gradientOfPlane({{1.0, 1.0}, {-2.0, -2.0}}),
              ElementsAre(DoubleNear(-0.5, 1e-15), DoubleNear(-0.5, 1e-15)));
}

TEST(Gradient, WithNeighboursNearlyOnALineStaysModest) {
  for (const auto& [x, y] : setup::leastSquaresWeights({{1.0, 1e-9}, {-1.0, 0.0}})) {
    EXPECT_LE(std::abs(x), 0.6);
    EXPECT_LE(std::abs(y), 0.6);
  }
}

TEST(Gradient, WithoutNeighboursHasNoWeights) {
  EXPECT_TRUE(setup::leastSquaresWeights({}).empty());
}

TEST(Gradient, WeightsOfMissingNeighboursAreZero) {
  const setup::Mesh mesh = meshes::square();
  const setup::Topology topology = setup::findTopology(mesh);
  const auto weights = setup::gradientWeights(setup::measure(mesh, topology), topology);
  EXPECT_THAT(weights[0], ElementsAre(0.0, 0.0, 0.0, 0.0, DoubleEq(-0.75), DoubleEq(0.75)));
  EXPECT_THAT(weights[1], ElementsAre(DoubleEq(0.75), DoubleEq(-0.75), 0.0, 0.0, 0.0, 0.0));
}

TEST(Gradient, OfAPlaneIsExactInEveryCellWithTwoNeighboursAtLeast) {
  const setup::Mesh mesh = meshes::random(21);
  const setup::Topology topology = setup::findTopology(mesh);
  const setup::Geometry geometry = setup::measure(mesh, topology);
  const auto weights = setup::gradientWeights(geometry, topology);
  const auto plane = [&geometry](std::size_t cell) {
    return 2.0 * geometry.centroids[cell][0] - 3.0 * geometry.centroids[cell][1];
  };
  int tested = 0;
  for (std::size_t cell = 0; cell < weights.size(); ++cell) {
    const std::array<int, 3> neighbours = topology.neighbours(cell);
    if (std::count(neighbours.begin(), neighbours.end(), static_cast<int>(cell)) > 1) continue;
    Vector2 gradient{};
    for (std::size_t k = 0; k < 3; ++k) {
      const double difference = plane(index(neighbours[k])) - plane(cell);
      gradient[0] += weights[cell][2 * k] * difference;
      gradient[1] += weights[cell][2 * k + 1] * difference;
    }
    EXPECT_THAT(gradient, ElementsAre(DoubleNear(2.0, 1e-11), DoubleNear(-3.0, 1e-11)));
    ++tested;
  }
  EXPECT_GT(tested, 250);
}
