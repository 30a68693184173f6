// A series of points (x, y), linear between them and constant outside.
//
// A row holds pairs x0, y0, x1, y1, ... with ascending x, at most SERIES_VALUES values. Pairs
// behind the last point have the missing value as their x, which ends the series.
#pragma once

#include <cstddef>

#include "catalogue/Limits.h"
#include "simulation/kernels/numeric.h"

namespace kernels::data {

/// Index of the first of `points` pairs whose x lies above the given one or is the end mark;
/// `points` if there is none.
inline std::ptrdiff_t firstPointAbove(const double* row, std::ptrdiff_t points, double x) {
  std::ptrdiff_t low = 0;
  std::ptrdiff_t high = points;
  while (high != low) {
    const std::ptrdiff_t middle = (high + low) / 2;
    const double xm = row[2 * middle];
    if (xm == model::MISSING_VALUE || xm > x) {
      high = middle;
    } else {
      low = middle + 1;
    }
  }
  return high;
}

/// Value of the series at x; between two points closer than 1e-12 that of the left one.
/// @param row the pairs; the first one must be a point, and an x behind the last point needs an
///   end mark within the row
/// @param size number of values in use, 2 to SERIES_VALUES
inline double seriesValue(const double* row, int size, double x) {
  if (row[0] >= x) return row[1];
  const double* const right = row + 2 * firstPointAbove(row, size / 2, x);
  const double* const left = right - 2;
  if (right[0] == model::MISSING_VALUE) return left[1];
  const double dx = right[0] - left[0];
  const double dy = right[1] - left[1];
  return (x - left[0]) * (inverseOfAbsolute(dx) * dy) + left[1];
}

}  // namespace kernels::data
