// Types of numbers in a file. The library shifts bits from where the type says they stand, without
// a look at the size of the numbers.
#pragma once

#include <hdf5.h>

namespace h5 {

/// Whether values of the type are converted to int and double: integers, their enumerations,
/// floats.
bool isNumber(hid_t type);

/// Whether all bits of such a type lie within its bytes.
bool isSoundNumber(hid_t type);

}  // namespace h5
