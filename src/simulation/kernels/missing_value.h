// The mark of a value that is not there.
//
// It ends a series, stands for the water surface and the bed of a dry nodestring, means "never"
// for a switch level and is the inverse Chezy value of a run without friction. Tests for it are
// exact; arithmetic treats it as a number next to zero.
#pragma once

#include <limits>

namespace kernels {

/// The smallest normal double, 2.2250738585072014e-308 (DBL_MIN).
inline constexpr double MISSING_VALUE = std::numeric_limits<double>::min();

}  // namespace kernels
