// The keywords `minimum` and `maximum`, each inclusive or exclusive: bounds of a number.
//
//   "minimum": 0.0, "exclusiveMinimum": true
#pragma once

#include "jsv/Annotation.h"
#include "jsv/Collection.h"
#include "jsv/SchemaValidatorBase.h"

namespace jsv {

template <ExtremumType TYPE>
class ExtremumSchemaValidator : public SchemaValidatorBase {
 public:
  using SchemaValidatorBase::SchemaValidatorBase;

  /// Adds ExtremumConstraintViolation if the value is a number beyond the bound; values that are no
  /// numbers pass. Integers are compared as double precision numbers, too.
  /// @return nothing
  /// @throws InvalidSchemaException if the keyword holds no number.
  ItemNames check(const JsonPointer& jsonPointer, const JsonPointer& schemaPointer,
                  AbstractAnnotationCollection& collection) const;
};

extern template class ExtremumSchemaValidator<ExtremumType::Minimum>;
extern template class ExtremumSchemaValidator<ExtremumType::ExclusiveMinimum>;
extern template class ExtremumSchemaValidator<ExtremumType::Maximum>;
extern template class ExtremumSchemaValidator<ExtremumType::ExclusiveMaximum>;

}  // namespace jsv
