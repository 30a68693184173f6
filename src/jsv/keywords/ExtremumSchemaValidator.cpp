#include "jsv/keywords/ExtremumSchemaValidator.h"

namespace jsv {
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

}  // namespace jsv
