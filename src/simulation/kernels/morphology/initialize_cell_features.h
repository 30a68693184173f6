// Prepares the cells before the time marching: no curvature of the flow, no slope of the bed. Both
// stay 0 in runs that never calculate them.
#pragma once

namespace kernels::morphology {

/// @param curvature out: of the flow [1/m]; @param gradient out: {dz/dx, dz/dy} of the bed [-]
inline void initialize_cell_features(const double* /*bed*/, double* curvature, double* gradient) {
  curvature[0] = 0.0;
  gradient[0] = 0.0;
  gradient[1] = 0.0;
}

}  // namespace kernels::morphology
