#include "jsv/keywords/FormatSchemaValidator.h"

#include "jsv/SchemaException.h"

namespace jsv {

ItemNames FormatSchemaValidator::check(const JsonPointer& jsonPointer,
                                       const JsonPointer& schemaPointer,
                                       AbstractAnnotationCollection& collection) const {
  if (schema(schemaPointer) != "uri") {
    throw InvalidSchemaException(schemaPointer, "Only the 'uri' format is currently supported.");
  }
  collection.addAnnotation(jsonPointer, StringIsURIAnnotation{});
  return {};
}

}  // namespace jsv
