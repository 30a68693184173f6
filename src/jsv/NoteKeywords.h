// The keywords that check nothing: they note what a tool or a reader may want to know.
#pragma once

#include "jsv/SchemaValidatorBase.h"
#include "jsv/annotations/Collection.h"

namespace jsv {

// The keyword `description`: what a value means, in words for users.
//
//   "description": "The time (in seconds) at which the simulation starts."
class DescriptionSchemaValidator : public SchemaValidatorBase {
 public:
  using SchemaValidatorBase::SchemaValidatorBase;

  /// Adds DescriptionAnnotation.
  /// @return nothing
  /// @throws InvalidSchemaException if the keyword holds no string.
  ItemNames check(const JsonPointer& jsonPointer, const JsonPointer& schemaPointer,
                  AbstractAnnotationCollection& collection) const;
};

// The keyword `default`: the value that a reader takes when the item is left out.
//
//   "default": 0.02
//
// It is information only; the document is not changed.
class DefaultValueSchemaValidator : public SchemaValidatorBase {
 public:
  using SchemaValidatorBase::SchemaValidatorBase;

  /// Adds DefaultValueAnnotation.
  /// @return nothing
  /// @throws InvalidSchemaException if the keyword holds neither a string nor a number.
  ItemNames check(const JsonPointer& jsonPointer, const JsonPointer& schemaPointer,
                  AbstractAnnotationCollection& collection) const;
};

// The keyword `format`: tells that a string is a URI.
//
//   "format": "uri"
class FormatSchemaValidator : public SchemaValidatorBase {
 public:
  using SchemaValidatorBase::SchemaValidatorBase;

  /// Adds StringIsURIAnnotation; the value is not looked at.
  /// @return nothing
  /// @throws InvalidSchemaException if the keyword holds anything but "uri".
  ItemNames check(const JsonPointer& jsonPointer, const JsonPointer& schemaPointer,
                  AbstractAnnotationCollection& collection) const;
};

// Keywords that check nothing by themselves: `$schema`, and the two switches that belong to
// `minimum` and `maximum`.
class NoCheckSchemaValidator : public SchemaValidatorBase {
 public:
  using SchemaValidatorBase::SchemaValidatorBase;

  /// Adds nothing.
  /// @return nothing
  ItemNames check(const JsonPointer& jsonPointer, const JsonPointer& schemaPointer,
                  AbstractAnnotationCollection& collection) const;
};

}  // namespace jsv
