// The keyword `properties`: the schemas of the items of an object.
//
//   "properties": {"start": {"type": "number"}, "end": {"type": "number"}}
#pragma once

#include "jsv/Collection.h"
#include "jsv/SchemaValidatorBase.h"

namespace jsv {

class PropertiesSchemaValidator : public SchemaValidatorBase {
 public:
  using SchemaValidatorBase::SchemaValidatorBase;

  /// Walks the items that the object holds, each with its schema, and adds
  /// ValidAdditionalKeyAnnotation for the others. Values that are no objects pass.
  /// @return nothing: a schema for an item does not say that somebody uses it
  /// @throws InvalidSchemaException if the keyword holds no object, or a schema is faulty.
  ItemNames check(const JsonPointer& jsonPointer, const JsonPointer& schemaPointer,
                  AbstractAnnotationCollection& collection) const;
};

}  // namespace jsv
