// Bed load fluxes at boundary edges, one function per kind of boundary. Every unknown code lets
// nothing pass. A positive flux leaves the cell, so an inflow is negative. All fluxes are in units
// of bed elevation (pores included).
#pragma once

#include <cmath>

#include "catalogue/Codes.h"
#include "simulation/kernels/Parameters.h"

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

/// What lifts the cell to the elevation D[0] in one step.
inline double raiseTo(const BoundaryEdge& edge) {
  if (edge.z >= edge.D[0]) return 0.0;
  return -(edge.D[0] - edge.z) * edge.area / (edge.dt * edge.length);
}

/// What lowers the cell to the elevation D[0] in one step.
inline double lowerTo(const BoundaryEdge& edge) {
  if (edge.D[0] >= edge.z) return 0.0;
  return (edge.z - edge.D[0]) * edge.area / (edge.dt * edge.length);
}

/// The inflow D[1]. An outflow is never let through.
inline double givenInflow(const Parameters& par, const BoundaryEdge& edge) {
  const double v = edge.sign * edge.D[1];
  return v >= 0.0 ? 0.0 : bedVolume(par, v);
}

/// The inflow D[1], which counts per unit of depth.
inline double givenInflowByDepth(const Parameters& par, const BoundaryEdge& edge) {
  const double v = edge.sign * edge.D[1];
  return v >= 0.0 ? 0.0 : bedVolume(par, edge.h * v);
}

/// The inflow D[1], which counts per unit of conveyance.
inline double givenInflowByConveyance(const Parameters& par, const BoundaryEdge& edge) {
  const double v = edge.sign * edge.D[1];
  return v >= 0.0 ? 0.0 : bedVolume(par, conveyance(edge) * v);
}

/// The flux of a type code [m2/s]. Shares of the capacity keep whatever sign they have.
inline double boundaryFlux(const Parameters& par, int type, const BoundaryEdge& edge) {
  const double* const D = edge.D;
  // clang-format off
  using enum model::MorBoundaryCode;
  switch (model::MorBoundaryCode{type}) {
    case LowestBed:            return raiseTo(edge);
    case HighestBed:           return lowerTo(edge);
    case Inflow:               return givenInflow(par, edge);
    case InflowByDepth:        return givenInflowByDepth(par, edge);
    case InflowByConveyance:   return givenInflowByConveyance(par, edge);
    case Capacity:             return -bedVolume(par, D[0]) * D[1];
    case CapacityByDepth:      return edge.h * -bedVolume(par, D[0]) * D[1];
    case CapacityByConveyance: return -bedVolume(par, D[0]) * conveyance(edge) * D[1];
    default:                   return 0.0;
  }
  // clang-format on
}

/// @param dt time step [s]; @param type {type code, orientation of the stored value}
/// @param D boundary record, seven values; @param length of the edge [m]
/// @param state {H, qx, qy} [m, m2/s] of the cell; @param bed z of the cell [m]
/// @param chezy 0 without friction; read for a conveyance
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
