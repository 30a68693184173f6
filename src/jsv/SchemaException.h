// Faults of a schema. They end a validation, while faults of a document are annotations.
#pragma once

#include <nlohmann/json.hpp>
#include <stdexcept>
#include <string>

#include "jsv/annotations/JsonType.h"
#include "jsv/annotations/Pointer.h"

namespace jsv {

class SchemaValidationException : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// An item of a schema is not what the dialect asks for.
class InvalidSchemaException : public SchemaValidationException {
 public:
  /// Reads "/properties/a/format: " and `text`; the root pointer is "/".
  InvalidSchemaException(const JsonPointer& schemaPointer, const std::string& text);

  /// For what the JSON library has to say about an item of the schema.
  InvalidSchemaException(const JsonPointer& schemaPointer,
                         const nlohmann::detail::exception& cause);
};

/// The value of a keyword has the wrong type.
class InvalidTypeSchemaException : public InvalidSchemaException {
 public:
  InvalidTypeSchemaException(const JsonPointer& schemaPointer, JsonTypeClass requiredType);

  /// "This keyword requires an array parameter." and the like.
  static std::string createMessage(JsonTypeClass requiredType);
};

}  // namespace jsv
