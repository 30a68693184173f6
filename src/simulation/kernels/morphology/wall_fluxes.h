// Bed load flux at a wall, the default of all boundary edges: none.
#pragma once

namespace kernels::morphology {

/// @param flux out [m2/s]
inline void wall_fluxes(double* flux) {
  flux[0] = 0.0;
}

}  // namespace kernels::morphology
