#include "jsv/annotations/JsonType.h"

#include <array>

namespace jsv {

JsonType jsonType(const nlohmann::json& value) {
  if (value.is_number_integer()) return JsonType::Integer;
  if (value.is_number_float()) return JsonType::FloatingPointNumber;
  if (value.is_string()) return JsonType::String;
  if (value.is_object()) return JsonType::Object;
  if (value.is_array()) return JsonType::Array;
  return JsonType::Other;
}

std::string toString(JsonType type) {
  switch (type) {
    case JsonType::Integer:
      return "integer";
    case JsonType::FloatingPointNumber:
      return "floating point number";
    case JsonType::String:
      return "string";
    case JsonType::Object:
      return "object";
    case JsonType::Array:
      return "array";
    case JsonType::Other:
      break;
  }
  return "unknown";
}

std::string toString(JsonTypeClass typeClass) {
  switch (typeClass) {
    case JsonTypeClass::Integer:
      return "integer";
    case JsonTypeClass::Number:
      return "number";
    case JsonTypeClass::String:
      return "string";
    case JsonTypeClass::Object:
      return "object";
    case JsonTypeClass::Array:
      return "array";
    case JsonTypeClass::Unknown:
      break;
  }
  return "unknown";
}

JsonTypeClass classFromString(const std::string& word) {
  constexpr std::array CLASSES = {JsonTypeClass::Integer, JsonTypeClass::Number,
                                  JsonTypeClass::String, JsonTypeClass::Object,
                                  JsonTypeClass::Array};
  for (const auto typeClass : CLASSES) {
    if (toString(typeClass) == word) return typeClass;
  }
  return JsonTypeClass::Unknown;
}

bool isTypeInClass(JsonType type, JsonTypeClass typeClass) {
  switch (typeClass) {
    case JsonTypeClass::Integer:
      return type == JsonType::Integer;
    case JsonTypeClass::Number:
      return type == JsonType::Integer || type == JsonType::FloatingPointNumber;
    case JsonTypeClass::String:
      return type == JsonType::String;
    case JsonTypeClass::Object:
      return type == JsonType::Object;
    case JsonTypeClass::Array:
      return type == JsonType::Array;
    case JsonTypeClass::Unknown:
      break;
  }
  return false;
}

nlohmann::json generateEmpty(JsonTypeClass typeClass) {
  if (typeClass == JsonTypeClass::Object) return nlohmann::json::object();
  if (typeClass == JsonTypeClass::Array) return nlohmann::json::array();
  return nullptr;
}

}  // namespace jsv
