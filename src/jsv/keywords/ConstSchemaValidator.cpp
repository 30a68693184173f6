#include "jsv/keywords/ConstSchemaValidator.h"

namespace jsv {

ItemNames ConstSchemaValidator::check(const JsonPointer& jsonPointer,
                                      const JsonPointer& schemaPointer,
                                      AbstractAnnotationCollection& collection) const {
  const auto& expected = schemaString(schemaPointer);
  const auto& value = json(jsonPointer);
  if (!value.is_string() || value.get_ref<const std::string&>() != expected) {
    collection.addAnnotation(jsonPointer, ConstConstraintViolation{expected});
  }
  return {};
}

}  // namespace jsv
