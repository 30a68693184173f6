#include "jsv/OneOfKeyword.h"

#include <algorithm>
#include <iterator>
#include <utility>
#include <vector>

#include "jsv/Factory.h"
#include "jsv/SchemaException.h"

namespace jsv {

ItemNames SwitchOneOfSchemaValidator::check(const JsonPointer& jsonPointer,
                                            const JsonPointer& schemaPointer,
                                            AbstractAnnotationCollection& collection) const {
  throwIfTypeIsNot<JsonTypeClass::Array>(schemaPointer);
  const auto& object = json(jsonPointer);
  if (!object.is_object()) return {};
  auto accounted = keys(object);
  if (schema(schemaPointer).empty()) {
    collection.addAnnotation(jsonPointer, InvalidItem{});
    return accounted;
  }
  const auto& name = guessSwitchVariableName(schemaPointer);
  collection.addAnnotation(jsonPointer / name, RequiredTypeAnnotation{JsonTypeClass::String});
  const auto sorted = sortedCases(schemaPointer, name);
  if (hasDuplicateCases(sorted)) {
    throw InvalidSchemaException(schemaPointer, "The cases must be distinct.");
  }
  collection.addAnnotation(jsonPointer / name, EnumRequiredAnnotation{sorted});
  accounted.merge(checkCases(jsonPointer, schemaPointer, name, sorted, collection));
  return accounted;
}

ItemNames SwitchOneOfSchemaValidator::checkCases(const JsonPointer& jsonPointer,
                                                 const JsonPointer& schemaPointer,
                                                 const std::string& name,
                                                 const SortableWrappedVector& sorted,
                                                 AbstractAnnotationCollection& collection) const {
  const auto& object = json(jsonPointer);
  const auto variable = object.find(name);
  if (variable == object.end()) {
    collection.addAnnotation(jsonPointer / name, MissingItem{});
    collection.addAnnotation(jsonPointer, ValidAdditionalKeyAnnotation{name});
    return {};
  }
  if (!variable->is_string()) {
    collection.addAnnotation(jsonPointer / name, IncorrectType{JsonTypeClass::String});
    return {};
  }
  const auto number = matchingCaseNumber(variable->get<std::string>(), schemaPointer, name);
  if (!number) {
    collection.addAnnotation(jsonPointer / name, EnumConstraintViolation{sorted});
    return {};
  }
  return validateCaseSchema(jsonPointer, schemaPointer / *number, collection);
}

ItemNames SwitchOneOfSchemaValidator::keys(const nlohmann::json& object) {
  ItemNames names;
  for (const auto& item : object.items()) names.insert(item.key());
  return names;
}

void SwitchOneOfSchemaValidator::checkIfSingleItemSchemaObject(const JsonPointer& pointer) const {
  throwIfTypeIsNot<JsonTypeClass::Object>(pointer);
  throwIfSizeNotOne(pointer);
}

const std::string& SwitchOneOfSchemaValidator::guessSwitchVariableName(
    const JsonPointer& schemaPointer) const {
  const auto properties = schemaPointer / 0 / "properties";
  checkIfSingleItemSchemaObject(properties);
  return schema(properties).begin().key();
}

const std::string& SwitchOneOfSchemaValidator::caseName(const JsonPointer& casePointer,
                                                        const std::string& name) const {
  const auto properties = casePointer / "properties";
  checkIfSingleItemSchemaObject(properties);
  return schemaString(properties / name / "const");
}

SortableWrappedVector SwitchOneOfSchemaValidator::sortedCases(const JsonPointer& schemaPointer,
                                                              const std::string& name) const {
  std::vector<std::string> names;
  for (std::size_t i = 0; i < schema(schemaPointer).size(); ++i) {
    names.push_back(caseName(schemaPointer / i, name));
  }
  return makeSortable(std::move(names));
}

bool SwitchOneOfSchemaValidator::hasDuplicateCases(const SortableWrappedVector& sorted) {
  return std::adjacent_find(sorted.begin(), sorted.end()) != sorted.end();
}

std::optional<std::size_t> SwitchOneOfSchemaValidator::matchingCaseNumber(
    const std::string& value, const JsonPointer& schemaPointer, const std::string& name) const {
  for (std::size_t i = 0; i < schema(schemaPointer).size(); ++i) {
    if (caseName(schemaPointer / i, name) == value) return i;
  }
  return std::nullopt;
}

ItemNames SwitchOneOfSchemaValidator::validateCaseSchema(
    const JsonPointer& jsonPointer, const JsonPointer& casePointer,
    AbstractAnnotationCollection& collection) const {
  throwIfTypeIsNot<JsonTypeClass::Object>(casePointer);
  const SchemaValidatorFactory factory(*this);
  ItemNames accounted;
  for (const auto& item : schema(casePointer).items()) {
    const auto& keyword = item.key();
    if (keyword != "properties" && keyword != "required" && keyword != "oneOf") {
      throw InvalidSchemaException(
          casePointer / keyword,
          "Only the keywords 'properties', 'required' and 'oneOf' are supported here.");
    }
    const auto validator = factory.createSubSchemaValidator(casePointer, keyword);
    accounted.merge(jsv::check(validator, jsonPointer, casePointer / keyword, collection));
  }
  return accounted;
}

ItemNames NonSwitchOneOfSchemaValidator::check(const JsonPointer& jsonPointer,
                                               const JsonPointer& schemaPointer,
                                               AbstractAnnotationCollection& collection) const {
  throwIfTypeIsNot<JsonTypeClass::Array>(schemaPointer);
  const auto& object = json(jsonPointer);
  if (!object.is_object()) return {};
  std::vector<std::string> names;
  for (std::size_t i = 0; i < schema(schemaPointer).size(); ++i) {
    const auto required = schemaPointer / i / "required";
    throwIfTypeIsNot<JsonTypeClass::Array>(required);
    throwIfSizeNotOne(required);
    names.push_back(schemaString(required / 0));
  }
  ItemNames present;
  for (const auto& name : names) {
    if (object.contains(name)) present.insert(name);
  }
  if (present.empty()) {
    collection.addAnnotation(jsonPointer, MissingExclusiveItemsViolation{makeSortable(names)});
  } else if (present.size() > 1) {
    collection.addAnnotation(
        jsonPointer, ExclusiveItemViolation{{*present.begin(), *std::next(present.begin())}});
  }
  return present;
}

ItemNames OneOfSchemaValidator::check(const JsonPointer& jsonPointer,
                                      const JsonPointer& schemaPointer,
                                      AbstractAnnotationCollection& collection) const {
  throwIfTypeIsNot<JsonTypeClass::Array>(schemaPointer);
  const auto& cases = schema(schemaPointer);
  std::size_t withProperties = 0;
  for (std::size_t i = 0; i < cases.size(); ++i) {
    if (validSchemaPath(schemaPointer / i / "properties")) ++withProperties;
  }
  if (withProperties != 0 && withProperties != cases.size()) {
    throw InvalidSchemaException(
        schemaPointer,
        "The 'properties' keyword must be present in either all or none of the subschemas.");
  }
  if (cases.empty()) return {};
  if (withProperties == 0) {
    return NonSwitchOneOfSchemaValidator(*this, wholeSchema())
        .check(jsonPointer, schemaPointer, collection);
  }
  return SwitchOneOfSchemaValidator(*this, wholeSchema())
      .check(jsonPointer, schemaPointer, collection);
}

}  // namespace jsv
