// Hydraulic boundary fluxes: one function per kind of boundary, dispatched by the type code.
//
//   100  inflow at normal or cell depth        102  inflow at a given Froude number
//   104  outflow over a sloping ghost cell     106  outflow at a given velocity, pressure only
//   110  outflow with momentum                 112  free outflow
//   114  imposed water level                   216  inner edge, transfer at a velocity
//   218  inner edge, open or shut              220  inner wall
//   322 to 330  flows between linked strings   331  outflow against an imposed level
//
// Whatever fails its test, and every unknown code, is a wall.
#pragma once

#include <array>

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
  const int wetLeft = edge.cell.h > par.real(ParameterID::MinWaterDepth) ? 1 : 0;
  const int wet = wetRight ? 1 : 0;
  hydrodynamic_solver(par, edge.normal, edge.stateLeft, edge.bedLeft, &wetLeft, state, bed, &wet,
                      flux);
}

/// Code 100: the depth at the boundary is the normal depth where the cell is dry or supercritical.
inline void inflowAtNormalDepth(const Parameters& par, const BoundaryEdge& edge, double* flux) {
  const double v = edge.sign * edge.D[2];
  if (!(v < 0.0)) return wallFlux(par, edge.normal, edge.cell, flux);
  const bool normal =
      edge.cell.h < par.real(ParameterID::MinWaterDepth) || froudeNumber(par, edge.cell) > 1.0;
  const double depth = normal ? normalDepth(par, v, edge.chezy[0], edge.D[1]) : edge.cell.h;
  flowThrough(par, edge.normal, edge.cell, v, depth, 0.0, flux);
}

/// Code 102: from a Froude number of 1 on, the depth follows from it.
inline void inflowAtFroudeNumber(const Parameters& par, const BoundaryEdge& edge, double* flux) {
  const double v = edge.sign * edge.D[2];
  if (!(v < 0.0)) return wallFlux(par, edge.normal, edge.cell, flux);
  const double F = edge.D[1];
  const double depth =
      F >= 1.0 ? std::cbrt(v * v / (F * (F * par.real(ParameterID::Gravity)))) : edge.cell.h;
  flowThrough(par, edge.normal, edge.cell, v, depth, 0.0, flux);
}

/// Code 104: a ghost cell down the slope D[0], at normal depth unless the flow is supercritical.
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
  solveAgainst(par, edge, ghost.data(), &ghostBed, ghost[0] - ghostBed > hmin, flux);
}

/// Codes 106, 108, 323, 325: outflow at the velocity D[3].
inline void outflowWithPressureOnly(const Parameters& par, const BoundaryEdge& edge, double* flux) {
  const double v = edge.sign * edge.D[3];
  if (!(v > 0.0)) return wallFlux(par, edge.normal, edge.cell, flux);
  flowWithPressureOnly(par, edge.normal, edge.cell, v * edge.cell.h, flux);
}

/// Codes 110, 327 (velocity in D[1]) and 329 (in D[5]).
inline void outflowWithMomentum(const Parameters& par, const BoundaryEdge& edge, double velocity,
                                double* flux) {
  const double v = edge.sign * velocity;
  if (!(v > 0.0)) return wallFlux(par, edge.normal, edge.cell, flux);
  flowAtCellDepth(par, edge.normal, edge.cell, v * edge.cell.h, flux);
}

/// Code 112: what the cell holds flows out.
inline void freeOutflow(const Parameters& par, const BoundaryEdge& edge, double* flux) {
  if (!(edge.cell.qn > 0.0)) return wallFlux(par, edge.normal, edge.cell, flux);
  flowAtCellDepth(par, edge.normal, edge.cell, edge.cell.qn, flux);
}

