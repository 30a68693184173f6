#include "export/formats/mesh_file.h"

#include "common/NewFile.h"
#include "export/results/Csv.h"

namespace exporter {

void writeMesh(const Results& results, const std::string& file) {
  const Mesh& mesh = results.mesh();
  std::string text = "MESH2D\n";
  for (std::size_t cell = 0; cell < mesh.cells.size(); ++cell) {
    text += "E3T " + std::to_string(cell + 1);
    for (const int node : mesh.cells[cell]) text += " " + std::to_string(node + 1);
    text += " 1\n";
  }
  for (std::size_t node = 0; node < mesh.nodes.size(); ++node) {
    text += "ND " + std::to_string(node + 1);
    for (const double coordinate : mesh.nodes[node]) text += " " + numberText(coordinate);
    text += "\n";
  }
  common::writeText(file, text, results.sources());
}

}  // namespace exporter
