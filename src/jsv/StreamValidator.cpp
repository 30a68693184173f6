#include "jsv/StreamValidator.h"

#include <nlohmann/json.hpp>
#include <stdexcept>
#include <utility>
#include <vector>

#include "jsv/BaseSchemaValidator.h"
#include "jsv/SchemaException.h"
#include "jsv/annotations/AnnotationToMessage.h"
#include "jsv/annotations/Collection.h"

namespace jsv {
namespace {

class CannotValidateException : public std::runtime_error {
 public:
  CannotValidateException(const std::string& name, const std::string& reason)
      : std::runtime_error("Parsing the " + name + " file failed: " + reason) {}
};

bool isNestedTooDeeply(const nlohmann::json& document) {
  std::vector<std::pair<const nlohmann::json*, std::size_t>> open = {{&document, 1}};
  while (!open.empty()) {
    const auto [value, level] = open.back();
    open.pop_back();
    if (!value->is_structured()) continue;
    if (level > MAX_NESTING) return true;
    for (const auto& item : *value) open.emplace_back(&item, level + 1);
  }
  return false;
}

nlohmann::json readJSON(std::istream& stream, const std::string& name) {
  try {
    auto document = nlohmann::json::parse(stream);
    if (isNestedTooDeeply(document)) {
      throw CannotValidateException(name, "nested too deeply, at most " +
                                              std::to_string(MAX_NESTING) + " levels can be read");
    }
    return document;
  } catch (const nlohmann::json::exception& cause) {
    throw CannotValidateException(name, cause.what());
  }
}

}  // namespace

int StreamValidator::validate(std::istream& json, std::istream& schema) const {
  try {
    const auto document = readJSON(json, "JSON data");
    const auto definition = readJSON(schema, "JSON schema");
    // The report needs nothing but issues; information on a large document would fill the memory.
    FilteredAnnotationCollection<IssueFilter> collection;
    BaseSchemaValidator(document, definition).check(JsonPointer(), JsonPointer(), collection);
    outputMessage(DefaultAnnotationCollectionToMessageConverter::toMessage(collection));
    if (numberOf(AnnotationType::Error, collection) > 0) return 2;
    return numberOf(AnnotationType::Warning, collection) > 0 ? 1 : 0;
  } catch (const CannotValidateException& failure) {
    outputMessage(failure.what());
  } catch (const SchemaValidationException& fault) {
    outputMessage("An error occurred while validating the JSON file using the provided schema:");
    outputMessage(fault.what());
  }
  return 2;
}

void StreamValidator::outputMessage(const std::string& text) const {
  if (output_ == nullptr || text.empty()) return;
  *output_ << text << std::endl;
}

}  // namespace jsv
