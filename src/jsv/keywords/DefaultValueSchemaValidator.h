// The keyword `default`: the value that a reader takes when the item is left out.
//
//   "default": 0.02
//
// It is information only; the document is not changed.
#pragma once

#include "jsv/Collection.h"
#include "jsv/SchemaValidatorBase.h"

namespace jsv {

class DefaultValueSchemaValidator : public SchemaValidatorBase {
 public:
  using SchemaValidatorBase::SchemaValidatorBase;

  /// Adds DefaultValueAnnotation.
  /// @return nothing
  /// @throws InvalidSchemaException if the keyword holds neither a string nor a number.
  ItemNames check(const JsonPointer& jsonPointer, const JsonPointer& schemaPointer,
                  AbstractAnnotationCollection& collection) const;
};

}  // namespace jsv
