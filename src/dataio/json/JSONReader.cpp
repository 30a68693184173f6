// The document and the ways to a value in it; the typed getters stand in JSONGetters.cpp.
#include "dataio/json/JSONReader.h"

#include <fstream>
#include <sstream>

#include "common/console.h"

namespace console = common::console;

namespace dataio {

namespace {

/// The member `key`, or null.
/// @throws nlohmann::json::type_error if `value` cannot have members.
nlohmann::json memberOf(const nlohmann::json& value, const std::string& key) {
  if (value.is_null()) return nullptr;
  if (!value.is_object()) return value[key];  // throws, in the library's words
  const auto member = value.find(key);
  return member == value.end() ? nlohmann::json() : *member;
}

}  // namespace

JSONReader::JSONReader(const std::string& input) {
  try {
    json = nlohmann::json::parse(input);
  } catch (const std::exception& /*notText*/) {
    filename = input;
    try {
      std::ifstream stream(filename);
      json = nlohmann::json::parse(stream);
    } catch (const std::exception& /*notFile*/) {
      console::fail("input file <", filename, "> not found.");
    }
  }
}

std::string JSONReader::getHash() const {
  return json.dump();
}

bool JSONReader::checkPaths(const std::vector<std::string>& paths) const {
  bool found = false;
  for (const std::string& path : paths) {
    getValue(path, found);
    if (!found) break;
  }
  return found;
}

std::string JSONReader::createPathWithinArray(const std::string& array, const int& index,
                                              const std::string& element) const {
  return array + "[" + std::to_string(index) + "]" + delimiter + element;
}

std::vector<std::string> JSONReader::getGroups(const std::string& path) const {
  const nlohmann::json root = getRootOfPath(path);
  std::vector<std::string> groups;
  for (auto it = root.begin(); it != root.end(); ++it) groups.push_back(it.key());
  return groups;
}

std::vector<std::string> JSONReader::splitPath(const std::string& path) const {
  std::vector<std::string> elements;
  std::istringstream stream(path);
  std::string element;
  while (std::getline(stream, element, *delimiter)) elements.push_back(element);
  return elements;
}

nlohmann::json JSONReader::getValue(const std::string& path, bool& found) const {
  found = true;
  nlohmann::json value = json;
  for (const std::string& key : splitPath(path)) {
    value = memberOf(value, key);
    // Null, {} and [] alike.
    if (value.empty()) {
      found = false;
      break;
    }
  }
  return value;
}

nlohmann::json JSONReader::getRequiredValue(const std::string& path, bool& found) const {
  nlohmann::json value = getValue(path, found);
  if (!found) console::error("path <", path, "> not found.");
  return value;
}

nlohmann::json JSONReader::getOptionalValue(const std::string& path, bool& found) const {
  return getValue(path, found);
}

nlohmann::json JSONReader::getValueFromArray(const std::string& array, const int& index,
                                             const std::string& element, bool& found) const {
  nlohmann::json value = getValue(array, found);
  if (found && value.is_array() && index < static_cast<int>(value.size())) {
    const nlohmann::json item = value.at(static_cast<std::size_t>(index));
    value = item;
    found = !value.empty();
  }
  if (!found) return value;
  value = memberOf(value, element);
  found = !value.empty();
  return value;
}

nlohmann::json JSONReader::getRequiredValueFromArray(const std::string& array, const int& index,
                                                     const std::string& element,
                                                     bool& found) const {
  nlohmann::json value = getValueFromArray(array, index, element, found);
  if (!found) {
    console::error("path <", createPathWithinArray(array, index, element), "> not found.");
  }
  return value;
}

nlohmann::json JSONReader::getOptionalValueFromArray(const std::string& array, const int& index,
                                                     const std::string& element,
                                                     bool& found) const {
  return getValueFromArray(array, index, element, found);
}

nlohmann::json JSONReader::getRootOfPath(const std::string& path) const {
  nlohmann::json value = json;
  for (const std::string& key : splitPath(path)) value = memberOf(value, key);
  return value;
}

}  // namespace dataio
