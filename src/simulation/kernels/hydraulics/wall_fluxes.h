// Flux at a wall, the default of all boundary edges: no mass, the pressure of the cell.
#pragma once

#include "simulation/kernels/hydraulics/boundary_types.h"

namespace kernels::hydraulics {

/// @param state {H, qx, qy} [m, m2/s]; @param bed z [m]; @param normal {nx, ny}
/// @param flux out: five components as those of hydrodynamic_solver
inline void wall_fluxes(const Parameters& par, const double* state, const double* bed,
                        const double* normal, double* flux) {
  wallFlux(par, normal, boundaryCell(normal, state, bed[0]), flux);
}

}  // namespace kernels::hydraulics
