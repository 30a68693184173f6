// Helpers on vectors that serve as sorted lists of IDs, data or times.
#pragma once

#include <algorithm>
#include <vector>

namespace model {

/// Sorts ascending and removes duplicates, in place.
template <class T>
void sortVector(std::vector<T>& values) {
  std::sort(values.begin(), values.end());
  values.erase(std::unique(values.begin(), values.end()), values.end());
  values.shrink_to_fit();
}

/// Index of the first element equal to `value`, or -1.
template <class T>
int elementInVector(const T& value, const std::vector<T>& values) {
  const auto found = std::find(values.begin(), values.end(), value);
  return found == values.end() ? -1 : static_cast<int>(found - values.begin());
}

}  // namespace model
