#include "jsv/keywords/EnumSchemaValidator.h"

namespace jsv {

ItemNames EnumSchemaValidator::check(const JsonPointer& jsonPointer,
                                     const JsonPointer& schemaPointer,
                                     AbstractAnnotationCollection& collection) const {
  throwIfTypeIsNot<JsonTypeClass::Array>(schemaPointer);
  std::vector<std::string> options;
  for (std::size_t i = 0; i < schema(schemaPointer).size(); ++i) {
    options.push_back(schemaString(schemaPointer / i));
  }
  const auto sorted = makeSortable(std::move(options));
  collection.addAnnotation(jsonPointer, EnumRequiredAnnotation{sorted});
  const auto& value = json(jsonPointer);
  if (!value.is_string() || !sorted.contains(value.get_ref<const std::string&>())) {
    collection.addAnnotation(jsonPointer, EnumConstraintViolation{sorted});
  }
  return {};
}

}  // namespace jsv
