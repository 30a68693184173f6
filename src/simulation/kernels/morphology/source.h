// Sediment that is dumped or dredged: z' = z + R dt. The water surface moves with the bed, so the
// depth stays.
//
// The sink code says what a negative rate R may take: just what it says, at most the material above
// the fixed bed, or all of it, however small the rate.
#pragma once

#include "catalogue/Codes.h"
#include "simulation/kernels/Diagnostics.h"
#include "simulation/kernels/numeric.h"

namespace kernels::morphology {

/// Height [m] that a source adds in a step; 0 for an unknown type.
/// @param amount rate times time step [m]; @param available fixed bed minus bed [m]
inline double sourceHeight(int type, double amount, double available) {
  // clang-format off
  using enum model::SinkCode;
  switch (model::SinkCode{type}) {
    case SedimentExact:     return amount;
    case SedimentAvailable: return amount < 0.0 ? fmax(amount, available) : amount;
    case SedimentInfinity:  return amount < 0.0 ? available : amount;
    default:                return 0.0;
  }
  // clang-format on
}

/// @param dt time step [s]; @param data source record {unused, rate [m/s]}
/// @param type sink type; @param bed z [m]; @param fixedBed zf [m]
/// @param state {H, qx, qy} [m, m2/s], of which H moves
/// @param massKept 0 if the bed of this cell is below its fixed bed, else 1: each cell replaces the
///   verdict of the one before, so the flag tells only about the last cell of the loop
inline void source(const Diagnostics& diagnostics, const double* dt, const double* data,
                   const int* type, double* bed, const double* fixedBed, double* state,
                   int* massKept) {
  const double dz = sourceHeight(type[0], data[1] * dt[0], fixedBed[0] - bed[0]);
  bed[0] = bed[0] + dz;
  state[0] = state[0] + dz;

  massKept[0] = 1;
  if (bed[0] - fixedBed[0] < -1e-12) {
    diagnostics.belowFixedBed(bed[0], fixedBed[0]);
    massKept[0] = 0;
  }
}

}  // namespace kernels::morphology
