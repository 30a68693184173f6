// Prepares the cells before the time marching: their squared Chezy value.
#pragma once

#include "simulation/kernels/Parameters.h"
#include "simulation/kernels/hydraulics/chezy.h"
#include "simulation/kernels/numeric.h"

namespace kernels::hydraulics {

/// Wet or dry, each cell gets the value of a depth of at least MinWaterDepth.
/// @param state {H, qx, qy} [m, m2/s]; @param bed z [m]
/// @param roughness friction value of the cell, in the closure's own unit
/// @param chezy out: squared Chezy value [-]
inline void initialize_friction(const Parameters& par, const double* state, const double* bed,
                                const double* roughness, double* chezy) {
  const double depth = fmax(state[0] - bed[0], par.real(ParameterID::MinWaterDepth));
  chezy[0] = chezySquared(par, depth, roughness[0]);
}

}  // namespace kernels::hydraulics
