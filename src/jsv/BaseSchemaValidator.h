// The walk through a document: a schema is applied to a value, keyword by keyword.
//
//   AnnotationCollection collection;
//   BaseSchemaValidator(document, schema).check(JsonPointer(), JsonPointer(), collection);
//
// An item of an object counts as used if `required`, `optional` or `oneOf` names it. All other
// items get a warning, also those that `properties` has a schema for.
//
// The walk recurses once per level of the document and of the schema: whoever takes documents
// from outside bounds their nesting first, as StreamValidator does.
#pragma once

#include <string>
#include <vector>

#include "jsv/SchemaValidatorBase.h"
#include "jsv/annotations/Collection.h"

namespace jsv {

class BaseSchemaValidator : public SchemaValidatorBase {
 public:
  using SchemaValidatorBase::SchemaValidatorBase;

  /// Applies the schema at `schemaPointer` to the value at `jsonPointer`. The schemas `true` and
  /// `false` let anything and nothing pass.
  /// @return nothing
  /// @throws SchemaValidationException if the schema is faulty; its pointer is relative to the
  /// innermost schema below `properties` or `items`.
  ItemNames check(const JsonPointer& jsonPointer, const JsonPointer& schemaPointer,
                  AbstractAnnotationCollection& collection) const;

  /// The names in the array of the keyword `optional` at `pointer`.
  /// @throws InvalidSchemaException if it is anything but an array of strings.
  std::vector<std::string> readOptionalItems(const JsonPointer& pointer) const;

 private:
  ItemNames checkKeywords(const JsonPointer& jsonPointer, const JsonPointer& schemaPointer,
                          AbstractAnnotationCollection& collection) const;
  void checkUnused(const JsonPointer& jsonPointer, const JsonPointer& schemaPointer,
                   const ItemNames& accounted, AbstractAnnotationCollection& collection) const;
};

}  // namespace jsv
