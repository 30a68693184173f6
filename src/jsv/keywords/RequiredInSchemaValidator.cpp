#include "jsv/keywords/RequiredInSchemaValidator.h"

#include "jsv/SchemaException.h"

namespace jsv {
namespace {

JsonPointer parsePointer(const std::string& text, const JsonPointer& schemaPointer) {
  try {
    return JsonPointer(text);
  } catch (const nlohmann::json::exception&) {
    throw InvalidSchemaException(schemaPointer, "This JSON pointer is invalid.");
  }
}

}  // namespace

ItemNames RequiredInSchemaValidator::check(const JsonPointer& jsonPointer,
                                           const JsonPointer& schemaPointer,
                                           AbstractAnnotationCollection& collection) const {
  const auto& arrayReference = schemaString(schemaPointer / "$array_ref");
  const auto& itemProperty = schemaString(schemaPointer / "itemProperty");
  const auto& names =
      referencedNames(parsePointer(arrayReference, schemaPointer / "$array_ref"), itemProperty);
  collection.addAnnotation(jsonPointer, EnumRequiredAnnotation{names});
  const auto& value = json(jsonPointer);
  if (!value.is_string() || !names.contains(value.get_ref<const std::string&>())) {
    collection.addAnnotation(jsonPointer, RequiredInViolation{arrayReference, itemProperty});
  }
  return {};
}

}  // namespace jsv
