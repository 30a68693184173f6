#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>

#include "catalogue/Data.h"
#include "catalogue/Maps.h"
#include "catalogue/Relations.h"
#include "model/Factory.h"
#include "model/Model.h"
#include "setup/mesh/Mesh.h"
#include "setup/meshes.h"
#include "setup/runfile/contents.h"

using setup::index;
using ::testing::DoubleEq;
using ::testing::DoubleNear;
using ::testing::ElementsAre;
using enum model::SetID;
using enum model::MapID;
using enum model::DataID;

namespace {

class SetContents : public ::testing::Test {
 protected:
  /// The square of two cells, or a random mesh.
  explicit SetContents(setup::Mesh mesh = meshes::square()) {
    domain.mesh = std::move(mesh);
    domain.topology = setup::findTopology(domain.mesh);
    domain.geometry = setup::measure(domain.mesh, domain.topology);
    domain.bed.assign(domain.mesh.cells.size(), 0.5);
    domain.flow.assign(domain.mesh.cells.size(), {1.0, 2.0, 3.0});
    domain.friction.assign(domain.mesh.cells.size(), 0.03);
    domain.grainSizes.assign(domain.mesh.cells.size(), 0.002);
    domain.criticalValues.assign(domain.mesh.cells.size(), 0.047);
  }

  int size(model::SetID id) const { return setup::setContents().at(id).size(domain); }

  std::vector<int> map(model::MapID id) const {
    const model::SetID from = model::Map2Sets.at(id).first;
    return setup::setContents().at(from).maps.at(id)(domain);
  }

  template <class T>
  std::vector<T> data(model::DataID id) const {
    const model::SetID set = model::Data2Set.at(id);
    return std::get<setup::Values<T>>(setup::setContents().at(set).data.at(id))(domain);
  }

  setup::Domain domain;
};

class SetContentsOfRandomMesh : public SetContents {
 protected:
  SetContentsOfRandomMesh() : SetContents(meshes::random(31)) {}
};

}  // namespace

TEST_F(SetContents, SizesAreThoseOfTheMesh) {
  EXPECT_EQ(size(NodesAll), 4);
  EXPECT_EQ(size(CellsAll), 2);
  EXPECT_EQ(size(EdgesAll), 5);
  EXPECT_EQ(size(EdgHydWL), 4);
  EXPECT_EQ(size(EdgesSWE), 1);
  EXPECT_EQ(size(NodeStrg), 0);
}

TEST_F(SetContents, MapsAreAsDrawn) {
  EXPECT_THAT(map(CellsAll_EdgesAll), ElementsAre(0, 1, 2, 2, 3, 4));
  EXPECT_THAT(map(CellsAll_NbrCells), ElementsAre(0, 0, 1, 0, 1, 1));
  EXPECT_THAT(map(EdgesAll_CellsAll), ElementsAre(0, 0, 0, 0, 0, 1, 1, 1, 1, 1));
  EXPECT_THAT(map(EdgHydWL_EdgesAll), ElementsAre(0, 1, 3, 4));
  EXPECT_THAT(map(EdgHydWL_CellsAll), ElementsAre(0, 0, 1, 1));
  EXPECT_THAT(map(EdgesSWE_EdgesAll), ElementsAre(2));
  EXPECT_THAT(map(EdgesSWE_CellsAll), ElementsAre(0, 1));
}

TEST_F(SetContents, DataAreAsCalculatedByHand) {
  EXPECT_THAT(data<double>(Coordnts), ElementsAre(0, 0, 0, 2, 0, 0.3, 2, 2, 0.6, 0, 2, 0.9));
  EXPECT_THAT(data<int>(Topology), ElementsAre(0, 1, 2, 0, 2, 3));
  EXPECT_THAT(data<int>(CellsAll_EdgeSign), ElementsAre(1, 1, 1, -1, 1, 1));
  EXPECT_THAT(data<double>(CellsAll_GeomArea), ElementsAre(2.0, 2.0));
  EXPECT_THAT(data<double>(BottomEl), ElementsAre(0.5, 0.5));
  EXPECT_THAT(data<double>(HydState), ElementsAre(1.0, 2.0, 3.0, 1.0, 2.0, 3.0));
  EXPECT_THAT(data<double>(GeomLeng), ElementsAre(2.0, 2.0, DoubleEq(std::sqrt(8.0)), 2.0, 2.0));
  EXPECT_EQ(data<double>(NormVect).size(), 10U);
  EXPECT_EQ(data<double>(CharSize).size(), 10U);
  EXPECT_TRUE(data<std::string>(StrNames).empty());
}

TEST_F(SetContents, CentroidsAreJoinedAcrossAnEdgeAndMirroredAtABoundary) {
  const double r = std::sqrt(0.5);
  const std::vector<double> distances = data<double>(DistCent);
  const std::vector<double> directions = data<double>(UnitCent);
  EXPECT_DOUBLE_EQ(distances[2], 4.0 / 3.0 * r);
  EXPECT_THAT((std::array{directions[4], directions[5]}), ElementsAre(DoubleEq(-r), DoubleEq(r)));
  EXPECT_DOUBLE_EQ(distances[0], 4.0 / 3.0);
  EXPECT_THAT((std::array{directions[0], directions[1]}), ElementsAre(0.0, DoubleEq(-1.0)));
}

