// A grid of square pixels over a mesh, north up, and the cells that its pixels show.
//
//   const exporter::Raster raster = exporter::rasterOver(mesh, 2.0);
//   const std::vector<int> cells = exporter::cellsOf(raster, mesh, 0, raster.rows);
#pragma once

#include <vector>

#include "export/results/Mesh.h"

namespace exporter {

/// The upper left corner of the grid is that of the box around the mesh.
struct Raster {
  double west;        ///< x of the left side [m]
  double north;       ///< y of the upper side [m]
  double resolution;  ///< side of a pixel [m]
  int columns;
  int rows;  ///< from north to south

  double x(int column) const { return west + (column + 0.5) * resolution; }  ///< of a centre [m]
  double y(int row) const { return north - (row + 0.5) * resolution; }       ///< of a centre [m]
};

/// Of a pixel whose centre lies outside the mesh.
inline constexpr int NO_CELL = -1;

/// @throws BaseException for a resolution that is not positive, coarser than the whole mesh, or so
///         fine that more than 1e9 pixels would be needed.
Raster rasterOver(const Mesh& mesh, double resolution);

/// The cell that contains the centre of each pixel, row after row; on an edge the first one of
/// those beside it.
/// @param first,count rows of the grid
std::vector<int> cellsOf(const Raster& raster, const Mesh& mesh, int first, int count);

}  // namespace exporter
