#include "jsv/keywords/OptionalSchemaValidator.h"

#include "jsv/BaseSchemaValidator.h"

namespace jsv {

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

}  // namespace jsv