TEST_F(SetContents, GradientWeightsArePairsPerNeighbour) {
  EXPECT_THAT(data<double>(GeomWght),
              ElementsAre(0.0, 0.0, 0.0, 0.0, DoubleEq(-0.75), DoubleEq(0.75), DoubleEq(0.75),
                          DoubleEq(-0.75), 0.0, 0.0, 0.0, 0.0));
}

TEST_F(SetContents, CoverTheFullModel) {
  const std::unique_ptr<api::IModel> model(
      model::Factory::getModelFromAggregates(model::Model::getFullModel(), true));
  model->create();
  for (const model::SetID id : model->getSets()) {
    EXPECT_EQ(setup::setContents().count(id), 1U) << model->getSet(id)->getName();
  }
  for (const model::MapID id : model->getMaps()) {
    const api::IMap& map = *model->getMap(id);
    EXPECT_EQ(setup::setContents().at(map.getSet()->getID()).maps.count(id), 1U) << map.getH5Path();
  }
  for (const model::DataID id : model->getDats()) {
    const api::IData& data = *model->getData(id);
    EXPECT_EQ(setup::setContents().at(data.getSet()->getID()).data.count(id),
              data.isSimulationOnly() ? 0U : 1U)
        << data.getH5Path();
  }
}

TEST_F(SetContentsOfRandomMesh, ItemsHaveTheShapesOfTheCatalogue) {
  for (const auto& [set, content] : setup::setContents()) {
    const auto elements = static_cast<std::size_t>(content.size(domain));
    for (const auto& [id, values] : content.maps) {
      const std::size_t columns = index(model::MapProps.at(id).size);
      EXPECT_EQ(values(domain).size(), elements * columns) << model::MapProps.at(id).name;
      EXPECT_EQ(model::Map2Sets.at(id).first, set);
    }
    for (const auto& [id, values] : content.data) {
      const std::size_t columns = index(model::DataProps.at(id).size);
      const std::size_t count =
          std::visit([this](auto function) { return function(domain).size(); }, values);
      EXPECT_EQ(count, elements * columns) << model::DataProps.at(id).name;
      EXPECT_EQ(model::Data2Set.at(id), set);
    }
  }
}

TEST_F(SetContentsOfRandomMesh, SubsetsOfEdgesAscendAndCoverAllEdges) {
  std::vector<int> walls = map(EdgHydWL_EdgesAll);
  const std::vector<int> inner = map(EdgesSWE_EdgesAll);
  EXPECT_TRUE(std::is_sorted(walls.begin(), walls.end()));
  EXPECT_TRUE(std::is_sorted(inner.begin(), inner.end()));
  walls.insert(walls.end(), inner.begin(), inner.end());
  std::sort(walls.begin(), walls.end());
  for (int edge = 0; edge < size(EdgesAll); ++edge) EXPECT_EQ(walls[index(edge)], edge);
}

TEST_F(SetContentsOfRandomMesh, SignedNormalsOfACellClose) {
  const std::vector<int> edges = map(CellsAll_EdgesAll);
  const std::vector<int> signs = data<int>(CellsAll_EdgeSign);
  const std::vector<double> lengths = data<double>(GeomLeng);
  const std::vector<double> normals = data<double>(NormVect);
  for (std::size_t cell = 0; cell < domain.mesh.cells.size(); ++cell) {
    std::array<double, 2> sum{};
    for (std::size_t k = 3 * cell; k < 3 * cell + 3; ++k) {
      const std::size_t edge = index(edges[k]);
      for (std::size_t d = 0; d < 2; ++d) {
        sum[d] += signs[k] * lengths[edge] * normals[2 * edge + d];
      }
    }
    EXPECT_THAT(sum, ElementsAre(DoubleNear(0.0, 1e-15), DoubleNear(0.0, 1e-15)));
  }
}

TEST_F(SetContentsOfRandomMesh, CellsOfABoundaryEdgeAreTheLeftOneTwice) {
  const std::vector<int> cells = map(EdgesAll_CellsAll);
  const std::vector<int> walls = map(EdgHydWL_EdgesAll);
  const std::vector<double> sizes = data<double>(CharSize);
  const std::vector<int> wallCells = map(EdgHydWL_CellsAll);
  for (std::size_t k = 0; k < walls.size(); ++k) {
    const std::size_t edge = index(walls[k]);
    EXPECT_EQ(cells[2 * edge], cells[2 * edge + 1]);
    EXPECT_EQ(cells[2 * edge], wallCells[k]);
    EXPECT_EQ(sizes[2 * edge], sizes[2 * edge + 1]);
  }
}
