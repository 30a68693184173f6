// The keyword `oneOf` in its two shapes: a switch variable that selects a case, and items of which
// exactly one is given.
#pragma once

#include <cstddef>
#include <optional>
#include <string>

#include "jsv/SchemaValidatorBase.h"
#include "jsv/annotations/Collection.h"
#include "jsv/annotations/SortableWrappedVector.h"

namespace jsv {

// The keyword `oneOf` where the value of one item, the switch variable, selects the case.
//
//   "oneOf": [
//     {"properties": {"kind": {"const": "weir"}}, "required": ["height"]},
//     {"properties": {"kind": {"const": "gate"}}, "required": ["opening"]}
//   ]
//
// Only the case that the document selects is checked, so that its messages are about what the user
// meant. Case names must differ; besides `properties` with the switch variable a case may have
// `required` and another `oneOf`.
class SwitchOneOfSchemaValidator : public SchemaValidatorBase {
 public:
  using SchemaValidatorBase::SchemaValidatorBase;

  /// Checks the switch variable and the case that it selects: MissingItem, IncorrectType or
  /// EnumConstraintViolation at the variable if it selects none; InvalidItem if there are no cases.
  /// Values that are no objects pass.
  /// @return all names of the object
  /// @throws InvalidSchemaException if the keyword holds anything but an array of distinct cases.
  ItemNames check(const JsonPointer& jsonPointer, const JsonPointer& schemaPointer,
                  AbstractAnnotationCollection& collection) const;

  /// The names of all items of `object`.
  static ItemNames keys(const nlohmann::json& object);

  /// @throws InvalidSchemaException unless the schema holds an object of one item at `pointer`.
  void checkIfSingleItemSchemaObject(const JsonPointer& pointer) const;

  /// The item that the first case has under `properties`.
  /// @throws InvalidSchemaException if it has not exactly one.
  const std::string& guessSwitchVariableName(const JsonPointer& schemaPointer) const;

  /// The names of all cases.
  /// @throws InvalidSchemaException if a case has something else than the switch variable under
  /// `properties`, or no string as its `const`.
  SortableWrappedVector sortedCases(const JsonPointer& schemaPointer,
                                    const std::string& name) const;

  /// Whether a name stands twice in the list.
  static bool hasDuplicateCases(const SortableWrappedVector& sorted);

  /// The index of the first case named `value`, in the order of the schema.
  /// @throws InvalidSchemaException as sortedCases does.
  std::optional<std::size_t> matchingCaseNumber(const std::string& value,
                                                const JsonPointer& schemaPointer,
                                                const std::string& name) const;

  /// Checks the object at `jsonPointer` with the keywords of the case at `casePointer`.
  /// @return the names that these keywords account for
  /// @throws InvalidSchemaException if the case is no object, or has other keywords.
  ItemNames validateCaseSchema(const JsonPointer& jsonPointer, const JsonPointer& casePointer,
                               AbstractAnnotationCollection& collection) const;

 private:
  /// The name of one case, with the checks that sortedCases tells.
  const std::string& caseName(const JsonPointer& casePointer, const std::string& name) const;

  /// Checks the object whose switch variable is called `name`, once the cases are known to be
  /// sound. @return the names that the selected case accounts for
  ItemNames checkCases(const JsonPointer& jsonPointer, const JsonPointer& schemaPointer,
                       const std::string& name, const SortableWrappedVector& sorted,
                       AbstractAnnotationCollection& collection) const;
};

// The keyword `oneOf` where the object must hold exactly one of several items.
//
//   "oneOf": [{"required": ["file"]}, {"required": ["values"]}]
//
// The schemas of the items stand in `properties` beside it; the cases name them only.
class NonSwitchOneOfSchemaValidator : public SchemaValidatorBase {
 public:
  using SchemaValidatorBase::SchemaValidatorBase;

  /// Adds MissingExclusiveItemsViolation with all names if the object holds none of the items, and
  /// ExclusiveItemViolation with the first two in sorted order if it holds several. Values that
  /// are no objects pass.
  /// @return the names of the items that the object holds
  /// @throws InvalidSchemaException if the keyword holds no array, or a case without a `required`
  /// of exactly one name.
  ItemNames check(const JsonPointer& jsonPointer, const JsonPointer& schemaPointer,
                  AbstractAnnotationCollection& collection) const;
};

// The keyword `oneOf`: tells by the schema alone which of its two shapes is meant.
//
// If the cases have `properties`, the value of one item selects the case:
// SwitchOneOfSchemaValidator. If no case has them, the object holds one of several items:
// NonSwitchOneOfSchemaValidator.
class OneOfSchemaValidator : public SchemaValidatorBase {
 public:
  using SchemaValidatorBase::SchemaValidatorBase;

  /// Leaves the check to the validator of the shape; an empty list of cases has none and passes.
  /// @return the names that this validator accounts for
  /// @throws InvalidSchemaException if the keyword holds no array, or if some cases have
  /// `properties` and others have not.
  ItemNames check(const JsonPointer& jsonPointer, const JsonPointer& schemaPointer,
                  AbstractAnnotationCollection& collection) const;
};

}  // namespace jsv
