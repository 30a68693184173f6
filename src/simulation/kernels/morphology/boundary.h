// Bed load fluxes at boundary edges, by the type code.
//
//   400  raises the cell to an elevation      402  lowers the cell to an elevation
//   404  given inflow                         410  inflow of a share of the capacity
//   406  the same, weighted by depth          412  the same, weighted by depth
//   408  the same, weighted by conveyance     414  the same, weighted by conveyance
//
// Every other code lets nothing pass. A positive flux leaves the cell, so an inflow is negative.
// All fluxes are in units of bed elevation (pores included).
#pragma once

#include <cmath>

#include "simulation/kernels/parameters.h"

namespace kernels::morphology {

/// What a boundary edge and its cell know.
struct BoundaryEdge {
  double sign;          ///< orientation of the stored value, +1 or -1
  const double* D;      ///< boundary record, of which D[0] and D[1] count
  double dt;            ///< time step [s]
  double length;        ///< of the edge [m]
  double area;          ///< of the cell [m2]
  double z;             ///< bed of the cell [m]
  double h;             ///< depth of the cell [m]
  const double* chezy;  ///< squared Chezy value of the cell; 0 without friction
};

/// From a volume of grains to one of bed, with the calibration factor of the formulas.
inline double bedVolume(const Parameters& par, double flux) {
  return flux * par.real(ParameterID::InvBedPorosity) * par.real(ParameterID::BedloadFactor);
}

/// Conveyance per unit of width at the cell, h sqrt(C h) with C the squared Chezy value.
inline double conveyance(const BoundaryEdge& edge) {
  return edge.h * std::sqrt(edge.chezy[0] * edge.h);
}

/// Code 400: what lifts the cell to the elevation D[0] in one step.
inline double raiseTo(const BoundaryEdge& edge) {
  if (edge.z >= edge.D[0]) return 0.0;
  return -(edge.D[0] - edge.z) * edge.area / (edge.dt * edge.length);
}

/// Code 402: what lowers the cell to the elevation D[0] in one step.
inline double lowerTo(const BoundaryEdge& edge) {
  if (edge.D[0] >= edge.z) return 0.0;
  return (edge.z - edge.D[0]) * edge.area / (edge.dt * edge.length);
}

/// Code 404: the inflow D[1]. An outflow is never let through.
inline double givenInflow(const Parameters& par, const BoundaryEdge& edge) {
  const double v = edge.sign * edge.D[1];
  return v >= 0.0 ? 0.0 : bedVolume(par, v);
}

/// Code 406: D[1] counts per unit of depth.
inline double givenInflowByDepth(const Parameters& par, const BoundaryEdge& edge) {
  const double v = edge.sign * edge.D[1];
  return v >= 0.0 ? 0.0 : bedVolume(par, edge.h * v);
}

/// Code 408: D[1] counts per unit of conveyance.
inline double givenInflowByConveyance(const Parameters& par, const BoundaryEdge& edge) {
  const double v = edge.sign * edge.D[1];
  return v >= 0.0 ? 0.0 : bedVolume(par, conveyance(edge) * v);
}

/// The flux of a type code [m2/s]. Shares of the capacity keep whatever sign they have.
inline double boundaryFlux(const Parameters& par, int type, const BoundaryEdge& edge) {
  const double* const D = edge.D;
  // clang-format off
  switch (type) {
    case 400: return raiseTo(edge);
    case 402: return lowerTo(edge);
    case 404: return givenInflow(par, edge);
    case 406: return givenInflowByDepth(par, edge);
    case 408: return givenInflowByConveyance(par, edge);
    case 410: return -bedVolume(par, D[0]) * D[1];
    case 412: return edge.h * -bedVolume(par, D[0]) * D[1];
    case 414: return -bedVolume(par, D[0]) * conveyance(edge) * D[1];
    default:  return 0.0;
  }
  // clang-format on
}

/// @param dt time step [s]; @param type {type code, orientation of the stored value}
/// @param D boundary record, seven values; @param length of the edge [m]
/// @param state {H, qx, qy} [m, m2/s] of the cell; @param bed z of the cell [m]
/// @param chezy 0 without friction; read by codes 408 and 414
/// @param area of the cell [m2]; @param flux out [m2/s]
inline void boundary(const Parameters& par, const double* dt, const int* type, const double* D,
                     const double* /*normal*/, const double* length, const double* state,
                     const double* /*stateRight*/, const double* bed, const double* /*bedRight*/,
                     const double* chezy, const double* area, const double* /*grainSize*/,
                     double* flux) {
  const BoundaryEdge edge{.sign = static_cast<double>(type[1]),
                          .D = D,
                          .dt = dt[0],
                          .length = length[0],
                          .area = area[0],
                          .z = bed[0],
                          .h = state[0] - bed[0],
                          .chezy = chezy};
  flux[0] = boundaryFlux(par, type[0], edge);
}

}  // namespace kernels::morphology
