#include "jsv/ItemKeywords.h"

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

ItemNames RequiredSchemaValidator::check(const JsonPointer& jsonPointer,
                                         const JsonPointer& schemaPointer,
                                         AbstractAnnotationCollection& collection) const {
  throwIfTypeIsNot<JsonTypeClass::Array>(schemaPointer);
  const auto& object = json(jsonPointer);
  if (!object.is_object()) return {};
  ItemNames present;
  for (std::size_t i = 0; i < schema(schemaPointer).size(); ++i) {
    const auto& name = schemaString(schemaPointer / i);
    if (object.contains(name)) {
      present.insert(name);
    } else {
      collection.addAnnotation(jsonPointer / name, MissingItem{});
      collection.addAnnotation(jsonPointer, ValidAdditionalKeyAnnotation{name});
    }
  }
  return present;
}

ItemNames OptionalSchemaValidator::check(const JsonPointer& jsonPointer,
                                         const JsonPointer& schemaPointer,
                                         AbstractAnnotationCollection& collection) const {
  const auto names = BaseSchemaValidator(*this, wholeSchema()).readOptionalItems(schemaPointer);
  const auto& object = json(jsonPointer);
  if (!object.is_object()) return {};
  for (const auto& name : names) {
    collection.addAnnotation(jsonPointer / name, OptionalItemAnnotation{});
    if (!object.contains(name))
      collection.addAnnotation(jsonPointer, ValidAdditionalKeyAnnotation{name});
  }
  return {};
}

ItemNames ItemsSchemaValidator::check(const JsonPointer& jsonPointer,
                                      const JsonPointer& schemaPointer,
                                      AbstractAnnotationCollection& collection) const {
  const auto& array = json(jsonPointer);
  if (!array.is_array()) return {};
  for (std::size_t i = 0; i < array.size(); ++i) {
    BaseSchemaValidator(*this, schema(schemaPointer))
        .check(jsonPointer / i, JsonPointer(), collection);
  }
  return {};
}

}  // namespace jsv
