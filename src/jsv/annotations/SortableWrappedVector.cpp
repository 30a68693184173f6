#include "jsv/annotations/SortableWrappedVector.h"

#include <algorithm>
#include <utility>

namespace jsv {

SortableWrappedVector::SortableWrappedVector(std::vector<std::string> sorted)
    : values_(std::make_shared<const std::vector<std::string>>(std::move(sorted))) {}

bool SortableWrappedVector::contains(const std::string& value) const {
  return std::binary_search(begin(), end(), value);
}

SortableWrappedVector makeSortable(std::vector<std::string> values) {
  std::sort(values.begin(), values.end());
  return SortableWrappedVector(std::move(values));
}

}  // namespace jsv
