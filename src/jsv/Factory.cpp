#include "jsv/Factory.h"

#include <array>
#include <string_view>

#include "jsv/SchemaException.h"

namespace jsv {

ItemNames check(const SchemaValidator& validator, const JsonPointer& jsonPointer,
                const JsonPointer& schemaPointer, AbstractAnnotationCollection& collection) {
  return absl::visit(
      [&](const auto& held) { return held.check(jsonPointer, schemaPointer, collection); },
      validator);
}

SchemaValidatorFactory::SchemaValidatorFactory(const SchemaValidatorBase& validator)
    : SchemaValidatorBase(validator) {}

BaseSchemaValidator SchemaValidatorFactory::createBaseSchemaValidator() const {
  return {*this, wholeSchema()};
}

SchemaValidator SchemaValidatorFactory::createSubSchemaValidator(const JsonPointer& pointer,
                                                                 const std::string& keyword) const {
  using Factory = SchemaValidatorFactory;
  struct Row {
    std::string_view keyword;
    SchemaValidator (Factory::*maker)(const JsonPointer&) const;
  };
  // clang-format off
  static constexpr auto ROWS = std::to_array<Row>({
      {"type",             &Factory::make<TypeSchemaValidator>},
      {"const",            &Factory::make<ConstSchemaValidator>},
      {"enum",             &Factory::make<EnumSchemaValidator>},
      {"minimum",          &Factory::makeMinimum},
      {"exclusiveMinimum", &Factory::make<NoCheckSchemaValidator>},
      {"maximum",          &Factory::makeMaximum},
      {"exclusiveMaximum", &Factory::make<NoCheckSchemaValidator>},
      {"required",         &Factory::make<RequiredSchemaValidator>},
      {"properties",       &Factory::make<PropertiesSchemaValidator>},
      {"items",            &Factory::make<ItemsSchemaValidator>},
      {"requiredIn",       &Factory::make<RequiredInSchemaValidator>},
      {"oneOf",            &Factory::make<OneOfSchemaValidator>},
      {"$schema",          &Factory::make<NoCheckSchemaValidator>},
      {"default",          &Factory::make<DefaultValueSchemaValidator>},
      {"format",           &Factory::make<FormatSchemaValidator>},
      {"optional",         &Factory::make<OptionalSchemaValidator>},
      {"description",      &Factory::make<DescriptionSchemaValidator>},
  });
  // clang-format on
  for (const auto& row : ROWS) {
    if (row.keyword == keyword) return (this->*row.maker)(pointer);
  }
  throw InvalidSchemaException(pointer / keyword,
                               "The keyword '" + keyword + "' is not supported.");
}

bool SchemaValidatorFactory::readBoolIfPresent(const JsonPointer& pointer) const {
  if (!validSchemaPath(pointer)) return false;
  const auto& value = schema(pointer);
  if (!value.is_boolean()) {
    throw InvalidSchemaException(pointer, "This keyword requires a boolean parameter.");
  }
  return value.get<bool>();
}

template <class Validator>
SchemaValidator SchemaValidatorFactory::make(const JsonPointer& /*pointer*/) const {
  return Validator(*this, wholeSchema());
}

template <ExtremumType INCLUSIVE, ExtremumType EXCLUSIVE>
SchemaValidator SchemaValidatorFactory::makeExtremum(const JsonPointer& exclusivePointer) const {
  if (readBoolIfPresent(exclusivePointer)) {
    return ExtremumSchemaValidator<EXCLUSIVE>(*this, wholeSchema());
  }
  return ExtremumSchemaValidator<INCLUSIVE>(*this, wholeSchema());
}

SchemaValidator SchemaValidatorFactory::makeMinimum(const JsonPointer& pointer) const {
  return makeExtremum<ExtremumType::Minimum, ExtremumType::ExclusiveMinimum>(pointer /
                                                                             "exclusiveMinimum");
}

SchemaValidator SchemaValidatorFactory::makeMaximum(const JsonPointer& pointer) const {
  return makeExtremum<ExtremumType::Maximum, ExtremumType::ExclusiveMaximum>(pointer /
                                                                             "exclusiveMaximum");
}

}  // namespace jsv
