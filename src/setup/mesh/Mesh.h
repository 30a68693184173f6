// A triangle mesh as a file or a generator gives it: nodes, triangles, nodestrings. Nodes are
// referred to by their position; the user's own numbers and the lines of the file are kept for
// messages.
#pragma once

#include <array>
#include <string>
#include <vector>

namespace setup {

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
std::string place(const std::string& file, int line);

}  // namespace setup
