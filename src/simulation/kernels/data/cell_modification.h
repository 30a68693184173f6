// Turns the totals that a user gives for a region into rates of water height.
#pragma once

#include "catalogue/Codes.h"

namespace kernels::data {

/// Spreads a volume rate [m3/s] over the region, or converts [mm/h] to [m/s]; an unknown code
/// changes nothing.
/// @param info {type, write position, read position, ...}; @param area of the region [m2]
/// @param source source record, two values
inline void cell_modification(const int* info, const double* area, const double* /*time*/,
                              double* source) {
  using enum model::CellModificationCode;
  const model::CellModificationCode code{info[0]};
  if (code == OverRegionArea) source[info[1]] = source[info[2]] / area[0];
  if (code == MillimetresPerHour) source[info[1]] = source[info[2]] / 3.6e6;
}

}  // namespace kernels::data
