// Hydraulic flux across an edge between two cells of the domain.
#pragma once

#include "simulation/kernels/hydraulics/hydrodynamic_solver.h"

namespace kernels::hydraulics {

/// Arguments and units as those of hydrodynamic_solver.
inline void internal_fluxes(const Parameters& par, const double* normal, const int* wettedLeft,
                            const int* wettedRight, const double* stateLeft,
                            const double* stateRight, const double* bedLeft, const double* bedRight,
                            double* flux) {
  hydrodynamic_solver(par, normal, stateLeft, bedLeft, wettedLeft, stateRight, bedRight,
                      wettedRight, flux);
}

}  // namespace kernels::hydraulics
