// Extents of datasets and of the vectors that are read from and written to them.
//
// A vector and a dataset fit if their ranks are equal, or become equal when extents of 1 at the
// dataset's end, or else at its start, are left out: a vector fits an n by 1 and a 1 by n dataset.
#pragma once

#include <hdf5.h>

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "h5/Handle.h"

namespace h5 {

/// Extents, slowest first; empty for a single value without a dimension.
using Shape = std::vector<hsize_t>;

/// `dims` as an array of `rank` dimensions sees them, or nothing if the two do not fit.
std::optional<Shape> fit(const Shape& dims, std::size_t rank);

/// Number of values.
/// @throws Error if memory cannot hold so many.
std::size_t elementCount(const Shape& shape);

/// Shape of a dataset that is to hold all `rows`.
/// @throws Error if there is no row, as the number of columns is then unknown.
template <class T>
Shape shapeOf(const std::vector<std::vector<T>>& rows) {
  if (rows.empty()) {
    throw Error("Impossible to write an empty vector of vectors: at least one row is needed");
  }
  return {rows.size(), rows.front().size()};
}

/// @throws Error if a size on dimension `dimension` is not that of the dataset.
void requireSize(std::size_t vectorSize, hsize_t datasetSize, std::size_t dimension);

}  // namespace h5
