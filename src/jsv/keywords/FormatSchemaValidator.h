// The keyword `format`: tells that a string is a URI.
//
//   "format": "uri"
#pragma once

#include "jsv/Collection.h"
#include "jsv/SchemaValidatorBase.h"

namespace jsv {

class FormatSchemaValidator : public SchemaValidatorBase {
 public:
  using SchemaValidatorBase::SchemaValidatorBase;

  /// Adds StringIsURIAnnotation; the value is not looked at.
  /// @return nothing
  /// @throws InvalidSchemaException if the keyword holds anything but "uri".
  ItemNames check(const JsonPointer& jsonPointer, const JsonPointer& schemaPointer,
                  AbstractAnnotationCollection& collection) const;
};

}  // namespace jsv
