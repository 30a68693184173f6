#include "jsv/keywords/ItemsSchemaValidator.h"

#include "jsv/BaseSchemaValidator.h"

namespace jsv {

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
