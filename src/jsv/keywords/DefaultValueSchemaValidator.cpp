#include "jsv/keywords/DefaultValueSchemaValidator.h"

#include "jsv/SchemaException.h"

namespace jsv {

ItemNames DefaultValueSchemaValidator::check(const JsonPointer& jsonPointer,
                                             const JsonPointer& schemaPointer,
                                             AbstractAnnotationCollection& collection) const {
  const auto& defaultValue = schema(schemaPointer);
  const auto type = jsonType(defaultValue);
  if (type != JsonType::Integer && type != JsonType::FloatingPointNumber &&
      type != JsonType::String) {
    throw InvalidSchemaException(schemaPointer,
                                 "Only string and numeric default values are supported.");
  }
  collection.addAnnotation(jsonPointer, DefaultValueAnnotation{defaultValue});
  return {};
}

}  // namespace jsv
