// Hydraulic flux across an edge between two cells of the domain.
#pragma once

#include "simulation/kernels/hydraulics/hydrodynamic_solver.h"

namespace kernels::hydraulics {

/// Arguments and units as those of hydrodynamic_solver.
inline void internal_fluxes(double const* normal, int const* wettedLeft, int const* wettedRight,
                            double const* stateLeft, double const* stateRight,
                            double const* bedLeft, double const* bedRight, double* flux) {
  hydrodynamic_solver(normal, stateLeft, bedLeft, wettedLeft, stateRight, bedRight, wettedRight,
                      flux);
}

}  // namespace kernels::hydraulics
