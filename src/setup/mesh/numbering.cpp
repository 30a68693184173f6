#include "setup/mesh/numbering.h"

#include <algorithm>
#include <cstdlib>

#include "setup/mesh/position.h"

namespace setup {

namespace {

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
