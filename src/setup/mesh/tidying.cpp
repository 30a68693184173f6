#include "setup/mesh/tidying.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <numeric>
#include <tuple>

#include "common/console.h"

namespace console = common::console;

namespace setup {

namespace {

/// Area of the parallelogram over twice the square of the longest edge below which a triangle is
/// taken for a line: its height is then lost in the rounding of the coordinates.
constexpr double FLATNESS = 1e-10;

void refuseDoubleNodes(const Mesh& mesh) {
  std::vector<int> order(mesh.nodes.size());
  std::iota(order.begin(), order.end(), 0);
  const auto key = [&mesh](int n) {
    const Node& node = mesh.nodes[index(n)];
    return std::tuple(node.x, node.y, n);
  };
  std::sort(order.begin(), order.end(), [&key](int a, int b) { return key(a) < key(b); });
  for (std::size_t k = 1; k < order.size(); ++k) {
    const Node& first = mesh.nodes[index(order[k - 1])];
    const Node& second = mesh.nodes[index(order[k])];
    if (first.x != second.x || first.y != second.y) continue;
    console::fail(place(mesh.file, second.line), "nodes ", first.id, " and ", second.id,
                  " lie at the same place, each node must have a place of its own");
  }
}

/// Turns the triangle if need be. @returns whether it did.
bool turnCounterClockwise(const Mesh& mesh, Triangle& cell) {
  const Node& a = mesh.nodes[index(cell.nodes[0])];
  const Node& b = mesh.nodes[index(cell.nodes[1])];
  const Node& c = mesh.nodes[index(cell.nodes[2])];
  if (a.id == b.id || b.id == c.id || c.id == a.id) {
    console::fail(place(mesh.file, cell.line), "element ", cell.id, " names a node twice: ", a.id,
                  ", ", b.id, ", ", c.id);
  }
  const double abX = b.x - a.x;
  const double abY = b.y - a.y;
  const double acX = c.x - a.x;
  const double acY = c.y - a.y;
  const double twiceArea = abX * acY - abY * acX;
  const double longest =
      std::max({std::hypot(abX, abY), std::hypot(acX, acY), std::hypot(acX - abX, acY - abY)});
  if (!(std::abs(twiceArea) > FLATNESS * longest * longest)) {
    console::fail(place(mesh.file, cell.line), "element ", cell.id, " has no area: its nodes ",
                  a.id, ", ", b.id, ", ", c.id, " lie on a line");
  }
  if (twiceArea > 0.0) return false;
  std::swap(cell.nodes[1], cell.nodes[2]);
  return true;
}

/// New position of each node, -1 for those that no triangle uses.
std::vector<int> usedPositions(const Mesh& mesh) {
  std::vector<int> positions(mesh.nodes.size(), -1);
  for (const Triangle& cell : mesh.cells) {
    for (const int node : cell.nodes) positions[index(node)] = 0;
  }
  int next = 0;
  for (int& position : positions) {
    if (position == 0) position = next++;
  }
  return positions;
}

int dropUnusedNodes(Mesh& mesh) {
  const std::vector<int> positions = usedPositions(mesh);
  const auto unused = static_cast<int>(std::count(positions.begin(), positions.end(), -1));
  if (unused == 0) return 0;
  for (NodeString& string : mesh.strings) {
    for (int& node : string.nodes) {
      if (positions[index(node)] < 0) {
        console::fail(place(mesh.file, string.line), "nodestring <", string.name,
                      "> runs over node ", mesh.nodes[index(node)].id, ", which no element uses");
      }
      node = positions[index(node)];
    }
  }
  for (Triangle& cell : mesh.cells) {
    for (int& node : cell.nodes) node = positions[index(node)];
  }
  for (std::size_t n = 0; n < positions.size(); ++n) {
    if (positions[n] >= 0) mesh.nodes[index(positions[n])] = mesh.nodes[n];
  }
  mesh.nodes.resize(mesh.nodes.size() - index(unused));
  return unused;
}

class CuthillMcKee {
 public:
  explicit CuthillMcKee(const Neighbours& cellNeighbours)
      : neighbours(cellNeighbours), front(cellNeighbours.size(), UNSEEN) {
    order.reserve(neighbours.size());
  }

