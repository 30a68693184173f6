// Sizes that bound what a run file can hold, and the number that stands there for no value.
#pragma once

#include <limits>

namespace model {

/// The greatest number of edges of a nodestring: the width of its rows.
inline constexpr int STRING_EDGES = 40;

/// The width of the row of a series: pairs of an abscissa and an ordinate, of which one stays free
/// for the mark of its end.
inline constexpr int SERIES_VALUES = 12000;

/// The smallest normal double, 2.2250738585072014e-308: a value that is not there. It ends a
/// series, stands for the water surface and the bed of a dry nodestring, means "never" for the
/// level of a switch and is the inverse Chezy value of a run without friction. Tests for it are
/// exact; arithmetic treats it as a number next to zero.
inline constexpr double MISSING_VALUE = std::numeric_limits<double>::min();

}  // namespace model
