// What all validators have in common: a document, a schema, and safe access to both.
//
// Validators refer to the two documents and never copy parts of them, so that they are small
// values. Both documents must outlive them, and must not change meanwhile.
#pragma once

#include <memory>
#include <nlohmann/json.hpp>
#include <set>
#include <string>

#include "jsv/ReferencedNames.h"
#include "jsv/annotations/JsonType.h"
#include "jsv/annotations/Pointer.h"

namespace jsv {

/// The names of items of an object that a validator has accounted for: somebody will use them.
using ItemNames = std::set<std::string>;

class SchemaValidatorBase {
 public:
  /// Starts a validation of `json`, the whole document, against `schema`.
  SchemaValidatorBase(const nlohmann::json& json, const nlohmann::json& schema);

  /// Goes on with the document of `other` under another schema.
  SchemaValidatorBase(const SchemaValidatorBase& other, const nlohmann::json& schema);

  /// The value of the document at `pointer`.
  /// @throws nlohmann::json::exception if there is none; validators walk along values that exist.
  const nlohmann::json& json(const JsonPointer& pointer) const;

  /// The value of the schema at `pointer`.
  /// @throws InvalidSchemaException if there is none.
  const nlohmann::json& schema(const JsonPointer& pointer) const;

  /// Whether schema(pointer) would succeed.
  bool validSchemaPath(const JsonPointer& pointer) const;

  /// @throws InvalidSchemaException if the schema has no value at `pointer`
  /// @throws InvalidTypeSchemaException if the value is not of the class.
  template <JsonTypeClass TYPE_CLASS>
  void throwIfTypeIsNot(const JsonPointer& pointer) const;

  /// @throws InvalidSchemaException unless the value of the schema has exactly one element.
  void throwIfSizeNotOne(const JsonPointer& pointer) const;

 protected:
  /// The string in the schema at `pointer`.
  /// @throws InvalidSchemaException if there is none
  /// @throws InvalidTypeSchemaException if the value is no string.
  const std::string& schemaString(const JsonPointer& pointer) const;

  const nlohmann::json& wholeSchema() const { return *schema_; }

  /// The names that the array of the document at `arrayPointer` offers, sorted.
  const SortableWrappedVector& referencedNames(const JsonPointer& arrayPointer,
                                               const std::string& itemProperty) const;

 private:
  const nlohmann::json* json_;
  const nlohmann::json* schema_;
  std::shared_ptr<ReferencedNames> referencedNames_;
};

}  // namespace jsv
