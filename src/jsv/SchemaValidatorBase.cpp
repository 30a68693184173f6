#include "jsv/SchemaValidatorBase.h"

#include "jsv/SchemaException.h"

namespace jsv {

SchemaValidatorBase::SchemaValidatorBase(const nlohmann::json& json, const nlohmann::json& schema)
    : json_(&json), schema_(&schema), referencedNames_(std::make_shared<ReferencedNames>()) {}

SchemaValidatorBase::SchemaValidatorBase(const SchemaValidatorBase& other,
                                         const nlohmann::json& schema)
    : json_(other.json_), schema_(&schema), referencedNames_(other.referencedNames_) {}

const nlohmann::json& SchemaValidatorBase::json(const JsonPointer& pointer) const {
  return json_->at(pointer);
}

const nlohmann::json& SchemaValidatorBase::schema(const JsonPointer& pointer) const {
  try {
    return schema_->at(pointer);
  } catch (const nlohmann::json::out_of_range&) {
    throw InvalidSchemaException(pointer, "This item is required.");
  } catch (const nlohmann::json::exception& cause) {
    throw InvalidSchemaException(pointer, cause);
  }
}

bool SchemaValidatorBase::validSchemaPath(const JsonPointer& pointer) const {
  try {
    return schema_->contains(pointer);
  } catch (const nlohmann::json::exception&) {
    return false;
  }
}

template <JsonTypeClass TYPE_CLASS>
void SchemaValidatorBase::throwIfTypeIsNot(const JsonPointer& pointer) const {
  if (!isTypeInClass(jsonType(schema(pointer)), TYPE_CLASS)) {
    throw InvalidTypeSchemaException(pointer, TYPE_CLASS);
  }
}

template void SchemaValidatorBase::throwIfTypeIsNot<JsonTypeClass::Integer>(
    const JsonPointer&) const;
template void SchemaValidatorBase::throwIfTypeIsNot<JsonTypeClass::Number>(
    const JsonPointer&) const;
template void SchemaValidatorBase::throwIfTypeIsNot<JsonTypeClass::String>(
    const JsonPointer&) const;
template void SchemaValidatorBase::throwIfTypeIsNot<JsonTypeClass::Object>(
    const JsonPointer&) const;
template void SchemaValidatorBase::throwIfTypeIsNot<JsonTypeClass::Array>(const JsonPointer&) const;

void SchemaValidatorBase::throwIfSizeNotOne(const JsonPointer& pointer) const {
  if (schema(pointer).size() != 1) {
    throw InvalidSchemaException(pointer, "Only single items are supported.");
  }
}

const std::string& SchemaValidatorBase::schemaString(const JsonPointer& pointer) const {
  throwIfTypeIsNot<JsonTypeClass::String>(pointer);
  return schema(pointer).get_ref<const std::string&>();
}

const SortableWrappedVector& SchemaValidatorBase::referencedNames(
    const JsonPointer& arrayPointer, const std::string& itemProperty) const {
  return referencedNames_->of(*json_, arrayPointer, itemProperty);
}

}  // namespace jsv
