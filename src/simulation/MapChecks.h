// Which entries of its maps a kernel follows, and whether they lead to elements that exist.
#pragma once

#include "simulation/InputChecks.h"

namespace simulation {

/// Checks the entries that a kernel follows and sets all others of its maps to 0.
/// Ends the process at an entry that is no element of its target set.
void checkMaps(model::KernelID kernel, const Dats& dats, const Maps& maps);

}  // namespace simulation
