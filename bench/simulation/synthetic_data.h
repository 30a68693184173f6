// Values for the data that a made mesh does not give, and the parameters of the run: plausible for
// a river with a moving bed of gravel, so that the loops take the ways that they take in practice.
#pragma once

#include <vector>

#include "catalogue/IDs.h"

namespace bench {

/// The values of any one element; 0 for what loops only write.
std::vector<double> syntheticElement(model::DataID id);

/// Fills G_REAL and G_INT.
void setParameters();

/// Within the synthetic series [s].
inline constexpr double SERIES_TIME = 180'000.5;

}  // namespace bench
