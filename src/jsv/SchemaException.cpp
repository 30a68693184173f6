#include "jsv/SchemaException.h"

namespace jsv {

InvalidSchemaException::InvalidSchemaException(const JsonPointer& schemaPointer,
                                               const std::string& text)
    : SchemaValidationException(toText(schemaPointer) + ": " + text) {}

InvalidSchemaException::InvalidSchemaException(const JsonPointer& schemaPointer,
                                               const nlohmann::detail::exception& cause)
    : InvalidSchemaException(
          schemaPointer, "Parsing the schema file failed (" + std::string(cause.what()) + ").") {}

InvalidTypeSchemaException::InvalidTypeSchemaException(const JsonPointer& schemaPointer,
                                                       JsonTypeClass requiredType)
    : InvalidSchemaException(schemaPointer, createMessage(requiredType)) {}

std::string InvalidTypeSchemaException::createMessage(JsonTypeClass requiredType) {
  const bool startsWithConsonant =
      requiredType == JsonTypeClass::Number || requiredType == JsonTypeClass::String;
  return std::string("This keyword requires ") + (startsWithConsonant ? "a " : "an ") +
         toString(requiredType) + " parameter.";
}

}  // namespace jsv
