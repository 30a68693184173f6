// Types of values: how those of this program lie in memory and, as types of their own platform, in
// a file; and what to ask of the types of numbers in a file. The library shifts bits from where
// such a type says they stand, without a look at the size of the numbers.
#pragma once

#include <string>

#include "h5/Handle.h"

namespace h5 {

/// `T` is int, double or std::string. Strings are of variable length, in UTF-8, ended by a zero.
/// @throws Error if the library refuses.
template <class T>
Handle typeOf();
template <>
Handle typeOf<int>();
template <>
Handle typeOf<double>();
template <>
Handle typeOf<std::string>();

/// Whether values of the type are converted to int and double: integers, their enumerations,
/// floats.
bool isNumber(hid_t type);

/// Whether all bits of such a type lie within its bytes.
bool isSoundNumber(hid_t type);

}  // namespace h5
