// A triangle mesh as a file or a generator gives it: nodes, triangles, nodestrings. Nodes are
// referred to by their position; the user's own numbers and the lines of the file are kept for
// messages.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <vector>

#include "common/console.h"

namespace setup {

/// Positions in lists are ints throughout, as the run file stores them; containers want another
/// type.
constexpr std::size_t index(int position) {
  return static_cast<std::size_t>(position);
}

struct Node {
  long id = 0;
  double x = 0.0;  ///< [m]
  double y = 0.0;  ///< [m]
  double z = 0.0;  ///< bed elevation [m]
  int line = 0;    ///< where the file defines the node; 0 in a mesh that was not read
};

struct Triangle {
  long id = 0;
  std::array<int, 3> nodes{};  ///< positions in Mesh::nodes
  int material = 1;            ///< the region that the triangle belongs to
  int line = 0;
};

/// A line of nodes across or along the mesh.
struct NodeString {
  std::string name;
  std::vector<int> nodes;  ///< positions in Mesh::nodes
  int line = 0;
};

struct Mesh {
  std::string file;  ///< empty for a mesh that was not read
  std::vector<Node> nodes;
  std::vector<Triangle> cells;
  std::vector<NodeString> strings;
};

/// The beginning of a message on a fault of the mesh, as "mesh file <m.2dm>, line 7: ".
/// @param line 0 if the fault belongs to no line
inline std::string place(const std::string& file, int line) {
  if (file.empty()) return "mesh: ";
  if (line == 0) return common::console::text("mesh file <", file, ">: ");
  return common::console::text("mesh file <", file, ">, line ", line, ": ");
}

}  // namespace setup
