// Looks a series up for a source: against time, which is all that sources know.
#pragma once

#include "catalogue/Codes.h"
#include "simulation/kernels/data/series.h"

namespace kernels::data {

/// @param row,size the series and its number of values
/// @param keyPosition {key, write position}; a key other than the time looks up at x = 0
/// @param time [s]
/// @param source source record, two values; only the one at the write position changes
inline void cell_interpolation(const double* row, const int* size, const int* keyPosition,
                               const double* time, double* source) {
  const bool byTime = model::InterpolationKey{keyPosition[0]} == model::InterpolationKey::Time;
  const double x = byTime ? time[0] : 0.0;
  source[keyPosition[1]] = seriesValue(row, size[0], x);
}

}  // namespace kernels::data
