// Building blocks of the boundary fluxes: pressure, the one-sided flux, depths at a boundary.
//
// Sign convention: a positive mass flux leaves the left cell, so an inflow is negative. The cell
// of a boundary edge stands on its left.
#pragma once

#include <cmath>

#include "simulation/kernels/Parameters.h"
#include "simulation/kernels/numeric.h"

namespace kernels::hydraulics {

/// The cell at a boundary edge, in the frame of the edge.
struct BoundaryCell {
  double H, z;    ///< water surface and bed [m]
  double h;       ///< depth [m]
  double qn, qt;  ///< normal and tangential specific discharge [m2/s]
  double q;       ///< magnitude of the specific discharge [m2/s]
};

inline BoundaryCell boundaryCell(const double* normal, const double* state, double bed) {
  const double qx = state[1];
  const double qy = state[2];
  return {state[0],
          bed,
          state[0] - bed,
          qx * normal[0] + qy * normal[1],
          qy * normal[0] - qx * normal[1],
          std::sqrt(qx * qx + qy * qy)};
}

/// Hydrostatic pressure of a water surface over the bed z, in surface form [m3/s2].
inline double hydrostaticPressure(const Parameters& par, double surface, double z) {
  return (0.5 * surface - z) * (surface * par.real(ParameterID::Gravity));
}

/// 1/h, or 0 where the depth is below MinWaterDepth.
inline double inverseWetDepth(const Parameters& par, double h) {
  return inverseDepth(h, par.real(ParameterID::MinWaterDepth));
}

/// Froude number of the cell; 0 where celerity times depth vanishes.
inline double froudeNumber(const Parameters& par, const BoundaryCell& cell) {
  const double c = std::sqrt(par.real(ParameterID::Gravity) * fmax(cell.h, 0.0));
  return cell.q * inverse(c * cell.h);
}

/// Normal depth [m] of a specific discharge on a slope, from q^2 = C g S h^3 with C the squared
/// non-dimensional Chezy value.
inline double normalDepth(const Parameters& par, double discharge, double chezySquared,
                          double slope) {
  return std::cbrt(discharge * discharge / (chezySquared * par.real(ParameterID::Gravity) * slope));
}

/// Flux that only the left cell feels.
/// @param mass [m2/s]; @param normalMomentum,tangentialMomentum [m3/s2]
inline void oneSidedFlux(const double* normal, double mass, double normalMomentum,
                         double tangentialMomentum, double* flux) {
  flux[0] = mass;
  flux[1] = normal[0] * normalMomentum - normal[1] * tangentialMomentum;
  flux[2] = normal[1] * normalMomentum + normal[0] * tangentialMomentum;
  flux[3] = 0.0;
  flux[4] = 0.0;
}

/// A wall: nothing but the pressure of the cell.
inline void wallFlux(const Parameters& par, const double* normal, const BoundaryCell& cell,
                     double* flux) {
  oneSidedFlux(normal, 0.0, hydrostaticPressure(par, cell.H, cell.z), 0.0, flux);
}

/// Mass flux with the momentum that a depth at the boundary gives it.
/// @param depth depth at the boundary [m]
inline void flowThrough(const Parameters& par, const double* normal, const BoundaryCell& cell,
                        double mass, double depth, double tangentialMomentum, double* flux) {
  const double pressure =
      mass * mass * inverseWetDepth(par, depth) + hydrostaticPressure(par, depth + cell.z, cell.z);
  oneSidedFlux(normal, mass, pressure, tangentialMomentum, flux);
}

/// Mass flux that carries the tangential velocity of the cell and takes its depth.
inline void flowAtCellDepth(const Parameters& par, const double* normal, const BoundaryCell& cell,
                            double mass, double* flux) {
  flowThrough(par, normal, cell, mass, cell.h, mass * cell.qt * inverseWetDepth(par, cell.h), flux);
}

/// Mass flux against the pressure of the cell, without momentum of its own.
inline void flowWithPressureOnly(const Parameters& par, const double* normal,
                                 const BoundaryCell& cell, double mass, double* flux) {
  oneSidedFlux(normal, mass, hydrostaticPressure(par, cell.H, cell.z), 0.0, flux);
}

}  // namespace kernels::hydraulics
