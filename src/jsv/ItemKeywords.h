// The keywords that look at the items of objects and arrays: properties, required, optional, items.
#pragma once

#include "jsv/SchemaValidatorBase.h"
#include "jsv/annotations/Collection.h"

namespace jsv {

// The keyword `properties`: the schemas of the items of an object.
//
//   "properties": {"start": {"type": "number"}, "end": {"type": "number"}}
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

// The keyword `required`: the items that an object must hold.
//
//   "required": ["start", "end"]
class RequiredSchemaValidator : public SchemaValidatorBase {
 public:
  using SchemaValidatorBase::SchemaValidatorBase;

  /// Adds MissingItem at the place of each item that the object lacks, and
  /// ValidAdditionalKeyAnnotation at the object. Values that are no objects pass: whether an object
  /// is needed is for `type` to say.
  /// @return the names of the items that the object holds
  /// @throws InvalidSchemaException if the keyword holds no array, or a name is no string.
  ItemNames check(const JsonPointer& jsonPointer, const JsonPointer& schemaPointer,
                  AbstractAnnotationCollection& collection) const;
};

// The keyword `optional`: the items that an object may hold.
//
//   "optional": ["TIMESTEP"]
class OptionalSchemaValidator : public SchemaValidatorBase {
 public:
  using SchemaValidatorBase::SchemaValidatorBase;

  /// Adds OptionalItemAnnotation at the place of each item, and ValidAdditionalKeyAnnotation at the
  /// object for those that it lacks. Values that are no objects pass.
  /// @return nothing: BaseSchemaValidator reads the names by readOptionalItems
  /// @throws InvalidSchemaException if the keyword holds anything but an array of strings.
  ItemNames check(const JsonPointer& jsonPointer, const JsonPointer& schemaPointer,
                  AbstractAnnotationCollection& collection) const;
};

// The keyword `items`: the schema of all elements of an array.
//
//   "items": {"type": "string"}
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
