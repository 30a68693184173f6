// What the numerics have found, in words.
#pragma once

#include "simulation/kernels/Diagnostics.h"

namespace simulation {

/// Prints notices on standard output, in the order given.
void printNotices(const kernels::Notice* notices, int count);

}  // namespace simulation
