// Turns JSON values into the types of this program.
//
//   const std::optional<int> end = dataio::valueAs<int>(document["end"]);
#pragma once

#include <nlohmann/json.hpp>
#include <optional>
#include <string>
#include <vector>

namespace dataio {

/// The value, or nothing if it is of another JSON type: a number for int and double, a boolean, a
/// string, an array for each kind of vector.
///
/// A number with decimals becomes an int by truncation. Beyond the range of int it becomes
/// -2147483648, also the mark of a missing value; an integer beyond it keeps its lowest 32 bits.
/// @throws nlohmann::json::type_error for an array with an element of another type.
template <class T>
std::optional<T> valueAs(const nlohmann::json& value);

template <>
std::optional<bool> valueAs(const nlohmann::json& value);
template <>
std::optional<int> valueAs(const nlohmann::json& value);
template <>
std::optional<double> valueAs(const nlohmann::json& value);
template <>
std::optional<std::string> valueAs(const nlohmann::json& value);
template <>
std::optional<std::vector<int>> valueAs(const nlohmann::json& value);
template <>
std::optional<std::vector<double>> valueAs(const nlohmann::json& value);
template <>
std::optional<std::vector<std::string>> valueAs(const nlohmann::json& value);

}  // namespace dataio
