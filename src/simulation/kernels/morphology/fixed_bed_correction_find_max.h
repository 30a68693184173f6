// The largest depth by which a new bed falls short of its fixed bed.
#pragma once

#include "simulation/kernels/numeric.h"

namespace kernels::morphology {

/// @param fixedBed,newBed elevations [m]
/// @param deviation running maximum [m]; a bed above its fixed bed counts as 0, a NaN too
inline void fixed_bed_correction_find_max(const double* fixedBed, const double* newBed,
                                          double* deviation) {
  const double d = fixedBed[0] - newBed[0];
  deviation[0] = fmax(d > 0.0 ? d : 0.0, deviation[0]);
}

}  // namespace kernels::morphology
