// The types of JSON values as schemas see them, and the classes of types that a schema may ask for.
#pragma once

#include <nlohmann/json.hpp>
#include <string>

namespace jsv {

/// What a value of a document is. Booleans and null are Other: no schema can ask for them.
enum class JsonType { Other, Integer, FloatingPointNumber, String, Object, Array };

/// What the keyword `type` can ask for. A number may be an integer, not the other way round.
enum class JsonTypeClass { Unknown, Integer, Number, String, Object, Array };

JsonType jsonType(const nlohmann::json& value);

/// "integer", "floating point number", "string", "object", "array" or "unknown".
std::string toString(JsonType type);

/// The word of a class in schemas: "integer", "number", "string", "object", "array" or "unknown".
std::string toString(JsonTypeClass typeClass);

/// The class that a word of a schema stands for; Unknown for any word that is none of them.
JsonTypeClass classFromString(const std::string& word);

/// Whether a value of `type` satisfies `typeClass`; nothing satisfies Unknown.
bool isTypeInClass(JsonType type, JsonTypeClass typeClass);

/// An empty object or array for these classes, null for all others.
nlohmann::json generateEmpty(JsonTypeClass typeClass);

}  // namespace jsv
