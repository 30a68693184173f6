#include "jsv/ValueKeywords.h"

#include "jsv/SchemaException.h"

namespace jsv {

ItemNames TypeSchemaValidator::check(const JsonPointer& jsonPointer,
                                     const JsonPointer& schemaPointer,
                                     AbstractAnnotationCollection& collection) const {
  const auto typeClass = classFromString(schemaString(schemaPointer));
  if (typeClass == JsonTypeClass::Unknown) {
    throw InvalidSchemaException(schemaPointer, "The provided type is invalid.");
  }
  collection.addAnnotation(jsonPointer, RequiredTypeAnnotation{typeClass});
  if (!isTypeInClass(jsonType(json(jsonPointer)), typeClass)) {
    collection.addAnnotation(jsonPointer, IncorrectType{typeClass});
  }
  return {};
}

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

namespace {

template <ExtremumType TYPE>
bool passes(double value, double limit) {
  if constexpr (TYPE == ExtremumType::Minimum) return value >= limit;
  if constexpr (TYPE == ExtremumType::ExclusiveMinimum) return value > limit;
  if constexpr (TYPE == ExtremumType::Maximum) return value <= limit;
  if constexpr (TYPE == ExtremumType::ExclusiveMaximum) return value < limit;
}

}  // namespace

template <ExtremumType TYPE>
ItemNames ExtremumSchemaValidator<TYPE>::check(const JsonPointer& jsonPointer,
                                               const JsonPointer& schemaPointer,
                                               AbstractAnnotationCollection& collection) const {
  throwIfTypeIsNot<JsonTypeClass::Number>(schemaPointer);
  const nlohmann::json& parameter = schema(schemaPointer);
  const nlohmann::json& value = json(jsonPointer);
  const auto limit = parameter.get<double>();
  if (value.is_number() && !passes<TYPE>(value.get<double>(), limit)) {
    collection.addAnnotation(jsonPointer, ExtremumConstraintViolation<TYPE>{limit});
  }
  return {};
}

template class ExtremumSchemaValidator<ExtremumType::Minimum>;
template class ExtremumSchemaValidator<ExtremumType::ExclusiveMinimum>;
template class ExtremumSchemaValidator<ExtremumType::Maximum>;
template class ExtremumSchemaValidator<ExtremumType::ExclusiveMaximum>;

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
