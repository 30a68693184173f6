// The keyword `const`: the one string that a value may be.
//
//   "const": "discharge"
#pragma once

#include "jsv/Collection.h"
#include "jsv/SchemaValidatorBase.h"

namespace jsv {

class ConstSchemaValidator : public SchemaValidatorBase {
 public:
  using SchemaValidatorBase::SchemaValidatorBase;

  /// Adds ConstConstraintViolation unless the value is the string; a number never is.
  /// @return nothing
  /// @throws InvalidSchemaException if the keyword holds no string.
  ItemNames check(const JsonPointer& jsonPointer, const JsonPointer& schemaPointer,
                  AbstractAnnotationCollection& collection) const;
};

}  // namespace jsv
