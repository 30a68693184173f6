#include "jsv/NoteKeywords.h"

#include "jsv/SchemaException.h"

namespace jsv {

ItemNames DescriptionSchemaValidator::check(const JsonPointer& jsonPointer,
                                            const JsonPointer& schemaPointer,
                                            AbstractAnnotationCollection& collection) const {
  collection.addAnnotation(jsonPointer, DescriptionAnnotation{schemaString(schemaPointer)});
  return {};
}

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

ItemNames FormatSchemaValidator::check(const JsonPointer& jsonPointer,
                                       const JsonPointer& schemaPointer,
                                       AbstractAnnotationCollection& collection) const {
  if (schema(schemaPointer) != "uri") {
    throw InvalidSchemaException(schemaPointer, "Only the 'uri' format is currently supported.");
  }
  collection.addAnnotation(jsonPointer, StringIsURIAnnotation{});
  return {};
}

ItemNames NoCheckSchemaValidator::check(const JsonPointer& /*jsonPointer*/,
                                        const JsonPointer& /*schemaPointer*/,
                                        AbstractAnnotationCollection& /*collection*/) const {
  return {};
}

}  // namespace jsv
