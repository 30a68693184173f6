// The keyword `oneOf` where the object must hold exactly one of several items.
//
//   "oneOf": [{"required": ["file"]}, {"required": ["values"]}]
//
// The schemas of the items stand in `properties` beside it; the cases name them only.
#pragma once

#include "jsv/Collection.h"
#include "jsv/SchemaValidatorBase.h"

namespace jsv {

class NonSwitchOneOfSchemaValidator : public SchemaValidatorBase {
 public:
  using SchemaValidatorBase::SchemaValidatorBase;

  /// Adds MissingExclusiveItemsViolation with all names if the object holds none of the items, and
  /// ExclusiveItemViolation with the first two in sorted order if it holds several. Values that
  /// are no objects pass.
  /// @return the names of the items that the object holds
  /// @throws InvalidSchemaException if the keyword holds no array, or a case without a `required`
  /// of exactly one name.
  ItemNames check(const JsonPointer& jsonPointer, const JsonPointer& schemaPointer,
                  AbstractAnnotationCollection& collection) const;
};

}  // namespace jsv
