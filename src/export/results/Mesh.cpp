#include "export/results/Mesh.h"

namespace exporter {

using Point = std::array<double, 3>;

double signedArea(const Point& a, const Point& b, const Point& c) {
  return (b[0] - a[0]) * (c[1] - a[1]) - (b[1] - a[1]) * (c[0] - a[0]);
}

bool contains(const Mesh& mesh, const std::array<int, 3>& cell, double x, double y) {
  const auto corner = [&](std::size_t i) -> const Point& {
    return mesh.nodes[static_cast<std::size_t>(cell[i])];
  };
  const Point point{x, y, 0.0};
  const double a = signedArea(corner(0), corner(1), point);
  const double b = signedArea(corner(1), corner(2), point);
  const double c = signedArea(corner(2), corner(0), point);
  return (a >= 0.0 && b >= 0.0 && c >= 0.0) || (a <= 0.0 && b <= 0.0 && c <= 0.0);
}

}  // namespace exporter
