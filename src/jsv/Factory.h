// Validators as values: one type that holds any of them, and the factory that makes the one for a
// keyword.
//
//   const SchemaValidatorFactory factory(document, schema);
//   const auto validator = factory.createSubSchemaValidator(schemaPointer, "minimum");
//   check(validator, jsonPointer, schemaPointer / "minimum", collection);
//
// A new keyword is a validator beside its kind, a row in the variant and a row in the table of
// Factory.cpp.
#pragma once

#include <absl/types/variant.h>

#include <string>

#include "jsv/BaseSchemaValidator.h"
#include "jsv/ItemKeywords.h"
#include "jsv/NoteKeywords.h"
#include "jsv/OneOfKeyword.h"
#include "jsv/SchemaValidatorBase.h"
#include "jsv/ValueKeywords.h"

namespace jsv {

// clang-format off
using SchemaValidator = absl::variant<
    BaseSchemaValidator,                                       //  0
    ConstSchemaValidator,                                      //  1
    EnumSchemaValidator,                                       //  2
    ExtremumSchemaValidator<ExtremumType::Minimum>,            //  3
    ExtremumSchemaValidator<ExtremumType::Maximum>,            //  4
    ExtremumSchemaValidator<ExtremumType::ExclusiveMinimum>,   //  5
    ExtremumSchemaValidator<ExtremumType::ExclusiveMaximum>,   //  6
    ItemsSchemaValidator,                                      //  7
    NoCheckSchemaValidator,                                    //  8
    OneOfSchemaValidator,                                      //  9
    PropertiesSchemaValidator,                                 // 10
    RequiredInSchemaValidator,                                 // 11
    RequiredSchemaValidator,                                   // 12
    TypeSchemaValidator,                                       // 13
    OptionalSchemaValidator,                                   // 14
    FormatSchemaValidator,                                     // 15
    DescriptionSchemaValidator,                                // 16
    DefaultValueSchemaValidator>;                              // 17
// clang-format on

/// Calls `check` of whatever `validator` holds.
/// @param jsonPointer the value of the document
/// @param schemaPointer the value of the keyword in the schema
/// @return the names of items that the validator accounts for
/// @throws SchemaValidationException if the schema is faulty.
ItemNames check(const SchemaValidator& validator, const JsonPointer& jsonPointer,
                const JsonPointer& schemaPointer, AbstractAnnotationCollection& collection);

class SchemaValidatorFactory : private SchemaValidatorBase {
 public:
  using SchemaValidatorBase::SchemaValidatorBase;

  /// Makes validators for the documents of `validator`.
  explicit SchemaValidatorFactory(const SchemaValidatorBase& validator);

  BaseSchemaValidator createBaseSchemaValidator() const;

  /// The validator of `keyword`, which stands in the schema object at `pointer`.
  /// @throws InvalidSchemaException if the dialect does not know the keyword.
  SchemaValidator createSubSchemaValidator(const JsonPointer& pointer,
                                           const std::string& keyword) const;

  /// The boolean in the schema at `pointer`, false if there is no such path.
  /// @throws InvalidSchemaException if the value is no boolean.
  bool readBoolIfPresent(const JsonPointer& pointer) const;

 private:
  template <class Validator>
  SchemaValidator make(const JsonPointer& pointer) const;

  template <ExtremumType INCLUSIVE, ExtremumType EXCLUSIVE>
  SchemaValidator makeExtremum(const JsonPointer& exclusivePointer) const;

  SchemaValidator makeMinimum(const JsonPointer& pointer) const;
  SchemaValidator makeMaximum(const JsonPointer& pointer) const;
};

}  // namespace jsv
