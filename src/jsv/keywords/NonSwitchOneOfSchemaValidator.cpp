#include "jsv/keywords/NonSwitchOneOfSchemaValidator.h"

#include <iterator>

namespace jsv {

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

}  // namespace jsv
