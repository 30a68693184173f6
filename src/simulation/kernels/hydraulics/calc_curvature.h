// Curvature of the flow field, from the velocities of the neighbour cells.
//
//   1/R = (u (u dv/dx - v du/dx) + v (u dv/dy - v du/dy)) / U^3
//
// Differences count by the length of their projection on the flow direction.
#pragma once

#include <array>
#include <cmath>

#include "simulation/kernels/numeric.h"
#include "simulation/kernels/parameters.h"

namespace kernels::hydraulics {

/// @param unitCentroid per edge: unit vector between the centroids of its cells
/// @param distance per edge: distance between the centroids [m]
/// @param state,bed the cell; @param neighbourState,neighbourBed its three neighbours
/// @param weight {x, y} weights of the three neighbours [1/m]
/// @param curvature out [1/m]; 0 where nothing flows
inline void calc_curvature(double const* const* unitCentroid, double const* const* distance,
                           double const* state, double const* bed,
                           double const* const* neighbourState, double const* const* neighbourBed,
                           double const* weight, double* curvature) {
  double const hmin = real(ParameterID::MinWaterDepth);
  double const w = inverseDepth(state[0] - bed[0], hmin);
  double const u = state[1] * w;
  double const v = state[2] * w;
  double const U = std::sqrt(u * u + v * v);
  double const rU = inverse(U);

  std::array<double, 3> du{};
  std::array<double, 3> dv{};
  for (std::size_t k = 0; k < 3; ++k) {
    double const wk = inverseDepth(neighbourState[k][0] - neighbourBed[k][0], hmin);
    double const uk = neighbourState[k][1] * wk;
    double const vk = neighbourState[k][2] * wk;
    double const a =
        std::fabs((unitCentroid[k][0] * u + unitCentroid[k][1] * v) * distance[k][0] * rU);
    du[k] = (uk - u) * a;
    dv[k] = (vk - v) * a;
  }
  double const dudx = weight[0] * du[0] + weight[2] * du[1] + weight[4] * du[2];
  double const dudy = weight[1] * du[0] + weight[3] * du[1] + weight[5] * du[2];
  double const dvdx = weight[0] * dv[0] + weight[2] * dv[1] + weight[4] * dv[2];
  double const dvdy = weight[1] * dv[0] + weight[3] * dv[1] + weight[5] * dv[2];

  double const A = u * dvdx - v * dudx;
  double const B = u * dvdy - v * dudy;
  curvature[0] = (u * A + v * B) * inverse(U * (U * U));
}

}  // namespace kernels::hydraulics
