#include "dataio/json/JSONValue.h"

#include <limits>

namespace dataio {

namespace {

/// The library's conversion has no defined result for a number with decimals that is out of range.
int toInt(const nlohmann::json& value) {
  if (!value.is_number_float()) return value.get<int>();
  const auto number = value.get<double>();
  const bool fits = number > -2147483649.0 && number < 2147483648.0;
  return fits ? static_cast<int>(number) : std::numeric_limits<int>::min();
}

}  // namespace

template <>
std::optional<bool> valueAs(const nlohmann::json& value) {
  if (!value.is_boolean()) return std::nullopt;
  return value.get<bool>();
}

template <>
std::optional<int> valueAs(const nlohmann::json& value) {
  if (!value.is_number()) return std::nullopt;
  return toInt(value);
}

template <>
std::optional<double> valueAs(const nlohmann::json& value) {
  if (!value.is_number()) return std::nullopt;
  return value.get<double>();
}

template <>
std::optional<std::string> valueAs(const nlohmann::json& value) {
  if (!value.is_string()) return std::nullopt;
  return value.get<std::string>();
}

template <>
std::optional<std::vector<int>> valueAs(const nlohmann::json& value) {
  if (!value.is_array()) return std::nullopt;
  std::vector<int> numbers;
  numbers.reserve(value.size());
  for (const nlohmann::json& element : value) numbers.push_back(toInt(element));
  return numbers;
}

template <>
std::optional<std::vector<double>> valueAs(const nlohmann::json& value) {
  if (!value.is_array()) return std::nullopt;
  return value.get<std::vector<double>>();
}

template <>
std::optional<std::vector<std::string>> valueAs(const nlohmann::json& value) {
  if (!value.is_array()) return std::nullopt;
  return value.get<std::vector<std::string>>();
}

}  // namespace dataio
