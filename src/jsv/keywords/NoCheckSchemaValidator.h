// Keywords that check nothing by themselves: `$schema`, and the two switches that belong to
// `minimum` and `maximum`.
#pragma once

#include "jsv/Collection.h"
#include "jsv/SchemaValidatorBase.h"

namespace jsv {

class NoCheckSchemaValidator : public SchemaValidatorBase {
 public:
  using SchemaValidatorBase::SchemaValidatorBase;

  /// Adds nothing.
  /// @return nothing
  ItemNames check(const JsonPointer& jsonPointer, const JsonPointer& schemaPointer,
                  AbstractAnnotationCollection& collection) const;
};

}  // namespace jsv
