// Codes as the numbers that a run file holds.
#pragma once

#include <array>

#include "setup/study/boundary_types.h"

namespace codes {

template <class Code>
int numberOf(Code code) {
  return static_cast<int>(code);
}

/// 0 for a boundary without a second string.
inline int numberOf(const std::optional<setup::BoundaryCode>& code) {
  return code ? setup::numberOf(*code) : 0;
}

/// Type, the position that is written and the five that are read.
inline std::array<int, 7> rowOf(const setup::Modification& modification) {
  const auto [a, b, c, d, e] = modification.sources;
  return {numberOf(modification.type), modification.target, a, b, c, d, e};
}

}  // namespace codes
