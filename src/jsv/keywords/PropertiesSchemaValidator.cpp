#include "jsv/keywords/PropertiesSchemaValidator.h"

#include "jsv/BaseSchemaValidator.h"

namespace jsv {

ItemNames PropertiesSchemaValidator::check(const JsonPointer& jsonPointer,
                                           const JsonPointer& schemaPointer,
                                           AbstractAnnotationCollection& collection) const {
  throwIfTypeIsNot<JsonTypeClass::Object>(schemaPointer);
  const auto& object = json(jsonPointer);
  if (!object.is_object()) return {};
  for (const auto& property : schema(schemaPointer).items()) {
    if (object.contains(property.key())) {
      BaseSchemaValidator(*this, property.value())
          .check(jsonPointer / property.key(), JsonPointer(), collection);
    } else {
      collection.addAnnotation(jsonPointer, ValidAdditionalKeyAnnotation{property.key()});
    }
  }
  return {};
}

}  // namespace jsv
