// Flux of the shallow-water equations across one edge.
//
// HLLC approximate Riemann solver (left wave, contact, right wave) after Toro, Shock-Capturing
// Methods for Free-Surface Shallow Flows (2001), chapter 10, on depths that are reconstructed at
// the edge in the manner of Audusse et al., A fast and stable well-balanced scheme with
// hydrostatic reconstruction for shallow water flows, SIAM J. Sci. Comput. 25 (2004): with zf the
// higher of the two beds,
//
//   h_K = max(0, H_K - zf),   q_K scaled by h_K / (H_K - z_K) so that the velocity is kept.
//
// Pressure stands in surface form against a reference bed zs, g Hs (0.5 Hs - zs), so a lake at
// rest stays at rest over any bed. Where a bed rises above the water surface on the other side
// (an emerging edge), momentum of the right cell comes from a second, mirrored problem.
#pragma once

#include <cmath>

#include "simulation/kernels/Parameters.h"
#include "simulation/kernels/numeric.h"

namespace kernels::hydraulics {

/// One side of the problem at the edge, in the frame of its normal n and tangent t.
struct EdgeState {
  bool active;       ///< edge depth is at least MinWaterDepth
  double h;          ///< edge depth [m]
  double qn, qt;     ///< specific discharge scaled to the edge depth [m2/s]
  double inverse_h;  ///< 1/h, or 0 if not active
  double u, v;       ///< velocity [m/s]
  double c;          ///< celerity sqrt(g h) [m/s]
};

struct EdgeFlux {
  double mass;        ///< [m2/s]
  double normal;      ///< normal momentum [m3/s2]
  double tangential;  ///< tangential momentum [m3/s2]
};

/// Hydrostatic reconstruction of one side.
/// @param zf the higher of the two beds [m]
inline EdgeState reconstruct(const Parameters& par, const double* normal, const double* state,
                             double bed, bool wet, double zf) {
  const double h = fmax(0.0, state[0] - zf);
  const bool active = h >= par.real(ParameterID::MinWaterDepth);
  const double scale = wet ? h / (state[0] - bed) : 0.0;
  const double qn = (state[1] * normal[0] + state[2] * normal[1]) * scale;
  const double qt = (state[2] * normal[0] - state[1] * normal[1]) * scale;
  const double inverse_h = active ? 1.0 / h : 0.0;
  return {active,
          h,
          qn,
          qt,
          inverse_h,
          qn * inverse_h,
          qt * inverse_h,
          std::sqrt(par.real(ParameterID::Gravity) * h)};
}

/// The same side seen against the normal.
inline EdgeState mirrored(const EdgeState& side) {
  return {side.active, side.h, -side.qn, -side.qt, side.inverse_h, -side.u, -side.v, side.c};
}

/// Factor on the celerity of a wave: above 1 for a shock, 1 for a rarefaction.
inline double waveFactor(const EdgeState& side, double starDepth) {
  if (side.h >= starDepth) return 1.0;
  return std::sqrt((side.h + starDepth) * (0.5 * starDepth) * side.inverse_h * side.inverse_h);
}

/// Physical flux of one side, with the pressure against the reference bed zs.
inline EdgeFlux sideFlux(const Parameters& par, const EdgeState& side, double surface, double zs) {
  const double mass = side.h * side.u;
  const double pressure = par.real(ParameterID::Gravity) * surface * (0.5 * surface - zs);
  return {mass, pressure + side.u * mass, side.v * mass};
}

/// Flux of the star region behind the wave of speed S. The jump is taken against the scaled
/// discharges of the side: below MinWaterDepth they differ from h u.
inline EdgeFlux starFlux(const EdgeState& side, const EdgeFlux& flux, double surface, double zs,
                         double S, double contact) {
  const double hk = (S - side.u) * side.h * inverseOfAbsolute(S - contact);
  return {flux.mass + S * (zs + hk - surface), flux.normal + S * (contact * hk - side.qn),
          flux.tangential + S * (hk * side.v - side.qt)};
}

/// HLLC flux from side L to side R along the normal.
/// @param zs reference bed of the problem [m]
inline EdgeFlux hllc(const Parameters& par, const EdgeState& L, const EdgeState& R, double zs) {
  const double surfaceL = L.h + zs;
  const double surfaceR = R.h + zs;
  const double r = inverse(L.c + R.c);
  const double starDepth = 0.5 * (L.h + R.h) - 0.25 * (R.u - L.u) * (L.h + R.h) * r;
  const double SL = L.active ? L.u - L.c * waveFactor(L, starDepth) : R.u - 2.0 * R.c;
  const double SR = R.active ? R.u + R.c * waveFactor(R, starDepth) : L.u + 2.0 * L.c;

  const EdgeFlux fluxL = sideFlux(par, L, surfaceL, zs);
  if (SL >= 0.0) return fluxL;
  const EdgeFlux fluxR = sideFlux(par, R, surfaceR, zs);
  if (SR <= 0.0) return fluxR;

  const double dSL = L.u - SL;
  const double dSR = R.u - SR;
  const double D = R.h * dSR - L.h * dSL;
  const double contact = (R.h * SL * dSR - L.h * SR * dSL) * inverseOfAbsolute(D);
  if (contact >= 0.0) return starFlux(L, fluxL, surfaceL, zs, SL, contact);
  return starFlux(R, fluxR, surfaceR, zs, SR, contact);
}

/// Flux across one edge, per unit of its length.
/// @param normal unit normal {nx, ny}, out of the left into the right cell
/// @param stateLeft,stateRight water surface [m] and specific discharge {H, qx, qy} [m2/s]
/// @param bedLeft,bedRight bed elevation [m]
/// @param wetLeft,wetRight 1 for a wet cell; a dry one contributes no discharge
/// @param flux out: [0] mass, positive to the right [m2/s]; [1, 2] momentum as it leaves the left
///   cell, [3, 4] as it leaves the right cell in that cell's own outward sense [m3/s2]. Both hold
///   the bed term of their cell.
inline void hydrodynamic_solver(const Parameters& par, const double* normal,
                                const double* stateLeft, const double* bedLeft, const int* wetLeft,
                                const double* stateRight, const double* bedRight,
                                const int* wetRight, double* flux) {
  const double g = par.real(ParameterID::Gravity);
  const double nx = normal[0];
  const double ny = normal[1];
  const double HL = stateLeft[0];
  const double HR = stateRight[0];
  const double zf = fmax(bedLeft[0], bedRight[0]);
  const bool emerging = HL - zf < 0.0 || HR - zf < 0.0;

  const EdgeState left = reconstruct(par, normal, stateLeft, bedLeft[0], wetLeft[0] == 1, zf);
  const EdgeState right = reconstruct(par, normal, stateRight, bedRight[0], wetRight[0] == 1, zf);

  const double zsLeft = zf - fmax(0.0, zf - HL);
  const EdgeFlux F = hllc(par, left, right, zsLeft);
  const double P =
      F.normal - 0.5 * g * ((left.h + zsLeft) + (right.h + zsLeft)) * (bedLeft[0] - zsLeft);
  flux[0] = F.mass;
  flux[1] = nx * P - ny * F.tangential;
  flux[2] = ny * P + nx * F.tangential;

  const double zsRight = zf - fmax(0.0, zf - HR);
  const EdgeFlux G = emerging ? hllc(par, mirrored(right), mirrored(left), zsRight) : F;
  const double P2 =
      G.normal - 0.5 * g * ((left.h + zsRight) + (right.h + zsRight)) * (bedRight[0] - zsRight);
  flux[3] = nx * (-P2) - ny * (-G.tangential);
  flux[4] = ny * (-P2) + nx * (-G.tangential);
}

}  // namespace kernels::hydraulics
