// The keyword `oneOf`: tells by the schema alone which of its two shapes is meant.
//
// If the cases have `properties`, the value of one item selects the case:
// SwitchOneOfSchemaValidator. If no case has them, the object holds one of several items:
// NonSwitchOneOfSchemaValidator.
#pragma once

#include "jsv/Collection.h"
#include "jsv/SchemaValidatorBase.h"

namespace jsv {

class OneOfSchemaValidator : public SchemaValidatorBase {
 public:
  using SchemaValidatorBase::SchemaValidatorBase;

  /// Leaves the check to the validator of the shape; an empty list of cases has none and passes.
  /// @return the names that this validator accounts for
  /// @throws InvalidSchemaException if the keyword holds no array, or if some cases have
  /// `properties` and others have not.
  ItemNames check(const JsonPointer& jsonPointer, const JsonPointer& schemaPointer,
                  AbstractAnnotationCollection& collection) const;
};

}  // namespace jsv
