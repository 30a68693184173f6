// How the values of this program lie in memory and, as types of their own platform, in a file.
#pragma once

#include <string>

#include "h5/handle.h"

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

}  // namespace h5
