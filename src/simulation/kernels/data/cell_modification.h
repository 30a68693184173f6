// Turns the totals that a user gives for a region into rates of water height.
#pragma once

namespace kernels::data {

/// Type 6 spreads a volume rate [m3/s] over the region, type 7 converts [mm/h] to [m/s]; every
/// other type changes nothing.
/// @param info {type, write position, read position, ...}; @param area of the region [m2]
/// @param source source record, two values
inline void cell_modification(const int* info, const double* area, const double* /*time*/,
                              double* source) {
  if (info[0] == 6) source[info[1]] = source[info[2]] / area[0];
  if (info[0] == 7) source[info[1]] = source[info[2]] / 3.6e6;
}

}  // namespace kernels::data
