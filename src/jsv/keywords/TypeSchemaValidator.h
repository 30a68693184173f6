// The keyword `type`: of which class of types a value must be.
//
//   "type": "number"
#pragma once

#include "jsv/Collection.h"
#include "jsv/SchemaValidatorBase.h"

namespace jsv {

class TypeSchemaValidator : public SchemaValidatorBase {
 public:
  using SchemaValidatorBase::SchemaValidatorBase;

  /// Adds RequiredTypeAnnotation, and IncorrectType if the value is outside the class.
  /// @return nothing
  /// @throws InvalidSchemaException if the keyword holds no string, or a word that is no class.
  ItemNames check(const JsonPointer& jsonPointer, const JsonPointer& schemaPointer,
                  AbstractAnnotationCollection& collection) const;
};

}  // namespace jsv
