// Positions in lists are ints throughout, as the run file stores them; containers want another
// type.
#pragma once

#include <cstddef>

namespace setup {

constexpr std::size_t index(int position) {
  return static_cast<std::size_t>(position);
}

}  // namespace setup
