// Hydraulic boundary fluxes: one function per kind of boundary, dispatched by its code. Whatever
// fails its test, and every unknown code, is a wall.
#pragma once

#include <array>

#include "catalogue/Codes.h"
#include "catalogue/wet.h"
#include "simulation/kernels/hydraulics/boundary_types.h"
#include "simulation/kernels/hydraulics/hydrodynamic_solver.h"

namespace kernels::hydraulics {

/// What a boundary edge knows; the arguments of the kernel under their names.
struct BoundaryEdge {
  const double* normal;     ///< {nx, ny}
  double sign;              ///< orientation of the nodestring against the edge, +1 or -1
  const double* D;          ///< boundary record, seven values
  const double* stateLeft;  ///< {H, qx, qy} [m, m2/s]
  const double* stateRight;
  const double* bedLeft;  ///< z [m]
  const double* bedRight;
  const double* chezy;  ///< squared Chezy value of the left cell; 0 without friction
  const double* size;   ///< characteristic size [m]
  BoundaryCell cell;    ///< the left cell
};

/// Runs the Riemann solver of the left cell against a state on the other side. Wet flags come from
/// the depths: the flags of the cells are not at hand here.
inline void solveAgainst(const Parameters& par, const BoundaryEdge& edge, const double* state,
                         const double* bed, bool wetRight, double* flux) {
  const int wetLeft = model::isWet(edge.cell.h, par.real(ParameterID::MinWaterDepth)) ? 1 : 0;
  const int wet = wetRight ? 1 : 0;
  hydrodynamic_solver(par, edge.normal, edge.stateLeft, edge.bedLeft, &wetLeft, state, bed, &wet,
                      flux);
}

/// The depth at the boundary is the normal depth where the cell is dry or supercritical.
inline void inflowAtNormalDepth(const Parameters& par, const BoundaryEdge& edge, double* flux) {
  const double v = edge.sign * edge.D[2];
  if (!(v < 0.0)) return wallFlux(par, edge.normal, edge.cell, flux);
  const bool normal =
      edge.cell.h < par.real(ParameterID::MinWaterDepth) || froudeNumber(par, edge.cell) > 1.0;
  const double depth = normal ? normalDepth(par, v, edge.chezy[0], edge.D[1]) : edge.cell.h;
  flowThrough(par, edge.normal, edge.cell, v, depth, 0.0, flux);
}

/// From a Froude number of 1 on, the depth follows from it.
inline void inflowAtFroudeNumber(const Parameters& par, const BoundaryEdge& edge, double* flux) {
  const double v = edge.sign * edge.D[2];
  if (!(v < 0.0)) return wallFlux(par, edge.normal, edge.cell, flux);
  const double F = edge.D[1];
  const double depth =
      F >= 1.0 ? std::cbrt(v * v / (F * (F * par.real(ParameterID::Gravity)))) : edge.cell.h;
  flowThrough(par, edge.normal, edge.cell, v, depth, 0.0, flux);
}

/// A ghost cell down the slope D[0], at normal depth unless the flow is supercritical.
inline void outflowOverSlope(const Parameters& par, const BoundaryEdge& edge, double* flux) {
  const BoundaryCell& cell = edge.cell;
  if (!(cell.qn > 0.0)) return wallFlux(par, edge.normal, cell, flux);
  const double hmin = par.real(ParameterID::MinWaterDepth);
  double depth = cell.h;
  if (!(cell.h < hmin) && !(froudeNumber(par, cell) > 1.0)) {
    depth = normalDepth(par, cell.q, edge.chezy[0], edge.D[0]);
  }
  const double ghostBed = cell.z - edge.D[0] * edge.size[0];
  const std::array<double, 3> ghost{depth + ghostBed, edge.stateLeft[1], edge.stateLeft[2]};
  solveAgainst(par, edge, ghost.data(), &ghostBed, model::isWet(ghost[0] - ghostBed, hmin), flux);
}

/// Weirs and rating curves: outflow at the velocity D[3].
inline void outflowWithPressureOnly(const Parameters& par, const BoundaryEdge& edge, double* flux) {
  const double v = edge.sign * edge.D[3];
  if (!(v > 0.0)) return wallFlux(par, edge.normal, edge.cell, flux);
  flowWithPressureOnly(par, edge.normal, edge.cell, v * edge.cell.h, flux);
}

/// Outflow at a velocity that takes its momentum along.
inline void outflowWithMomentum(const Parameters& par, const BoundaryEdge& edge, double velocity,
                                double* flux) {
  const double v = edge.sign * velocity;
  if (!(v > 0.0)) return wallFlux(par, edge.normal, edge.cell, flux);
  flowAtCellDepth(par, edge.normal, edge.cell, v * edge.cell.h, flux);
}

/// What the cell holds flows out.
inline void freeOutflow(const Parameters& par, const BoundaryEdge& edge, double* flux) {
  if (!(edge.cell.qn > 0.0)) return wallFlux(par, edge.normal, edge.cell, flux);
  flowAtCellDepth(par, edge.normal, edge.cell, edge.cell.qn, flux);
}

/// The level D[0] outside; water comes in only if D[1] is 1.
inline void imposedLevel(const Parameters& par, const BoundaryEdge& edge, double* flux) {
  const BoundaryCell& cell = edge.cell;
  const double hmin = par.real(ParameterID::MinWaterDepth);
  const bool outflow = cell.qn > 0.0;
  if (model::isWet(edge.D[0] - cell.z, hmin)) {
    if (!outflow && edge.D[1] != 1.0) return wallFlux(par, edge.normal, cell, flux);
    const std::array<double, 3> ghost{edge.D[0], outflow ? edge.stateLeft[1] : 0.0,
                                      outflow ? edge.stateLeft[2] : 0.0};
    return solveAgainst(par, edge, ghost.data(), edge.bedLeft, true, flux);
  }
  if (!outflow) return wallFlux(par, edge.normal, cell, flux);
  const std::array<double, 3> ghost{cell.z, edge.stateLeft[1], edge.stateLeft[2]};
  solveAgainst(par, edge, ghost.data(), edge.bedLeft, model::isWet(0.0, hmin), flux);
}

/// Outflow only, against the level D[0].
inline void outflowAgainstLevel(const Parameters& par, const BoundaryEdge& edge, double* flux) {
  const BoundaryCell& cell = edge.cell;
  if (!(cell.qn > 0.0)) return wallFlux(par, edge.normal, cell, flux);
  const std::array<double, 3> ghost{edge.D[0], edge.stateLeft[1], edge.stateLeft[2]};
  solveAgainst(par, edge, ghost.data(), edge.bedLeft,
               model::isWet(edge.D[0] - cell.z, par.real(ParameterID::MinWaterDepth)), flux);
}

/// Inflow by the velocity D[3] and the depth D[4].
inline void inflowByVelocityAndDepth(const Parameters& par, const BoundaryEdge& edge,
                                     double* flux) {
  const double v = edge.sign * edge.D[3];
  if (!(v < 0.0)) return wallFlux(par, edge.normal, edge.cell, flux);
  flowAtCellDepth(par, edge.normal, edge.cell, v * edge.D[4], flux);
}

/// An inflow that brings mass only, if `test` says that it comes in.
inline void inflowOfMass(const Parameters& par, const BoundaryEdge& edge, double test, double mass,
                         double* flux) {
  if (!(test < 0.0)) return wallFlux(par, edge.normal, edge.cell, flux);
  flowWithPressureOnly(par, edge.normal, edge.cell, mass, flux);
}

/// A wall between two cells, as is a shut transfer or gate: each cell feels its own pressure.
inline void innerWall(const Parameters& par, const BoundaryEdge& edge, double* flux) {
  const double nx = edge.normal[0];
  const double ny = edge.normal[1];
  const double left = hydrostaticPressure(par, edge.cell.H, edge.cell.z);
  const double right = hydrostaticPressure(par, edge.stateRight[0], edge.bedRight[0]);
  flux[0] = 0.0;
  flux[1] = nx * left;
  flux[2] = ny * left;
  flux[3] = -nx * right;
  flux[4] = -ny * right;
}

/// Transfer at the velocity D[1]. The upstream cell loses the advected momentum, the
/// downstream cell feels its own pressure alone.
inline void innerTransfer(const Parameters& par, const BoundaryEdge& edge, double* flux) {
  const double nx = edge.normal[0];
  const double ny = edge.normal[1];
  const double v = edge.sign * edge.D[1];
  innerWall(par, edge, flux);
  if (edge.sign > 0.0) {
    const BoundaryCell& left = edge.cell;
    const double Q = v * left.h;
    const double i = inverseWetDepth(par, left.h);
    const double P = Q * Q * i + hydrostaticPressure(par, left.h + left.z, left.z);
    const double T = Q * left.qt * i;
    flux[0] = Q;
    flux[1] = nx * P - ny * T;
    flux[2] = ny * P + nx * T;
  } else {
    const BoundaryCell right = boundaryCell(edge.normal, edge.stateRight, edge.bedRight[0]);
    const double Q = v * right.h;
    const double i = inverseWetDepth(par, right.h);
    const double P = Q * Q * i + hydrostaticPressure(par, right.h + right.z, right.z);
    const double T = Q * right.qt * i;
    flux[0] = Q;
    flux[3] = -nx * P + ny * T;
    flux[4] = -ny * P - nx * T;
  }
}

/// An open gate is an edge like any other.
inline void innerGate(const Parameters& par, const BoundaryEdge& edge, double* flux) {
  const double depthRight = edge.stateRight[0] - edge.bedRight[0];
  solveAgainst(par, edge, edge.stateRight, edge.bedRight,
               model::isWet(depthRight, par.real(ParameterID::MinWaterDepth)), flux);
}

/// @param type {type code, orientation sign}; @param D boundary record, seven values
/// @param chezy 0 without friction; read for a normal depth
/// @param flux out: five components as those of hydrodynamic_solver
inline void boundary(const Parameters& par, const int* type, const double* D, const double* normal,
                     const double* stateLeft, const double* stateRight, const double* bedLeft,
                     const double* bedRight, const double* chezy, const double* size,
                     double* flux) {
  const BoundaryEdge edge{normal,     static_cast<double>(type[1]),
                          D,          stateLeft,
                          stateRight, bedLeft,
                          bedRight,   chezy,
                          size,       boundaryCell(normal, stateLeft, bedLeft[0])};
  const auto open = [D] { return D[1] > 0.0; };
  // clang-format off
  using enum model::HydBoundaryCode;
  switch (model::HydBoundaryCode{type[0]}) {
    case InflowNormalDepth:      return inflowAtNormalDepth(par, edge, flux);
    case InflowFroude:           return inflowAtFroudeNumber(par, edge, flux);
    case OutflowNormalDepth:     return outflowOverSlope(par, edge, flux);
    case OutflowWeir:
    case OutflowRatingCurve:
    case LinkWeirOutflow:
    case LinkRatingCurveOutflow: return outflowWithPressureOnly(par, edge, flux);
    case OutflowDischarge:
    case LinkDischargeOutflow:   return outflowWithMomentum(par, edge, D[1], flux);
    case LinkSwitchOutflow:      return outflowWithMomentum(par, edge, D[5], flux);
    case OutflowFree:            return freeOutflow(par, edge, flux);
    case WaterLevel:             return imposedLevel(par, edge, flux);
    case InnerTransfer:          return open() ? innerTransfer(par, edge, flux) : innerWall(par, edge, flux);
    case InnerGate:              return open() ? innerGate(par, edge, flux) : innerWall(par, edge, flux);
    case InnerWall:              return innerWall(par, edge, flux);
    case LinkWeirInflow:
    case LinkRatingCurveInflow:  return inflowByVelocityAndDepth(par, edge, flux);
    case LinkDischargeInflow:    return inflowOfMass(par, edge, edge.sign * D[1], edge.sign * D[2], flux);
    case LinkSwitchInflow:       return inflowOfMass(par, edge, edge.sign * D[5], edge.sign * D[5] * D[6], flux);
    case LinkLevelInflow:        return inflowOfMass(par, edge, edge.sign * D[1], edge.sign * D[1], flux);
    case LinkLevelOutflow:       return outflowAgainstLevel(par, edge, flux);
    default:                     return wallFlux(par, normal, edge.cell, flux);
  }
  // clang-format on
}

}  // namespace kernels::hydraulics
