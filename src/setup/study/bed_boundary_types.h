// The boundaries of the bed load, in the manner of boundary_types.h: name, code, inputs and what
// becomes of them in every step. This table and that in docs/setup.md say the same.
//
// Amounts are volumes of grains without pores. The amounts that a study gives are kept from the
// calibration factor of the bed load; shares of the capacity are not.
#pragma once

#include <vector>

#include "setup/study/boundary_types.h"

namespace setup {

/// In the order of their codes.
const std::vector<BoundaryType>& bedBoundaryTypes();

}  // namespace setup
