// Water that comes in or leaves from above or below: H' = H + R dt, without any momentum.
//
// The sink code says what a negative rate R may take: just what it says, at most the water that is
// there, or all of it, however small the rate.
#pragma once

#include "catalogue/Codes.h"
#include "simulation/kernels/Diagnostics.h"
#include "simulation/kernels/hydraulics/wetting.h"
#include "simulation/kernels/numeric.h"

namespace kernels::hydraulics {

/// Height [m] that a source adds in a step; 0 for an unknown type.
/// @param amount rate times time step [m]; @param state {H, ...} [m]; @param bed z [m]
inline double sourceHeight(int type, double amount, const double* state, const double* bed) {
  // clang-format off
  using enum model::SinkCode;
  switch (model::SinkCode{type}) {
    case DischargeExact:
    case RainExact:         return amount;
    case DischargeAvailable:
    case RainAvailable:     return amount < 0.0 ? fmax(amount, bed[0] - state[0]) : amount;
    case DischargeInfinity:
    case RainInfinity:      return amount < 0.0 ? bed[0] - state[0] : amount;
    default:                return 0.0;
  }
  // clang-format on
}

/// @param dt time step [s]; @param data source record {unused, rate [m/s]}
/// @param type sink type; @param bed z [m]; @param state {H, qx, qy} [m, m2/s]
/// @param wetted out: 1 or 0; left alone where the depth gets negative
/// @param massKept 0 if the depth of this cell is negative, else 1: each cell replaces the verdict
///   of the one before, so the flag tells only about the last cell of the loop
inline void source(const Parameters& par, const Diagnostics& diagnostics, const double* dt,
                   const double* data, const int* type, const double* bed, double* state,
                   int* wetted, int* massKept) {
  state[0] = sourceHeight(type[0], data[1] * dt[0], state, bed) + state[0];

  const double h = state[0] - bed[0];
  const bool kept = settle(par, h, state, wetted);
  if (!kept) diagnostics.negativeDepth(h);
  massKept[0] = kept ? 1 : 0;
}

}  // namespace kernels::hydraulics
