// Prepares the cells before the time marching: which of them are wet.
#pragma once

#include "catalogue/wet.h"
#include "simulation/kernels/Parameters.h"

namespace kernels::hydraulics {

/// Discharges stay untouched: a
/// dry cell keeps what it was given until the first update.
/// @param state {H, qx, qy} [m, m2/s]; @param bed z [m]; @param wetted out: 1 or 0
inline void initialize_cell_features(const Parameters& par, const double* state, const double* bed,
                                     int* wetted) {
  const double minimum = par.real(ParameterID::MinWaterDepth);
  wetted[0] = model::isWet(state[0] - bed[0], minimum) ? 1 : 0;
}

}  // namespace kernels::hydraulics
