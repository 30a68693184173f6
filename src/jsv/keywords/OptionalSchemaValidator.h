// The keyword `optional`: the items that an object may hold.
//
//   "optional": ["TIMESTEP"]
#pragma once

#include "jsv/Collection.h"
#include "jsv/SchemaValidatorBase.h"

namespace jsv {

class OptionalSchemaValidator : public SchemaValidatorBase {
 public:
  using SchemaValidatorBase::SchemaValidatorBase;

  /// Adds OptionalItemAnnotation at the place of each item, and ValidAdditionalKeyAnnotation at the
  /// object for those that it lacks. Values that are no objects pass.
  /// @return nothing: BaseSchemaValidator reads the names by readOptionalItems
  /// @throws InvalidSchemaException if the keyword holds anything but an array of strings.
  ItemNames check(const JsonPointer& jsonPointer, const JsonPointer& schemaPointer,
                  AbstractAnnotationCollection& collection) const;
};

}  // namespace jsv
