#include "jsv/keywords/RequiredSchemaValidator.h"

namespace jsv {

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

}  // namespace jsv
