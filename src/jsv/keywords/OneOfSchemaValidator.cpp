#include "jsv/keywords/OneOfSchemaValidator.h"

#include "jsv/SchemaException.h"
#include "jsv/keywords/NonSwitchOneOfSchemaValidator.h"
#include "jsv/keywords/SwitchOneOfSchemaValidator.h"

namespace jsv {

ItemNames OneOfSchemaValidator::check(const JsonPointer& jsonPointer,
                                      const JsonPointer& schemaPointer,
                                      AbstractAnnotationCollection& collection) const {
  throwIfTypeIsNot<JsonTypeClass::Array>(schemaPointer);
  const auto& cases = schema(schemaPointer);
  std::size_t withProperties = 0;
  for (std::size_t i = 0; i < cases.size(); ++i) {
    if (validSchemaPath(schemaPointer / i / "properties")) ++withProperties;
  }
  if (withProperties != 0 && withProperties != cases.size()) {
    throw InvalidSchemaException(
        schemaPointer,
        "The 'properties' keyword must be present in either all or none of the subschemas.");
  }
  if (cases.empty()) return {};
  if (withProperties == 0) {
    return NonSwitchOneOfSchemaValidator(*this, wholeSchema())
        .check(jsonPointer, schemaPointer, collection);
  }
  return SwitchOneOfSchemaValidator(*this, wholeSchema())
      .check(jsonPointer, schemaPointer, collection);
}

}  // namespace jsv
