#include "setup/mesh/made_meshes.h"

#include <algorithm>
#include <cmath>

namespace setup {

namespace {

class Grid {
 public:
  Grid(const std::vector<double>& xLines, const std::vector<double>& yLines,
       const std::function<double(double, double)>& bedAt)
      : x(xLines), y(yLines), bed(bedAt) {
    for (const double yLine : y) {
      for (const double xLine : x) addNode(xLine, yLine);
    }
  }

  Mesh cut(Pattern pattern) {
    for (std::size_t j = 0; j + 1 < y.size(); ++j) {
      for (std::size_t i = 0; i + 1 < x.size(); ++i) cutRectangle(i, j, pattern);
    }
    return std::move(mesh);
  }

 private:
  int addNode(double xNode, double yNode) {
    const auto position = static_cast<int>(mesh.nodes.size());
    mesh.nodes.push_back({position + 1, xNode, yNode, bed(xNode, yNode), 0});
    return position;
  }

  void addCell(int a, int b, int c) {
    mesh.cells.push_back({static_cast<long>(mesh.cells.size()) + 1, {a, b, c}, 1, 0});
  }

  void cutRectangle(std::size_t i, std::size_t j, Pattern pattern) {
    const auto lowerLeft = static_cast<int>(j * x.size() + i);
    const int lowerRight = lowerLeft + 1;
    const int upperLeft = lowerLeft + static_cast<int>(x.size());
    const int upperRight = upperLeft + 1;
    if (pattern == Pattern::Crossed) {
      const int centre = addNode(0.5 * (x[i] + x[i + 1]), 0.5 * (y[j] + y[j + 1]));
      addCell(lowerLeft, lowerRight, centre);
      addCell(lowerRight, upperRight, centre);
      addCell(upperRight, upperLeft, centre);
      addCell(upperLeft, lowerLeft, centre);
    } else if (pattern == Pattern::Diagonal || (i + j) % 2 == 0) {
      addCell(lowerLeft, lowerRight, upperRight);
      addCell(lowerLeft, upperRight, upperLeft);
    } else {
      addCell(lowerLeft, lowerRight, upperLeft);
      addCell(lowerRight, upperRight, upperLeft);
    }
  }

  const std::vector<double>& x;
  const std::vector<double>& y;
  const std::function<double(double, double)>& bed;
  Mesh mesh;
};

/// Appends the lines that divide the span from the last line to `end` into `parts`.
void divide(std::vector<double>& lines, double end, int parts) {
  const double begin = lines.back();
  for (int k = 1; k <= parts; ++k) {
    lines.push_back(k == parts ? end : begin + (end - begin) * k / parts);
  }
}

std::vector<double> dividedLines(double begin, double end, int parts) {
  std::vector<double> lines{begin};
  divide(lines, end, parts);
  return lines;
}

}  // namespace

Mesh gridMesh(const std::vector<double>& x, const std::vector<double>& y,
              const std::function<double(double, double)>& bed, Pattern pattern) {
  return Grid(x, y, bed).cut(pattern);
}

Mesh makeMesh(const RectangleMesh& rectangle) {
  const auto [x0, y0] = rectangle.origin;
  return gridMesh(
      dividedLines(x0, x0 + rectangle.length, rectangle.cells[0]),
      dividedLines(y0, y0 + rectangle.width, rectangle.cells[1]),
      [&rectangle, x0 = x0](double x, double /*y*/) {
        return rectangle.elevation - rectangle.slope * (x - x0);
      },
      rectangle.pattern);
}

Mesh makeMesh(const ChannelMesh& channel) {
  const auto [x0, y0] = channel.origin;
  const double halfBed = 0.5 * channel.bedWidth;
  const double bank = channel.sideSlope * channel.bankHeight;
  std::vector<double> y;
  if (bank > 0.0) {
    y = dividedLines(y0 - halfBed - bank, y0 - halfBed, channel.cells[2]);
  } else {
    y = {y0 - halfBed};
  }
  divide(y, y0 + halfBed, channel.cells[1]);
  if (bank > 0.0) divide(y, y0 + halfBed + bank, channel.cells[2]);
  return gridMesh(
      dividedLines(x0, x0 + channel.length, channel.cells[0]), y,
      [&channel, halfBed, bank, x0 = x0, y0 = y0](double xNode, double yNode) {
        const double outside = std::max(0.0, std::abs(yNode - y0) - halfBed);
        const double rise = bank > 0.0 ? outside / channel.sideSlope : 0.0;
        return channel.elevation - channel.slope * (xNode - x0) + rise;
      },
      channel.pattern);
}

}  // namespace setup
