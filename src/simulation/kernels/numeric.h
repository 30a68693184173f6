// Small numerical helpers that all kernels share.
#pragma once

#include <cmath>

namespace kernels {

/// Denominators below this value count as zero. The value is never scaled.
inline constexpr double TINY = 1e-12;

// The library's fmin and fmax cost a call per use. These have the same semantics: a number beats
// a NaN, which neither std::min nor a plain comparison guarantees.
inline double fmin(double x, double y) {
  return (x < y || y != y) ? x : y;
}
inline double fmax(double x, double y) {
  return (x > y || y != y) ? x : y;
}

/// 1/x, or 0 if x is below TINY.
inline double inverse(double x) {
  return x < TINY ? 0.0 : 1.0 / x;
}

/// 1/x, or 0 if |x| is below TINY.
inline double inverseOfAbsolute(double x) {
  return std::fabs(x) < TINY ? 0.0 : 1.0 / x;
}

/// 1/depth, or 0 if the depth [m] is below `minimum` [m].
inline double inverseDepth(double depth, double minimum) {
  return minimum > depth ? 0.0 : 1.0 / depth;
}

}  // namespace kernels
