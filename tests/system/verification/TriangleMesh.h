// Meshes for the verification runs, made from a seed: the same on every machine.
//
//   Random random(7);
//   TriangleMesh mesh = irregularMesh({60.0, 40.0}, {42, 28}, random);
//   for (Node& node : mesh.nodes) node.z = ...;
//   support::writeFile(dir.file("mesh.2dm"), to2dm(mesh));
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <random>
#include <string>
#include <vector>

namespace verification {

/// The library's distributions differ between systems; these do not.
class Random {
 public:
  explicit Random(std::uint64_t seed) : engine(seed) {}

  /// A number from `low` up to, but not including, `high`.
  double between(double low, double high);
  /// A whole number from 0 to `count` - 1.
  std::size_t below(std::size_t count);

 private:
  std::mt19937_64 engine;
};

struct Node {
  double x = 0.0;  ///< [m]
  double y = 0.0;  ///< [m]
  double z = 0.0;  ///< bed elevation [m]
};

struct Element {
  std::array<std::size_t, 3> nodes{};
  int material = 1;
};

struct TriangleMesh {
  std::vector<Node> nodes;
  std::vector<Element> elements;
};

struct Point {
  double x = 0.0;
  double y = 0.0;
};

Point centroid(const TriangleMesh& mesh, const Element& element);

/// A rectangle from the origin to `size` [m]: a grid of `count` rectangles along x and y whose
/// inner nodes are moved and whose rectangles are cut by one or the other diagonal, both at random.
TriangleMesh irregularMesh(const std::array<double, 2>& size,
                           const std::array<std::size_t, 2>& count, Random& random);

/// A square around the origin: a grid of `count` squares of side `step` [m] each way, `count` even,
/// each cut by both diagonals. The mesh comes to lie on itself when it is turned by 90 degrees or
/// mirrored at an axis or a diagonal, and the coordinates do so to the last bit if `step` is a
/// multiple of a power of two.
TriangleMesh symmetricMesh(std::size_t count, double step);

/// The same mesh with nodes and elements in random order, each element beginning at a random one of
/// its nodes and every other one clockwise.
TriangleMesh renumbered(const TriangleMesh& mesh, Random& random);

/// The mesh as text in the 2dm format, with all digits of the coordinates.
std::string to2dm(const TriangleMesh& mesh);

}  // namespace verification
