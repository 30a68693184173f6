// The number that stands for a missing value in the run file: it ends a series, and as a level it
// means never.
#pragma once

#include <limits>

namespace setup {

constexpr double MISSING_VALUE = std::numeric_limits<double>::min();

}  // namespace setup
