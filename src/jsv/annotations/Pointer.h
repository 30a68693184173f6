// JSON pointers, which locate annotations in the document and faults in the schema.
//
// Use toText instead of the library's conversion, whose time is quadratic in the nesting.
#pragma once

#include <nlohmann/json.hpp>
#include <string>

namespace jsv {

using JsonPointer = nlohmann::json::json_pointer;

/// The pointer in its usual text form, "/SIMULATION/TIME/end" for instance, with "~0" for a tilde
/// and "~1" for a slash inside a name. The root pointer is "/".
std::string toText(const JsonPointer& pointer);

}  // namespace jsv
