#include "export/formats/Raster.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "common/console.h"
#include "export/results/Csv.h"

namespace console = common::console;

namespace exporter {

namespace {

constexpr double MOST_PIXELS = 1e9;
/// Of a pixel: what a side of the mesh may be longer than a whole number of pixels by round-off.
constexpr double ROUND_OFF = 1e-6;

struct Range {
  double least = std::numeric_limits<double>::infinity();
  double most = -std::numeric_limits<double>::infinity();

  void add(double value) {
    least = std::min(least, value);
    most = std::max(most, value);
  }
  double length() const { return most - least; }
};

double pixels(const Range& range, double resolution) {
  return std::max(1.0, std::ceil(range.length() / resolution - ROUND_OFF));
}

/// "12 m x 3.5 m"
std::string sizeText(const Range& x, const Range& y) {
  return numberText(x.length()) + " m x " + numberText(y.length()) + " m";
}

/// The pixels along an axis whose centres lie in a range, or one more on either side.
struct Span {
  int first;
  int last;
};

Span centresIn(double least, double most, double origin, double resolution, int from, int to) {
  const double first = std::floor((least - origin) / resolution - 0.5);
  const double last = std::ceil((most - origin) / resolution - 0.5);
  return {static_cast<int>(std::max(first, static_cast<double>(from))),
          static_cast<int>(std::min(last, static_cast<double>(to)))};
}

}  // namespace

Raster rasterOver(const Mesh& mesh, double resolution) {
  Range x;
  Range y;
  for (const std::array<double, 3>& node : mesh.nodes) {
    x.add(node[0]);
    y.add(node[1]);
  }
  if (!(resolution > 0.0) || !std::isfinite(resolution)) {
    console::fail("resolution <", resolution, ">: the side of a pixel must be positive, in m");
  }
  if (resolution > std::max(x.length(), y.length())) {
    console::fail("resolution <", numberText(resolution), "> is coarser than the whole mesh of ",
                  sizeText(x, y));
  }
  const double columns = pixels(x, resolution);
  const double rows = pixels(y, resolution);
  if (columns * rows > MOST_PIXELS) {
    console::fail(
        "resolution <", numberText(resolution), "> is too fine: the mesh of ", sizeText(x, y),
        " would need ", columns, " x ", rows, " pixels, at most 1e9 are possible: give ",
        std::ceil(std::sqrt(x.length() * y.length() / MOST_PIXELS) * 1e3 + 1.0) / 1e3, " or more");
  }
  return {x.least, y.most, resolution, static_cast<int>(columns), static_cast<int>(rows)};
}

std::vector<int> cellsOf(const Raster& raster, const Mesh& mesh, int first, int count) {
  const auto columns = static_cast<std::size_t>(raster.columns);
  std::vector<int> found(columns * static_cast<std::size_t>(count), NO_CELL);
  for (std::size_t cell = 0; cell < mesh.cells.size(); ++cell) {
    Range x;
    Range south;  // of the upper side of the grid
    for (const int node : mesh.cells[cell]) {
      x.add(mesh.nodes[static_cast<std::size_t>(node)][0]);
      south.add(raster.north - mesh.nodes[static_cast<std::size_t>(node)][1]);
    }
    const Span rows =
        centresIn(south.least, south.most, 0.0, raster.resolution, first, first + count - 1);
    const Span across =
        centresIn(x.least, x.most, raster.west, raster.resolution, 0, raster.columns - 1);
    for (int row = rows.first; row <= rows.last; ++row) {
      for (int column = across.first; column <= across.last; ++column) {
        int& pixel = found[static_cast<std::size_t>(row - first) * columns +
                           static_cast<std::size_t>(column)];
        if (pixel == NO_CELL && contains(mesh, mesh.cells[cell], raster.x(column), raster.y(row))) {
          pixel = static_cast<int>(cell);
        }
      }
    }
  }
  return found;
}

}  // namespace exporter
