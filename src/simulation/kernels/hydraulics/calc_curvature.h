// Curvature of the flow field, from the velocities of the neighbour cells.
//
//   1/R = (u (u dv/dx - v du/dx) + v (u dv/dy - v du/dy)) / U^3
//
// Differences count by the length of their projection on the flow direction.
#pragma once

#include <array>
#include <cmath>

#include "simulation/kernels/Parameters.h"
#include "simulation/kernels/numeric.h"

namespace kernels::hydraulics {

/// @param unitCentroid per edge: unit vector between the centroids of its cells
/// @param distance per edge: distance between the centroids [m]
/// @param state,bed the cell; @param neighbourState,neighbourBed its three neighbours
/// @param weight {x, y} weights of the three neighbours [1/m]
/// @param curvature out [1/m]; 0 where nothing flows
inline void calc_curvature(const Parameters& par, const double* const* unitCentroid,
                           const double* const* distance, const double* state, const double* bed,
                           const double* const* neighbourState, const double* const* neighbourBed,
                           const double* weight, double* curvature) {
  const double hmin = par.real(ParameterID::MinWaterDepth);
  const double w = inverseDepth(state[0] - bed[0], hmin);
  const double u = state[1] * w;
  const double v = state[2] * w;
  const double U = std::sqrt(u * u + v * v);
  const double rU = inverse(U);

  std::array<double, 3> du{};
  std::array<double, 3> dv{};
  for (std::size_t k = 0; k < 3; ++k) {
    const double wk = inverseDepth(neighbourState[k][0] - neighbourBed[k][0], hmin);
    const double uk = neighbourState[k][1] * wk;
    const double vk = neighbourState[k][2] * wk;
    const double a =
        std::fabs((unitCentroid[k][0] * u + unitCentroid[k][1] * v) * distance[k][0] * rU);
    du[k] = (uk - u) * a;
    dv[k] = (vk - v) * a;
  }
  const double dudx = weight[0] * du[0] + weight[2] * du[1] + weight[4] * du[2];
  const double dudy = weight[1] * du[0] + weight[3] * du[1] + weight[5] * du[2];
  const double dvdx = weight[0] * dv[0] + weight[2] * dv[1] + weight[4] * dv[2];
  const double dvdy = weight[1] * dv[0] + weight[3] * dv[1] + weight[5] * dv[2];

  const double A = u * dvdx - v * dudx;
  const double B = u * dvdy - v * dudy;
  curvature[0] = (u * A + v * B) * inverse(U * (U * U));
}

}  // namespace kernels::hydraulics
