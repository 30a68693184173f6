// Gradient of the bed, from the three neighbour cells:
//
//   grad z = sum of w_k (z_k - z)
#pragma once

namespace kernels::morphology {

/// @param bed z of the cell [m]; @param neighbourBed z of its three neighbours [m]
/// @param weight {x, y} weights of the three neighbours [1/m]
/// @param gradient out: {dz/dx, dz/dy} [-]
inline void calc_bed_gradient(const double* bed, const double* const* neighbourBed,
                              const double* weight, double* gradient) {
  const double d0 = neighbourBed[0][0] - bed[0];
  const double d1 = neighbourBed[1][0] - bed[0];
  const double d2 = neighbourBed[2][0] - bed[0];
  gradient[0] = 0.0 + weight[0] * d0 + weight[2] * d1 + weight[4] * d2;
  gradient[1] = 0.0 + weight[1] * d0 + weight[3] * d1 + weight[5] * d2;
}

}  // namespace kernels::morphology
