#include "export/formats/mesh_file.h"

#include <gmock/gmock.h>

#include <cstdlib>
#include <sstream>

#include "export/SampleResults.h"

namespace {

class MeshFile : public samples::SampleResults {};

TEST_F(MeshFile, HoldsTheCellsInTheOrderOfTheResults) {
  use("dam_scrambled");
  const exporter::Results results(file);
  writeMesh(results, dir.file("mesh.2dm"));
  std::istringstream lines(support::readFile(dir.file("mesh.2dm")));
  std::string card;
  lines >> card;
  EXPECT_EQ(card, "MESH2D");
  std::size_t cells = 0;
  std::size_t nodes = 0;
  for (std::size_t id = 0; lines >> card >> id;) {
    if (card == "E3T") {
      std::array<int, 4> corners{};
      for (int& corner : corners) lines >> corner;
      ASSERT_EQ(id, ++cells);
      for (std::size_t i = 0; i < 3; ++i) {
        ASSERT_EQ(corners[i], results.mesh().cells[cells - 1][i] + 1);
      }
    } else {
      ASSERT_EQ(card, "ND");
      ASSERT_EQ(id, ++nodes);
      for (const double coordinate : results.mesh().nodes[nodes - 1]) {
        std::string text;
        lines >> text;
        ASSERT_EQ(std::strtod(text.c_str(), nullptr), coordinate);
      }
    }
  }
  EXPECT_EQ(cells, results.mesh().cells.size());
  EXPECT_EQ(nodes, results.mesh().nodes.size());
}

}  // namespace
