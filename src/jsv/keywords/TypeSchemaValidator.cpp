#include "jsv/keywords/TypeSchemaValidator.h"

#include "jsv/SchemaException.h"

namespace jsv {

ItemNames TypeSchemaValidator::check(const JsonPointer& jsonPointer,
                                     const JsonPointer& schemaPointer,
                                     AbstractAnnotationCollection& collection) const {
  const auto typeClass = classFromString(schemaString(schemaPointer));
  if (typeClass == JsonTypeClass::Unknown) {
    throw InvalidSchemaException(schemaPointer, "The provided type is invalid.");
  }
  collection.addAnnotation(jsonPointer, RequiredTypeAnnotation{typeClass});
  if (!isTypeInClass(jsonType(json(jsonPointer)), typeClass)) {
    collection.addAnnotation(jsonPointer, IncorrectType{typeClass});
  }
  return {};
}

}  // namespace jsv
