// The names that a document offers to references into its arrays.
//
// A thousand values that refer to one array ask for the same names a thousand times, so each
// array is read once per validation.
#pragma once

#include <map>
#include <nlohmann/json.hpp>
#include <string>
#include <utility>

#include "jsv/annotations/Pointer.h"
#include "jsv/annotations/SortableWrappedVector.h"

namespace jsv {

class ReferencedNames {
 public:
  /// The values of `itemProperty` in the items of the array at `arrayPointer`, sorted.
  /// An item without the property offers the empty string; what is no object, or has something
  /// else than a string there, offers nothing, and neither does a pointer that leads nowhere.
  /// @param document the same document in all calls
  const SortableWrappedVector& of(const nlohmann::json& document, const JsonPointer& arrayPointer,
                                  const std::string& itemProperty);

 private:
  std::map<std::pair<JsonPointer, std::string>, SortableWrappedVector> names_;
};

}  // namespace jsv
