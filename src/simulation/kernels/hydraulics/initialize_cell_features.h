// Prepares the cells before the time marching: which of them are wet.
#pragma once

#include "simulation/kernels/parameters.h"

namespace kernels::hydraulics {

/// A cell is wet if its depth H - z exceeds MinWaterDepth, strictly. Discharges stay untouched: a
/// dry cell keeps what it was given until the first update.
/// @param state {H, qx, qy} [m, m2/s]; @param bed z [m]; @param wetted out: 1 or 0
inline void initialize_cell_features(const Parameters& par, const double* state, const double* bed,
                                     int* wetted) {
  wetted[0] = state[0] - bed[0] > par.real(ParameterID::MinWaterDepth) ? 1 : 0;
}

}  // namespace kernels::hydraulics
