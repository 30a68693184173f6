#include "setup/mesh/Topology.h"

#include <algorithm>
#include <tuple>

#include "common/console.h"

namespace console = common::console;

namespace setup {

namespace {

/// An edge as one of its cells runs along it.
struct HalfEdge {
  int lowNode;
  int highNode;
  int cell;
  int corner;  ///< the edge runs from this corner of the cell to the next

  auto key() const { return std::tuple(lowNode, highNode, cell); }
  bool joinsSameNodes(const HalfEdge& other) const {
    return lowNode == other.lowNode && highNode == other.highNode;
  }
};

std::array<int, 2> nodesOf(const Mesh& mesh, int cell, int corner) {
  const std::array<int, 3>& nodes = mesh.cells[index(cell)].nodes;
  return {nodes[index(corner)], nodes[index((corner + 1) % 3)]};
}

/// All half edges; those of one edge stand together, in the order of their cells.
std::vector<HalfEdge> sortedHalfEdges(const Mesh& mesh) {
  std::vector<HalfEdge> halves;
  halves.reserve(3 * mesh.cells.size());
  for (int cell = 0; cell < static_cast<int>(mesh.cells.size()); ++cell) {
    for (int corner = 0; corner < 3; ++corner) {
      const auto [first, second] = nodesOf(mesh, cell, corner);
      halves.push_back({std::min(first, second), std::max(first, second), cell, corner});
    }
  }
  std::sort(halves.begin(), halves.end(),
            [](const HalfEdge& a, const HalfEdge& b) { return a.key() < b.key(); });
  return halves;
}

/// @throws BaseException unless the `count` half edges from `first` on make one sound edge.
void requireSoundEdge(const Mesh& mesh, const HalfEdge* first, std::size_t count) {
  if (count == 1) return;
  const Triangle& a = mesh.cells[index(first[0].cell)];
  const Triangle& b = mesh.cells[index(first[1].cell)];
  const std::string edge =
      console::text("the edge between nodes ", mesh.nodes[index(first->lowNode)].id, " and ",
                    mesh.nodes[index(first->highNode)].id);
  if (count > 2) {
    const Triangle& c = mesh.cells[index(first[2].cell)];
    console::fail(place(mesh.file, std::max({a.line, b.line, c.line})), edge,
                  " belongs to more than two elements: ", a.id, ", ", b.id, ", ", c.id);
  }
  if (nodesOf(mesh, first[0].cell, first[0].corner) ==
      nodesOf(mesh, first[1].cell, first[1].corner)) {
    console::fail(place(mesh.file, std::max(a.line, b.line)), "elements ", a.id, " and ", b.id,
                  " overlap: they lie on the same side of ", edge);
  }
}

/// For each corner of each cell the cell beyond; -1 where there is none.
std::vector<std::array<int, 3>> cellsBeyond(const Mesh& mesh) {
  const std::vector<HalfEdge> halves = sortedHalfEdges(mesh);
  std::vector<std::array<int, 3>> beyond(mesh.cells.size(), {-1, -1, -1});
  for (std::size_t begin = 0; begin < halves.size();) {
    std::size_t end = begin + 1;
    while (end < halves.size() && halves[end].joinsSameNodes(halves[begin])) ++end;
    requireSoundEdge(mesh, &halves[begin], end - begin);
    if (end - begin == 2) {
      const HalfEdge& a = halves[begin];
      const HalfEdge& b = halves[begin + 1];
      beyond[index(a.cell)][index(a.corner)] = b.cell;
      beyond[index(b.cell)][index(b.corner)] = a.cell;
    }
    begin = end;
  }
  return beyond;
}

/// The corner of `cell` at which the edge that ends in `node` begins seen from the other side.
int cornerAt(const Mesh& mesh, int cell, int node) {
  const std::array<int, 3>& nodes = mesh.cells[index(cell)].nodes;
  return static_cast<int>(std::find(nodes.begin(), nodes.end(), node) - nodes.begin());
}

}  // namespace

std::array<int, 3> Topology::neighbours(std::size_t cell) const {
  std::array<int, 3> result{};
  for (std::size_t k = 0; k < 3; ++k) {
    const auto [left, right] = edgeCells[index(cellEdges[cell][k])];
    result[k] = left == static_cast<int>(cell) ? right : left;
  }
  return result;
}

std::vector<int> Topology::edgesWhere(bool boundary) const {
  std::vector<int> result;
  for (std::size_t edge = 0; edge < edgeCells.size(); ++edge) {
    if (isBoundary(edge) == boundary) result.push_back(static_cast<int>(edge));
  }
  return result;
}

Topology findTopology(const Mesh& mesh) {
  const std::vector<std::array<int, 3>> beyond = cellsBeyond(mesh);
  Topology topology;
  topology.cellEdges.resize(mesh.cells.size());
  for (int cell = 0; cell < static_cast<int>(mesh.cells.size()); ++cell) {
    for (int corner = 0; corner < 3; ++corner) {
      const int other = beyond[index(cell)][index(corner)];
      if (other >= 0 && other < cell) continue;  // numbered when that cell was met
      const auto edge = static_cast<int>(topology.edgeCells.size());
      const std::array<int, 2> nodes = nodesOf(mesh, cell, corner);
      topology.edgeNodes.push_back(nodes);
      topology.edgeCells.push_back({cell, other < 0 ? cell : other});
      topology.cellEdges[index(cell)][index(corner)] = edge;
      if (other >= 0) {
        topology.cellEdges[index(other)][index(cornerAt(mesh, other, nodes[1]))] = edge;
      }
    }
  }
  return topology;
}

}  // namespace setup
