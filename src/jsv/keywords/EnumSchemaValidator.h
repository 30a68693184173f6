// The keyword `enum`: the strings that a value may be.
//
//   "enum": ["water_depth", "water_surface"]
#pragma once

#include "jsv/Collection.h"
#include "jsv/SchemaValidatorBase.h"

namespace jsv {

class EnumSchemaValidator : public SchemaValidatorBase {
 public:
  using SchemaValidatorBase::SchemaValidatorBase;

  /// Adds EnumRequiredAnnotation, and EnumConstraintViolation unless the value is one of the
  /// strings. Both carry the strings in sorted order.
  /// @return nothing
  /// @throws InvalidSchemaException if the keyword holds anything but an array of strings.
  ItemNames check(const JsonPointer& jsonPointer, const JsonPointer& schemaPointer,
                  AbstractAnnotationCollection& collection) const;
};

}  // namespace jsv
