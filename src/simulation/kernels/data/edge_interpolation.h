// Looks a series up for a boundary: against time, or as a rating curve against the state of a
// nodestring.
#pragma once

#include "catalogue/Codes.h"
#include "simulation/kernels/data/series.h"

namespace kernels::data {

/// What a boundary series is looked up against; 0 for an unknown key.
/// @param key an InterpolationKey; @param string state of the nodestring; @param time [s]
inline double lookupVariable(int key, const double* string, double time) {
  // clang-format off
  using enum model::InterpolationKey;
  switch (model::InterpolationKey{key}) {
    case Time:       return time;
    case Depth:      return string[0] - string[3];
    case WaterLevel: return string[0];
    case Discharge:  return string[1];
    default:         return 0.0;
  }
  // clang-format on
}

/// @param row,size the series and its number of values; @param keyPosition {key, write position}
/// @param string state of the nodestring, ten values; @param time [s]
/// @param boundary boundary record, seven values; only the one at the write position changes
inline void edge_interpolation(const double* row, const int* size, const int* keyPosition,
                               const double* string, const double* time, double* boundary) {
  const double x = lookupVariable(keyPosition[0], string, time[0]);
  boundary[keyPosition[1]] = seriesValue(row, size[0], x);
}

}  // namespace kernels::data
