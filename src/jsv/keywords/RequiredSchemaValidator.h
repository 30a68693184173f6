// The keyword `required`: the items that an object must hold.
//
//   "required": ["start", "end"]
#pragma once

#include "jsv/Collection.h"
#include "jsv/SchemaValidatorBase.h"

namespace jsv {

class RequiredSchemaValidator : public SchemaValidatorBase {
 public:
  using SchemaValidatorBase::SchemaValidatorBase;

  /// Adds MissingItem at the place of each item that the object lacks, and
  /// ValidAdditionalKeyAnnotation at the object. Values that are no objects pass: whether an object
  /// is needed is for `type` to say.
  /// @return the names of the items that the object holds
  /// @throws InvalidSchemaException if the keyword holds no array, or a name is no string.
  ItemNames check(const JsonPointer& jsonPointer, const JsonPointer& schemaPointer,
                  AbstractAnnotationCollection& collection) const;
};

}  // namespace jsv
