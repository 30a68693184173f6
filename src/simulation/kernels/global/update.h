// The explicit Euler update of a cell: U' = U - dt/A sum of the fluxes through its three edges.
//
// Water and bed are coupled: a bed flux lifts or lowers the water surface together with the bed,
// so only the liquid flux changes the depth. Momentum comes in the cell's own outward sense for
// both sides of an edge, so it is picked by position and never multiplied by the sign.
#pragma once

#include "simulation/kernels/Diagnostics.h"
#include "simulation/kernels/hydraulics/wetting.h"

namespace kernels::global {

/// @param cell number of the cell, null unless in debug mode
/// @param dt time step [s]; @param morphology 1 if the bed moves; @param area [m2]
/// @param length lengths of the edges [m]; @param fluxHy five hydraulic fluxes per edge
/// @param fluxMo bed flux per edge [m2/s], in units of bed elevation; null unless the bed moves
/// @param sign 1 if the cell is on the left of the edge, -1 if on the right
/// @param state {H, qx, qy} [m, m2/s]; @param bed z [m]; @param wetted out: 1 or 0
/// @param massKept 0 if the depth of this cell is negative, else 1: each cell replaces the verdict
///   of the one before, so the flag tells only about the last cell of the loop
inline void update(const Parameters& par, const Diagnostics& diagnostics, const int* cell,
                   const double* dt, const int* morphology, const double* area,
                   const double* const* length, const double* const* fluxHy,
                   const double* const* fluxMo, const int* sign, double* state, double* bed,
                   int* wetted, int* massKept) {
  const double r = dt[0] / area[0];
  const double L0 = length[0][0];
  const double L1 = length[1][0];
  const double L2 = length[2][0];
  const double* const F0 = fluxHy[0];
  const double* const F1 = fluxHy[1];
  const double* const F2 = fluxHy[2];

  state[1] -= r * (((F0[2 - sign[0]] * L0 + 0.0) + F1[2 - sign[1]] * L1) + F2[2 - sign[2]] * L2);
  state[2] -= r * (((F0[3 - sign[0]] * L0 + 0.0) + F1[3 - sign[1]] * L1) + F2[3 - sign[2]] * L2);
  if (morphology[0] == 1) {
    const double M0 = fluxMo[0][0];
    const double M1 = fluxMo[1][0];
    const double M2 = fluxMo[2][0];
    const double s0 = L0 * sign[0];
    const double s1 = L1 * sign[1];
    const double s2 = L2 * sign[2];
    state[0] -= r * (s0 * (F0[0] + M0) + s1 * (F1[0] + M1) + s2 * (F2[0] + M2));
    bed[0] -= r * (s0 * M0 + s1 * M1 + s2 * M2);
  } else {
    state[0] -=
        r * ((L0 * (sign[0] * F0[0]) + 0.0 + L1 * (sign[1] * F1[0])) + L2 * (sign[2] * F2[0]));
  }

  const double h = state[0] - bed[0];
  const bool kept = hydraulics::settle(par, h, state, wetted);
  if (!kept) {
    if (par.debug()) {
      diagnostics.negativeDepth(h, cell[0]);
    } else {
      diagnostics.negativeDepth(h);
    }
  }
  massKept[0] = kept ? 1 : 0;
}

}  // namespace kernels::global
