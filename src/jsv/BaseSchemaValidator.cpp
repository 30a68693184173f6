#include "jsv/BaseSchemaValidator.h"

#include "jsv/Factory.h"
#include "jsv/SchemaException.h"

namespace jsv {
namespace {

const nlohmann::json& emptySchema() {
  static const auto SCHEMA = nlohmann::json::object();
  return SCHEMA;
}

bool hasSchemaFor(const std::string& key, const nlohmann::json& definition) {
  const auto properties = definition.find("properties");
  return properties != definition.end() && properties->contains(key);
}

}  // namespace

ItemNames BaseSchemaValidator::check(const JsonPointer& jsonPointer,
                                     const JsonPointer& schemaPointer,
                                     AbstractAnnotationCollection& collection) const {
  const auto& definition = schema(schemaPointer);
  if (definition.is_boolean()) {
    if (!definition.get<bool>()) collection.addAnnotation(jsonPointer, InvalidItem{});
    return {};
  }
  if (!definition.is_object()) {
    throw InvalidSchemaException(schemaPointer,
                                 "A schema must be defined by either an object or a boolean.");
  }
  const auto accounted = checkKeywords(jsonPointer, schemaPointer, collection);
  if (json(jsonPointer).is_object()) checkUnused(jsonPointer, schemaPointer, accounted, collection);
  return {};
}

std::vector<std::string> BaseSchemaValidator::readOptionalItems(const JsonPointer& pointer) const {
  throwIfTypeIsNot<JsonTypeClass::Array>(pointer);
  std::vector<std::string> names;
  for (std::size_t i = 0; i < schema(pointer).size(); ++i) {
    names.push_back(schemaString(pointer / i));
  }
  return names;
}

ItemNames BaseSchemaValidator::checkKeywords(const JsonPointer& jsonPointer,
                                             const JsonPointer& schemaPointer,
                                             AbstractAnnotationCollection& collection) const {
  const SchemaValidatorFactory factory(*this);
  ItemNames accounted;
  for (const auto& item : schema(schemaPointer).items()) {
    const auto& keyword = item.key();
    const auto validator = factory.createSubSchemaValidator(schemaPointer, keyword);
    accounted.merge(jsv::check(validator, jsonPointer, schemaPointer / keyword, collection));
  }
  return accounted;
}

void BaseSchemaValidator::checkUnused(const JsonPointer& jsonPointer,
                                      const JsonPointer& schemaPointer, const ItemNames& accounted,
                                      AbstractAnnotationCollection& collection) const {
  const auto& definition = schema(schemaPointer);
  ItemNames used = accounted;
  if (definition.contains("optional")) {
    for (auto& name : readOptionalItems(schemaPointer / "optional")) used.insert(std::move(name));
  }
  const BaseSchemaValidator unknown(*this, emptySchema());
  for (const auto& item : json(jsonPointer).items()) {
    const auto itemPointer = jsonPointer / item.key();
    if (!used.contains(item.key())) collection.addAnnotation(itemPointer, UnusedItem{});
    if (!hasSchemaFor(item.key(), definition)) {
      unknown.check(itemPointer, JsonPointer(), collection);
    }
  }
}

}  // namespace jsv
