// The keyword `description`: what a value means, in words for users.
//
//   "description": "The time (in seconds) at which the simulation starts."
#pragma once

#include "jsv/Collection.h"
#include "jsv/SchemaValidatorBase.h"

namespace jsv {

class DescriptionSchemaValidator : public SchemaValidatorBase {
 public:
  using SchemaValidatorBase::SchemaValidatorBase;

  /// Adds DescriptionAnnotation.
  /// @return nothing
  /// @throws InvalidSchemaException if the keyword holds no string.
  ItemNames check(const JsonPointer& jsonPointer, const JsonPointer& schemaPointer,
                  AbstractAnnotationCollection& collection) const;
};

}  // namespace jsv
