// Short ways to run a validator in a test.
#pragma once

#include <nlohmann/json.hpp>
#include <sstream>
#include <string>

#include "jsv/SchemaException.h"
#include "jsv/SchemaValidatorBase.h"
#include "jsv/StreamValidator.h"
#include "jsv/annotations/Collection.h"

namespace jsv::test {

struct Report {
  int verdict;
  std::string text;
};

/// Validates one text against another, as a user would.
inline Report validate(const std::string& document, const std::string& schema) {
  std::istringstream documentStream(document);
  std::istringstream schemaStream(schema);
  std::ostringstream output;
  const int verdict = StreamValidator(&output).validate(documentStream, schemaStream);
  return {verdict, output.str()};
}

/// What a schema fault has to say behind the line that introduces it.
inline std::string schemaFault(const std::string& text) {
  return "An error occurred while validating the JSON file using the provided schema:\n" + text +
         "\n";
}

struct Checked {
  AnnotationCollection annotations;
  ItemNames names;
};

/// Lets the validator of one keyword, whose value in the schema is `parameter`, check the item
/// "value" of a document.
template <class Validator>
Checked check(const nlohmann::json& value, const nlohmann::json& parameter) {
  const nlohmann::json document = {{"value", value}};
  const nlohmann::json schema = {{"keyword", parameter}};
  Checked checked;
  checked.names = Validator(document, schema)
                      .check(JsonPointer("/value"), JsonPointer("/keyword"), checked.annotations);
  return checked;
}

/// The fault that the validator of one keyword finds in the schema; empty if there is none.
template <class Validator>
std::string faultOf(const nlohmann::json& value, const nlohmann::json& parameter) {
  try {
    check<Validator>(value, parameter);
    return "";
  } catch (const SchemaValidationException& fault) {
    return fault.what();
  }
}

/// The place of the document that `check` looks at, and places below.
inline LocatedAnnotation at(const std::string& pointer, const Annotation& annotation) {
  return {JsonPointer(pointer), annotation};
}

}  // namespace jsv::test
