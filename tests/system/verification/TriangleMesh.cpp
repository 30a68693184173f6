#include "system/verification/TriangleMesh.h"

#include <algorithm>
#include <limits>
#include <numeric>
#include <sstream>
#include <utility>

namespace verification {

namespace {

/// By how much of a grid step an inner node may move: no rectangle gets a corner of 180 degrees.
constexpr double MOVE = 0.18;

std::vector<std::size_t> randomOrder(std::size_t count, Random& random) {
  std::vector<std::size_t> order(count);
  std::iota(order.begin(), order.end(), std::size_t{0});
  for (std::size_t k = count; k > 1; --k) std::swap(order[k - 1], order[random.below(k)]);
  return order;
}

}  // namespace

double Random::between(double low, double high) {
  const double unit = static_cast<double>(engine() >> 11U) * 0x1p-53;
  return low + (high - low) * unit;
}

std::size_t Random::below(std::size_t count) {
  return static_cast<std::size_t>(engine() % count);
}

Point centroid(const TriangleMesh& mesh, const Element& element) {
  Point sum;
  for (const std::size_t n : element.nodes) {
    sum.x += mesh.nodes[n].x;
    sum.y += mesh.nodes[n].y;
  }
  return {sum.x / 3.0, sum.y / 3.0};
}

TriangleMesh irregularMesh(const std::array<double, 2>& size,
                           const std::array<std::size_t, 2>& count, Random& random) {
  const auto [nx, ny] = count;
  const double dx = size[0] / static_cast<double>(nx);
  const double dy = size[1] / static_cast<double>(ny);
  TriangleMesh mesh;
  for (std::size_t j = 0; j <= ny; ++j) {
    for (std::size_t i = 0; i <= nx; ++i) {
      const bool movesX = i > 0 && i < nx;
      const bool movesY = j > 0 && j < ny;
      mesh.nodes.push_back(
          {dx * (static_cast<double>(i) + (movesX ? random.between(-MOVE, MOVE) : 0.0)),
           dy * (static_cast<double>(j) + (movesY ? random.between(-MOVE, MOVE) : 0.0)), 0.0});
    }
  }
  for (std::size_t j = 0; j < ny; ++j) {
    for (std::size_t i = 0; i < nx; ++i) {
      const std::size_t a = j * (nx + 1) + i;  // lower left, then counter-clockwise
      const std::size_t b = a + 1;
      const std::size_t c = b + nx + 1;
      const std::size_t d = a + nx + 1;
      if (random.below(2) == 0) {
        mesh.elements.insert(mesh.elements.end(), {{{a, b, c}}, {{a, c, d}}});
      } else {
        mesh.elements.insert(mesh.elements.end(), {{{a, b, d}}, {{b, c, d}}});
      }
    }
  }
  return mesh;
}

TriangleMesh symmetricMesh(std::size_t count, double step) {
  const double half = 0.5 * static_cast<double>(count);
  const auto position = [half, step](double k) { return step * (k - half); };
  TriangleMesh mesh;
  for (std::size_t j = 0; j <= count; ++j) {
    for (std::size_t i = 0; i <= count; ++i) {
      mesh.nodes.push_back(
          {position(static_cast<double>(i)), position(static_cast<double>(j)), 0.0});
    }
  }
  for (std::size_t j = 0; j < count; ++j) {
    for (std::size_t i = 0; i < count; ++i) {
      const std::size_t a = j * (count + 1) + i;
      const std::size_t b = a + 1;
      const std::size_t c = b + count + 1;
      const std::size_t d = a + count + 1;
      const std::size_t middle = mesh.nodes.size();
      mesh.nodes.push_back(
          {position(static_cast<double>(i) + 0.5), position(static_cast<double>(j) + 0.5), 0.0});
      mesh.elements.insert(
          mesh.elements.end(),
          {{{a, b, middle}}, {{b, c, middle}}, {{c, d, middle}}, {{d, a, middle}}});
    }
  }
  return mesh;
}

TriangleMesh renumbered(const TriangleMesh& mesh, Random& random) {
  TriangleMesh result;
  std::vector<std::size_t> newPosition(mesh.nodes.size());
  for (const std::size_t old : randomOrder(mesh.nodes.size(), random)) {
    newPosition[old] = result.nodes.size();
    result.nodes.push_back(mesh.nodes[old]);
  }
  for (const std::size_t old : randomOrder(mesh.elements.size(), random)) {
    Element element = mesh.elements[old];
    for (std::size_t& node : element.nodes) node = newPosition[node];
    std::rotate(element.nodes.begin(),
                element.nodes.begin() + static_cast<std::ptrdiff_t>(random.below(3)),
                element.nodes.end());
    if (result.elements.size() % 2 == 1) std::swap(element.nodes[1], element.nodes[2]);
    result.elements.push_back(element);
  }
  return result;
}

std::string to2dm(const TriangleMesh& mesh) {
  std::ostringstream text;
  text.precision(std::numeric_limits<double>::max_digits10);
  text << "MESH2D\n";
  for (std::size_t k = 0; k < mesh.elements.size(); ++k) {
    text << "E3T " << k + 1;
    for (const std::size_t node : mesh.elements[k].nodes) text << ' ' << node + 1;
    text << ' ' << mesh.elements[k].material << '\n';
  }
  for (std::size_t k = 0; k < mesh.nodes.size(); ++k) {
    const Node& node = mesh.nodes[k];
    text << "ND " << k + 1 << ' ' << node.x << ' ' << node.y << ' ' << node.z << '\n';
  }
  return text.str();
}

}  // namespace verification
