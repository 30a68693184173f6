// The typed getters of the command file reader: what a value that is missing or of another type
// becomes.
#include <limits>

#include "dataio/json/JSONReader.h"
#include "dataio/json/JSONValue.h"

namespace dataio {

namespace {

constexpr int NO_INT = std::numeric_limits<int>::min();
constexpr double NO_DOUBLE = std::numeric_limits<double>::quiet_NaN();

template <class T>
T valueOr(const nlohmann::json& value, bool found, const T& missing) {
  return found ? valueAs<T>(value).value_or(missing) : missing;
}

int lengthOf(const nlohmann::json& value) {
  return value.is_array() ? static_cast<int>(value.size()) : 0;
}

}  // namespace

template <class T>
T JSONReader::getRequired(const std::string& path, bool& found, const T& missing) const {
  const nlohmann::json value = getRequiredValue(path, found);
  return valueOr(value, found, missing);
}

template <class T>
T JSONReader::getOptional(const std::string& path, const T& value) const {
  bool found = false;
  const nlohmann::json present = getOptionalValue(path, found);
  return valueOr(present, found, value);
}

template <class T>
T JSONReader::getRequiredFromArray(const std::string& array, int index, const std::string& element,
                                   bool& found, const T& missing) const {
  const nlohmann::json value = getRequiredValueFromArray(array, index, element, found);
  return valueOr(value, found, missing);
}

template <class T>
T JSONReader::getOptionalFromArray(const std::string& array, int index, const std::string& element,
                                   const T& value) const {
  bool found = false;
  const nlohmann::json present = getOptionalValueFromArray(array, index, element, found);
  return valueOr(present, found, value);
}

bool JSONReader::getBool(const std::string& path, bool& found) const {
  return getRequired(path, found, false);
}

bool JSONReader::getOptionalBool(const std::string& path, const bool& value) const {
  return getOptional(path, value);
}

int JSONReader::getInt(const std::string& path, bool& found) const {
  return getRequired(path, found, NO_INT);
}

int JSONReader::getOptionalInt(const std::string& path, const int& value) const {
  return getOptional(path, value);
}

std::vector<int> JSONReader::getIntList(const std::string& path, bool& found) const {
  return getRequired(path, found, std::vector<int>());
}

std::vector<int> JSONReader::getOptionalIntList(const std::string& path,
                                                const std::vector<int>& value) const {
  return getOptional(path, value);
}

double JSONReader::getDouble(const std::string& path, bool& found) const {
  return getRequired(path, found, NO_DOUBLE);
}

double JSONReader::getOptionalDouble(const std::string& path, const double& value) const {
  return getOptional(path, value);
}

std::vector<double> JSONReader::getDoubleList(const std::string& path, bool& found) const {
  return getRequired(path, found, std::vector<double>());
}

std::vector<double> JSONReader::getOptionalDoubleList(const std::string& path,
                                                      const std::vector<double>& value) const {
  return getOptional(path, value);
}

std::string JSONReader::getString(const std::string& path, bool& found) const {
  return getRequired(path, found, std::string());
}

std::string JSONReader::getOptionalString(const std::string& path, const std::string& value) const {
  return getOptional(path, value);
}

std::vector<std::string> JSONReader::getStringList(const std::string& path, bool& found) const {
  return getRequired(path, found, std::vector<std::string>());
}

std::vector<std::string> JSONReader::getOptionalStringList(
    const std::string& path, const std::vector<std::string>& value) const {
  return getOptional(path, value);
}

int JSONReader::getArrayLength(const std::string& path, bool& found) const {
  return lengthOf(getRequiredValue(path, found));
}

int JSONReader::getOptionalArrayLength(const std::string& path) const {
  bool found = false;
  return lengthOf(getOptionalValue(path, found));
}

int JSONReader::getIntFromArray(const std::string& array, const int& index,
                                const std::string& element, bool& found) const {
  return getRequiredFromArray(array, index, element, found, NO_INT);
}

int JSONReader::getOptionalIntFromArray(const std::string& array, const int& index,
                                        const std::string& element, const int& value) const {
  return getOptionalFromArray(array, index, element, value);
}

double JSONReader::getDoubleFromArray(const std::string& array, const int& index,
                                      const std::string& element, bool& found) const {
  return getRequiredFromArray(array, index, element, found, NO_DOUBLE);
}

double JSONReader::getOptionalDoubleFromArray(const std::string& array, const int& index,
                                              const std::string& element,
                                              const double& value) const {
  return getOptionalFromArray(array, index, element, value);
}

std::string JSONReader::getStringFromArray(const std::string& array, const int& index,
                                           const std::string& element, bool& found) const {
  return getRequiredFromArray(array, index, element, found, std::string());
}

std::string JSONReader::getOptionalStringFromArray(const std::string& array, const int& index,
                                                   const std::string& element,
                                                   const std::string& value) const {
  return getOptionalFromArray(array, index, element, value);
}

std::vector<double> JSONReader::getValueListFromArray(const std::string& array, const int& index,
                                                      const std::string& element,
                                                      bool& found) const {
  return getRequiredFromArray(array, index, element, found, std::vector<double>());
}

std::vector<double> JSONReader::getOptionalValueListFromArray(
    const std::string& array, const int& index, const std::string& element,
    const std::vector<double>& value) const {
  return getOptionalFromArray(array, index, element, value);
}

}  // namespace dataio