  std::vector<int> run() {
    for (int cell = 0; cell < static_cast<int>(neighbours.size()); ++cell) {
      if (front[index(cell)] == UNSEEN) orderPart(cell);
    }
    std::reverse(order.begin(), order.end());
    return std::move(order);
  }

 private:
  static constexpr int UNSEEN = -1;

  int degree(int cell) const {
    const std::array<int, 3>& around = neighbours[index(cell)];
    return static_cast<int>(
        std::count_if(around.begin(), around.end(), [cell](int other) { return other != cell; }));
  }

  /// Appends the part of the mesh that holds `start`, in fronts around it.
  void spread(int start) {
    std::size_t next = order.size();
    front[index(start)] = 0;
    order.push_back(start);
    for (; next < order.size(); ++next) {
      const int cell = order[next];
      std::array<int, 3> around = neighbours[index(cell)];
      std::stable_sort(around.begin(), around.end(),
                       [this](int a, int b) { return degree(a) < degree(b); });
      for (const int other : around) {
        if (front[index(other)] != UNSEEN) continue;
        front[index(other)] = front[index(cell)] + 1;
        order.push_back(other);
      }
    }
  }

  /// Forgets all that has been appended from `begin` on.
  void takeBack(std::size_t begin) {
    for (std::size_t k = begin; k < order.size(); ++k) front[index(order[k])] = UNSEEN;
    order.resize(begin);
  }

  /// Fronts are narrow if they begin at an end of the part: the cell of the last front that has the
  /// fewest neighbours, searched for again from there as long as the number of fronts grows.
  void orderPart(int start) {
    const std::size_t begin = order.size();
    int fronts = UNSEEN;
    for (;;) {
      spread(start);
      const int last = front[index(order.back())];
      if (last <= fronts) return;
      fronts = last;
      const auto inLast =
          std::find_if(order.begin() + static_cast<std::ptrdiff_t>(begin), order.end(),
                       [this, last](int cell) { return front[index(cell)] == last; });
      start = *std::min_element(inLast, order.end(),
                                [this](int a, int b) { return degree(a) < degree(b); });
      takeBack(begin);
    }
  }

  const Neighbours& neighbours;
  std::vector<int> front;  ///< number of the front that the cell is in
  std::vector<int> order;
};

}  // namespace

Tidying tidyMesh(Mesh& mesh) {
  Tidying done;
  refuseDoubleNodes(mesh);
  for (Triangle& cell : mesh.cells) {
    if (turnCounterClockwise(mesh, cell)) ++done.turnedCells;
  }
  done.unusedNodes = dropUnusedNodes(mesh);
  return done;
}

Neighbours neighboursOf(const Topology& topology) {
  Neighbours result(topology.cellEdges.size());
  for (std::size_t cell = 0; cell < result.size(); ++cell) {
    result[cell] = topology.neighbours(cell);
  }
  return result;
}

std::vector<int> cuthillMcKee(const Neighbours& neighbours) {
  return CuthillMcKee(neighbours).run();
}

void orderCells(Mesh& mesh, const std::vector<int>& order) {
  std::vector<Triangle> ordered;
  ordered.reserve(order.size());
  for (const int old : order) ordered.push_back(mesh.cells[index(old)]);
  mesh.cells = std::move(ordered);
}

int bandwidth(const Neighbours& neighbours) {
  int widest = 0;
  for (int cell = 0; cell < static_cast<int>(neighbours.size()); ++cell) {
    for (const int other : neighbours[index(cell)]) {
      widest = std::max(widest, std::abs(other - cell));
    }
  }
  return widest;
}

}  // namespace setup
