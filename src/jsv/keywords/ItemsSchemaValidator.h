// The keyword `items`: the schema of all elements of an array.
//
//   "items": {"type": "string"}
#pragma once

#include "jsv/Collection.h"
#include "jsv/SchemaValidatorBase.h"

namespace jsv {

class ItemsSchemaValidator : public SchemaValidatorBase {
 public:
  using SchemaValidatorBase::SchemaValidatorBase;

  /// Walks each element with the schema; a value that is no array passes, whatever the keyword
  /// holds.
  /// @return nothing
  /// @throws InvalidSchemaException if there are elements and the schema is faulty.
  ItemNames check(const JsonPointer& jsonPointer, const JsonPointer& schemaPointer,
                  AbstractAnnotationCollection& collection) const;
};

}  // namespace jsv
