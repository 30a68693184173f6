// The state of a nodestring, integrated over its edges: what boundary conditions, modifications
// and the output of discharges refer to.
//
//   [0] mean water surface [m]              [5] wetted length [m]
//   [1] liquid discharge [m3/s]             [6] volume of the adjacent water [m3]
//   [2] wetted cross-section [m2]           [7] conveyance sum, L h sqrt(C h) [m^2.5]
//   [3] mean bed elevation [m]              [8] sediment discharge [m3/s]
//   [4] lowest bed elevation [m]            [9] transport capacity [m3/s]
//
// An edge is wet if its upstream cell is. Dry edges count for [4] only; [0] and [3] are missing
// values if no edge is wet. [7] is 0 without morphology or friction, [8] and [9] without
// morphology.
#pragma once

#include <cmath>

#include "catalogue/Limits.h"
#include "catalogue/wet.h"
#include "simulation/kernels/Parameters.h"
#include "simulation/kernels/morphology/bedload_formulas.h"
#include "simulation/kernels/numeric.h"

namespace kernels::topology {

/// The MPM form of an upstream cell. Its Shields parameter is grouped unlike that of the cells' own
/// transport: the two may differ in the last digit. Nobody asks a nodestring for the derivative.
inline morphology::BedloadRate mpmBedload(const Parameters& par,
                                          const morphology::BedloadCell& cell) {
  const double ig = par.real(ParameterID::InvGravity);
  const double s = par.real(ParameterID::SedRelDensity);
  const double q2 = cell.q * cell.q;
  const double ih2 = cell.inverse_h * cell.inverse_h;
  const double theta = (q2 * ih2) * (cell.inverse_C2 * ig) / (s * cell.d);
  const double power =
      std::pow(morphology::excess(theta, cell.critical), par.real(ParameterID::BedloadExpon));
  return {morphology::mpmUnit(par, cell.d) * power, 0.0};
}

/// Bed load [m2/s] of an upstream cell, whatever its direction.
inline double bedloadCapacity(const Parameters& par, const morphology::BedloadCell& cell) {
  return morphology::bedload(par, cell, mpmBedload).capacity;
}

/// Arguments per edge come as arrays of `size` pointers, in the order along the nodestring.
/// @param morphology 1 if the bed moves; else no sediment argument is read
/// @param friction 1 if the bed moves and `chezy` may be read
/// @param size number of edges, at most model::STRING_EDGES; there are none below 1
/// @param sign per edge: 1 if oriented as the nodestring, -1 if against it
/// @param length of the edges [m]; @param fluxHy,fluxMo liquid and bed flux of the edges [m2/s]
/// @param chezy,critical,grainSize,state,bed,area upstream cells: squared Chezy value [-], critical
///   Shields parameter [-] or velocity [m/s], median grain size [m], {H, qx, qy} [m, m2/s], z [m],
///   area [m2]
/// @param result out: the ten values above
inline void node_string_states(const Parameters& par, const int* morphology, const int* friction,
                               const int* size, const int* sign, const double* const* length,
                               const double* const* fluxHy, const double* const* fluxMo,
                               const double* const* chezy, const double* const* critical,
                               const double* const* grainSize, const double* const* state,
                               const double* const* bed, const double* const* area,
                               double* result) {
  const double hmin = par.real(ParameterID::MinWaterDepth);
  const double solid = 1.0 - par.real(ParameterID::BedPorosity);
  double sumHL = 0.0, Q = 0.0, A = 0.0, sumzL = 0.0, Lw = 0.0;
  double V = 0.0, K = 0.0, Qs = 0.0, Cap = 0.0, zmin = 1e12;

  for (int i = 0; i < size[0]; ++i) {
    const double sgn = sign[i];
    const double L = length[i][0];
    const double H = state[i][0];
    const double z = bed[i][0];
    const double h = H - z;
    zmin = fmin(zmin, z);
    if (!model::isWet(h, hmin)) continue;
    Lw += L;
    sumHL += H * L;
    Q += fluxHy[i][0] * L * sgn;
    sumzL += z * L;
    A += h * L;
    V += area[i][0] * h;

    if (morphology[0] != 1) continue;
    const double* const C = friction[0] == 1 ? chezy[i] : nullptr;
    if (friction[0] == 1) K += h * L * std::sqrt(C[0] * h);
    Qs += L * fluxMo[i][0] * sgn * solid;
    const double q = std::sqrt(state[i][1] * state[i][1] + state[i][2] * state[i][2]);
    Cap += bedloadCapacity(par, {q, inverse(h), morphology::inverseChezy(friction[0], C),
                                 grainSize[i][0], critical[i][0]}) *
           L;
  }

  const bool wet = Lw > 0.0;
  result[0] = wet ? sumHL / Lw : model::MISSING_VALUE;
  result[1] = Q;
  result[2] = A;
  result[3] = wet ? sumzL / Lw : model::MISSING_VALUE;
  result[4] = zmin;
  result[5] = Lw;
  result[6] = V;
  result[7] = K;
  result[8] = Qs;
  result[9] = Cap;
}

}  // namespace kernels::topology
