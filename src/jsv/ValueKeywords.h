// The keywords that look at one value: type, const, enum, the extrema, requiredIn.
#pragma once

#include "jsv/SchemaValidatorBase.h"
#include "jsv/annotations/Annotation.h"
#include "jsv/annotations/Collection.h"

namespace jsv {

// The keyword `type`: of which class of types a value must be.
//
//   "type": "number"
class TypeSchemaValidator : public SchemaValidatorBase {
 public:
  using SchemaValidatorBase::SchemaValidatorBase;

  /// Adds RequiredTypeAnnotation, and IncorrectType if the value is outside the class.
  /// @return nothing
  /// @throws InvalidSchemaException if the keyword holds no string, or a word that is no class.
  ItemNames check(const JsonPointer& jsonPointer, const JsonPointer& schemaPointer,
                  AbstractAnnotationCollection& collection) const;
};

// The keyword `const`: the one string that a value may be.
//
//   "const": "discharge"
class ConstSchemaValidator : public SchemaValidatorBase {
 public:
  using SchemaValidatorBase::SchemaValidatorBase;

  /// Adds ConstConstraintViolation unless the value is the string; a number never is.
  /// @return nothing
  /// @throws InvalidSchemaException if the keyword holds no string.
  ItemNames check(const JsonPointer& jsonPointer, const JsonPointer& schemaPointer,
                  AbstractAnnotationCollection& collection) const;
};

// The keyword `enum`: the strings that a value may be.
//
//   "enum": ["water_depth", "water_surface"]
class EnumSchemaValidator : public SchemaValidatorBase {
 public:
  using SchemaValidatorBase::SchemaValidatorBase;

  /// Adds EnumRequiredAnnotation, and EnumConstraintViolation unless the value is one of the
  /// strings. Both carry the strings in sorted order.
  /// @return nothing
  /// @throws InvalidSchemaException if the keyword holds anything but an array of strings.
  ItemNames check(const JsonPointer& jsonPointer, const JsonPointer& schemaPointer,
                  AbstractAnnotationCollection& collection) const;
};

// The keywords `minimum` and `maximum`, each inclusive or exclusive: bounds of a number.
//
//   "minimum": 0.0, "exclusiveMinimum": true
template <ExtremumType TYPE>
class ExtremumSchemaValidator : public SchemaValidatorBase {
 public:
  using SchemaValidatorBase::SchemaValidatorBase;

  /// Adds ExtremumConstraintViolation if the value is a number beyond the bound; values that are no
  /// numbers pass. Integers are compared as double precision numbers, too.
  /// @return nothing
  /// @throws InvalidSchemaException if the keyword holds no number.
  ItemNames check(const JsonPointer& jsonPointer, const JsonPointer& schemaPointer,
                  AbstractAnnotationCollection& collection) const;
};

extern template class ExtremumSchemaValidator<ExtremumType::Minimum>;
extern template class ExtremumSchemaValidator<ExtremumType::ExclusiveMinimum>;
extern template class ExtremumSchemaValidator<ExtremumType::Maximum>;
extern template class ExtremumSchemaValidator<ExtremumType::ExclusiveMaximum>;

// The keyword `requiredIn`: a reference to an item of an array elsewhere in the document.
//
//   "requiredIn": {"$array_ref": "/GEOMETRY/regions", "itemProperty": "name"}
//
// The value must be the `itemProperty` of one of the items of the array at `$array_ref`.
class RequiredInSchemaValidator : public SchemaValidatorBase {
 public:
  using SchemaValidatorBase::SchemaValidatorBase;

  /// Adds EnumRequiredAnnotation with the names that there are, and RequiredInViolation unless the
  /// value is one of them. An array that is absent offers no names.
  /// @return nothing
  /// @throws InvalidSchemaException if the keyword does not hold the two strings, or `$array_ref`
  /// is no JSON pointer.
  ItemNames check(const JsonPointer& jsonPointer, const JsonPointer& schemaPointer,
                  AbstractAnnotationCollection& collection) const;
};

}  // namespace jsv
