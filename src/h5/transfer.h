// Moves values between a vector and an open dataset; shapes have been checked before (dataset.h).
#pragma once

#include <string>
#include <vector>

#include "h5/Handle.h"

namespace h5 {

/// Fills `values`, whose size is the number of values in the dataset. `T` is int or double.
/// @throws Error if the library fails, as for a type that cannot be converted; so do all below.
template <class T>
void readValues(const Handle& dataset, std::vector<T>& values);

/// A string that was never written reads as empty.
template <>
void readValues(const Handle& dataset, std::vector<std::string>& values);

/// Fills `values` with a part of the dataset. `T` is int or double.
/// @param part dataspace of the dataset with the values to be read selected
/// @param memory dataspace of as many values
template <class T>
void readSelected(const Handle& dataset, const Handle& part, const Handle& memory,
                  std::vector<T>& values);

/// Writes all values of a dataset. `T` is int or double.
template <class T>
void writeValues(const Handle& dataset, const std::vector<T>& values);

/// A string ends at its first zero.
template <>
void writeValues(const Handle& dataset, const std::vector<std::string>& values);

}  // namespace h5
