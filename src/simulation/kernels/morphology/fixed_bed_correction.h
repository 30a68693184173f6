// Keeps the bed of a cell above its fixed bed: the bed load out of the cell is scaled by
//
//   f = 1 - (zf - z') / (outflow dt/A),   z' = z - dt/A sum of the fluxes,
//
// so that the update cannot dig deeper than zf. Less outflow here is less inflow next door: the
// pass is repeated until no cell falls short by more than FixBedAccuracy.
#pragma once

#include "simulation/kernels/Diagnostics.h"
#include "simulation/kernels/Parameters.h"
#include "simulation/kernels/numeric.h"

namespace kernels::morphology {

/// Whether a flux leaves the cell; never through an edge of sign 0.
inline bool leavesCell(int sign, double flux) {
  return (sign > 0 && flux > 0.0) || (sign < 0 && flux < 0.0);
}

/// Cells are visited in order: where two of them share an edge, the second meets the flux that the
/// first has scaled.
/// @param cell number of the cell, null unless in debug mode; @param dt time step [s]
/// @param area [m2]; @param bed z [m]; @param fixedBed zf [m]
/// @param sign 1 if the cell is on the left of the edge, -1 if on the right
/// @param length lengths of the edges [m]
/// @param newBed out: z' [m], before the correction
/// @param flux bed flux per edge [m2/s]; those out of the cell are scaled, the others kept
inline void fixed_bed_correction(const Parameters& par, const Diagnostics& diagnostics,
                                 const int* cell, const double* dt, const double* area,
                                 const double* bed, const double* fixedBed, const int* sign,
                                 const double* const* length, double* newBed, double* const* flux) {
  double net = 0.0;
  double outflow = 0.0;
  for (int k = 0; k < 3; ++k) {
    const double share = sign[k] * flux[k][0] * length[k][0];
    net += share;
    if (leavesCell(sign[k], flux[k][0])) outflow += share;
  }
  const double r = dt[0] / area[0];
  newBed[0] = bed[0] - net * r;
  const double overdraft = fixedBed[0] - newBed[0];
  if (!(overdraft > 0.0)) return;
  if (par.debug()) diagnostics.overdraft(overdraft, cell[0]);

  // A cell without outflow divides by zero and gets f = 0, with nothing to scale.
  const double f = 1.0 - overdraft / (outflow * r);
  const double factor = f > 1.0 ? 1.0 : fmax(0.0, f);
  for (int k = 0; k < 3; ++k) {
    if (leavesCell(sign[k], flux[k][0])) flux[k][0] *= factor;
  }
}

}  // namespace kernels::morphology
