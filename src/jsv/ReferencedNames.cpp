#include "jsv/ReferencedNames.h"

#include <vector>

namespace jsv {
namespace {

const nlohmann::json& valueOrNull(const nlohmann::json& document, const JsonPointer& pointer) {
  static const nlohmann::json NOTHING;
  try {
    return document.at(pointer);
  } catch (const nlohmann::json::exception&) {
    return NOTHING;
  }
}

std::vector<std::string> namesIn(const nlohmann::json& items, const std::string& itemProperty) {
  std::vector<std::string> names;
  for (const auto& item : items) {
    if (!item.is_object()) continue;
    const auto name = item.find(itemProperty);
    if (name == item.end()) {
      names.emplace_back();
    } else if (name->is_string()) {
      names.push_back(name->get<std::string>());
    }
  }
  return names;
}

}  // namespace

const SortableWrappedVector& ReferencedNames::of(const nlohmann::json& document,
                                                 const JsonPointer& arrayPointer,
                                                 const std::string& itemProperty) {
  const auto key = std::make_pair(arrayPointer, itemProperty);
  const auto known = names_.find(key);
  if (known != names_.end()) return known->second;
  auto names = makeSortable(namesIn(valueOrNull(document, arrayPointer), itemProperty));
  return names_.emplace(key, std::move(names)).first->second;
}

}  // namespace jsv
