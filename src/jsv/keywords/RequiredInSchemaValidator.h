// The keyword `requiredIn`: a reference to an item of an array elsewhere in the document.
//
//   "requiredIn": {"$array_ref": "/GEOMETRY/regions", "itemProperty": "name"}
//
// The value must be the `itemProperty` of one of the items of the array at `$array_ref`.
#pragma once

#include "jsv/Collection.h"
#include "jsv/SchemaValidatorBase.h"

namespace jsv {

class RequiredInSchemaValidator : public SchemaValidatorBase {
 public:
  using SchemaValidatorBase::SchemaValidatorBase;

  /// Adds EnumRequiredAnnotation with the names that there are, and RequiredInViolation unless the
  /// value is one of them. An array that is absent offers no names.
  /// @return nothing
  /// @throws InvalidSchemaException if the keyword does not hold the two strings, or `$array_ref`
  /// is no JSON pointer.
  ItemNames check(const JsonPointer& jsonPointer, const JsonPointer& schemaPointer,
                  AbstractAnnotationCollection& collection) const;
};

}  // namespace jsv
