// Wet or dry: what becomes of a cell after its depth has changed.
#pragma once

#include "catalogue/wet.h"
#include "simulation/kernels/Parameters.h"

namespace kernels::hydraulics {

/// Wets a cell whose depth exceeds MinWaterDepth, strictly; dries all others. A dry cell keeps its
/// thin layer of water, only its motion is stopped.
/// @param h depth after the change [m]; @param state {H, qx, qy} [m, m2/s]
/// @param wetted out: 1 or 0
/// @return false if the depth is negative beyond round-off; nothing is changed then
inline bool settle(const Parameters& par, double h, double* state, int* wetted) {
  if (h < -1e-12) return false;
  if (model::isWet(h, par.real(ParameterID::MinWaterDepth))) {
    wetted[0] = 1;
  } else {
    wetted[0] = 0;
    state[1] = 0.0;
    state[2] = 0.0;
  }
  return true;
}

}  // namespace kernels::hydraulics
