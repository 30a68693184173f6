// Attributes that hold one value. `T` is int or double; the library converts between the two.
//
//   h5::attachAttribute(dataset.handle(), "t", 12.5);
//   const double t = h5::readAttribute<double>(dataset.handle(), "t");
#pragma once

#include <string>

#include "h5/Handle.h"

namespace h5 {

/// Sets an attribute of an open object, creating it if necessary.
/// @throws Error on failure, also if the attribute exists and holds more or less than one value.
template <class T>
void attachAttribute(const Handle& object, const std::string& name, const T& value);

/// @throws Error if there is no such attribute, or if it holds more or less than one value.
template <class T>
T readAttribute(const Handle& object, const std::string& name);

}  // namespace h5
