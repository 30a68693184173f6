#include "export/Gauge.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

#include "common/console.h"
#include "export/Csv.h"

namespace console = common::console;

namespace exporter {

namespace {

using Point = std::array<double, 3>;

/// Twice the area of the triangle a, b, gauge: positive if it lies to the left of a line from a to
/// b.
double side(const Point& a, const Point& b, const Gauge& gauge) {
  return (b[0] - a[0]) * (gauge.y - a[1]) - (b[1] - a[1]) * (gauge.x - a[0]);
}

/// Whatever the sense in which the corners run.
bool contains(const Mesh& mesh, const std::array<int, 3>& cell, const Gauge& gauge) {
  const auto corner = [&](std::size_t i) -> const Point& {
    return mesh.nodes[static_cast<std::size_t>(cell[i])];
  };
  const double a = side(corner(0), corner(1), gauge);
  const double b = side(corner(1), corner(2), gauge);
  const double c = side(corner(2), corner(0), gauge);
  return (a >= 0.0 && b >= 0.0 && c >= 0.0) || (a <= 0.0 && b <= 0.0 && c <= 0.0);
}

/// "0 to 12.5"
std::string extent(const Mesh& mesh, std::size_t axis) {
  double least = std::numeric_limits<double>::infinity();
  double most = -least;
  for (const Point& node : mesh.nodes) {
    least = std::min(least, node[axis]);
    most = std::max(most, node[axis]);
  }
  return numberText(least) + " to " + numberText(most);
}

/// Takes a number off the front of a text.
bool takeNumber(const char*& begin, const char* end, double& value) {
  const auto parsed = std::from_chars(begin, end, value);
  begin = parsed.ptr;
  return parsed.ec == std::errc() && std::isfinite(value);
}

}  // namespace

Gauge parseGauge(const std::string& text, int number) {
  Gauge gauge{"gauge " + std::to_string(number), 0.0, 0.0};
  const char* next = text.data();
  const char* const end = next + text.size();
  const bool isPoint = takeNumber(next, end, gauge.x) && next != end && *next++ == ',' &&
                       takeNumber(next, end, gauge.y);
  if (!isPoint || (next != end && *next != ',')) {
    console::fail("gauge <", text, ">: give x,y or x,y,name, as in 12.5,3,bridge");
  }
  if (next != end && next + 1 != end) gauge.name.assign(next + 1, end);
  return gauge;
}

std::size_t cellAt(const Mesh& mesh, const Gauge& gauge) {
  for (std::size_t cell = 0; cell < mesh.cells.size(); ++cell) {
    if (contains(mesh, mesh.cells[cell], gauge)) return cell;
  }
  console::fail("gauge <", gauge.name, "> at ", numberText(gauge.x), ", ", numberText(gauge.y),
                " lies outside the mesh, whose x runs from ", extent(mesh, 0), " and y from ",
                extent(mesh, 1), " m");
}

}  // namespace exporter
