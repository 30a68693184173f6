#include "h5/shape.h"

#include <limits>

namespace h5 {

std::optional<Shape> fit(const Shape& dims, std::size_t rank) {
  if (dims.size() == rank) return dims;

  Shape front = dims;
  while (front.size() > 1 && front.back() == 1) front.pop_back();
  if (front.size() == rank) return front;

  auto first = dims.begin();
  while (dims.end() - first > 1 && *first == 1) ++first;
  Shape back(first, dims.end());
  if (back.size() == rank) return back;

  return std::nullopt;
}

std::size_t elementCount(const Shape& shape) {
  std::size_t count = 1;
  for (const hsize_t extent : shape) {
    if (extent != 0 && count > std::numeric_limits<std::ptrdiff_t>::max() / extent) {
      throw Error("Impossible to hold a dataset with so many values in memory");
    }
    count *= extent;
  }
  return count;
}

void requireSize(std::size_t vectorSize, hsize_t datasetSize, std::size_t dimension) {
  if (vectorSize == datasetSize) return;
  throw Error("Mismatch between vector size (" + std::to_string(vectorSize) +
              ") and dataset size (" + std::to_string(datasetSize) + ") on dimension " +
              std::to_string(dimension));
}

}  // namespace h5