/// Code 114: the level D[0] outside; water comes in only if D[1] is 1.
inline void imposedLevel(const Parameters& par, const BoundaryEdge& edge, double* flux) {
  const BoundaryCell& cell = edge.cell;
  const double hmin = par.real(ParameterID::MinWaterDepth);
  const bool outflow = cell.qn > 0.0;
  if (edge.D[0] - cell.z > hmin) {
    if (!outflow && edge.D[1] != 1.0) return wallFlux(par, edge.normal, cell, flux);
    const std::array<double, 3> ghost{edge.D[0], outflow ? edge.stateLeft[1] : 0.0,
                                      outflow ? edge.stateLeft[2] : 0.0};
    return solveAgainst(par, edge, ghost.data(), edge.bedLeft, true, flux);
  }
  if (!outflow) return wallFlux(par, edge.normal, cell, flux);
  const std::array<double, 3> ghost{cell.z, edge.stateLeft[1], edge.stateLeft[2]};
  solveAgainst(par, edge, ghost.data(), edge.bedLeft, 0.0 > hmin, flux);
}

/// Code 331: outflow only, against the level D[0].
inline void outflowAgainstLevel(const Parameters& par, const BoundaryEdge& edge, double* flux) {
  const BoundaryCell& cell = edge.cell;
  if (!(cell.qn > 0.0)) return wallFlux(par, edge.normal, cell, flux);
  const std::array<double, 3> ghost{edge.D[0], edge.stateLeft[1], edge.stateLeft[2]};
  solveAgainst(par, edge, ghost.data(), edge.bedLeft,
               edge.D[0] - cell.z > par.real(ParameterID::MinWaterDepth), flux);
}

/// Codes 322, 324: inflow by the velocity D[3] and the depth D[4].
inline void inflowByVelocityAndDepth(const Parameters& par, const BoundaryEdge& edge,
                                     double* flux) {
  const double v = edge.sign * edge.D[3];
  if (!(v < 0.0)) return wallFlux(par, edge.normal, edge.cell, flux);
  flowAtCellDepth(par, edge.normal, edge.cell, v * edge.D[4], flux);
}

/// Codes 326, 328, 330: an inflow that brings mass only, if `test` says that it comes in.
inline void inflowOfMass(const Parameters& par, const BoundaryEdge& edge, double test, double mass,
                         double* flux) {
  if (!(test < 0.0)) return wallFlux(par, edge.normal, edge.cell, flux);
  flowWithPressureOnly(par, edge.normal, edge.cell, mass, flux);
}

/// Codes 220 and the shut 216 and 218: each cell feels its own pressure.
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

/// Code 216: transfer at the velocity D[1]. The upstream cell loses the advected momentum, the
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

/// Code 218: an open gate is an edge like any other.
inline void innerGate(const Parameters& par, const BoundaryEdge& edge, double* flux) {
  const double depthRight = edge.stateRight[0] - edge.bedRight[0];
  solveAgainst(par, edge, edge.stateRight, edge.bedRight,
               depthRight > par.real(ParameterID::MinWaterDepth), flux);
}

/// @param type {type code, orientation sign}; @param D boundary record, seven values
/// @param chezy 0 without friction; read by codes 100 and 104, for a normal depth
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
  switch (type[0]) {
    case 100: return inflowAtNormalDepth(par, edge, flux);
    case 102: return inflowAtFroudeNumber(par, edge, flux);
    case 104: return outflowOverSlope(par, edge, flux);
    case 106:
    case 108:
    case 323:
    case 325: return outflowWithPressureOnly(par, edge, flux);
    case 110:
    case 327: return outflowWithMomentum(par, edge, D[1], flux);
    case 329: return outflowWithMomentum(par, edge, D[5], flux);
    case 112: return freeOutflow(par, edge, flux);
    case 114: return imposedLevel(par, edge, flux);
    case 216: return open() ? innerTransfer(par, edge, flux) : innerWall(par, edge, flux);
    case 218: return open() ? innerGate(par, edge, flux) : innerWall(par, edge, flux);
    case 220: return innerWall(par, edge, flux);
    case 322:
    case 324: return inflowByVelocityAndDepth(par, edge, flux);
    case 326: return inflowOfMass(par, edge, edge.sign * D[1], edge.sign * D[2], flux);
    case 328: return inflowOfMass(par, edge, edge.sign * D[5], edge.sign * D[5] * D[6], flux);
    case 330: return inflowOfMass(par, edge, edge.sign * D[1], edge.sign * D[1], flux);
    case 331: return outflowAgainstLevel(par, edge, flux);
    default:  return wallFlux(par, normal, edge.cell, flux);
  }
  // clang-format on
}

}  // namespace kernels::hydraulics
