// One group of a study document, which knows its place, so that messages can name it.
//
//   const StudyGroup rectangle = geometry.group("RECTANGLE");
//   rectangle.take("origin", mesh.origin);        // left as it is if the group lacks the key
//   if (mesh.length > 1e6) rectangle.refuseKey("length", "must be ...");
//
// The document has passed its schema. Checked here is what the schema has no words for: the length
// of lists, true and false, and what readers of a group find out.
#pragma once

#include <array>
#include <cstddef>
#include <filesystem>
#include <nlohmann/json.hpp>
#include <optional>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "common/console.h"
#include "jsv/annotations/Pointer.h"

namespace setup {

/// Prints the faults of a study with the name of its file in front.
/// @throws BaseException always.
template <class... Parts>
[[noreturn]] void refuseStudy(const std::string& file, const Parts&... parts) {
  common::console::fail("study file <", file, ">: ", parts...);
}

/// A list for a message: "a, b, c".
template <class Items, class Name>
std::string listOf(const Items& items, const Name& nameOf) {
  std::string list;
  for (const auto& item : items) list += (list.empty() ? "" : ", ") + nameOf(item);
  return list;
}

class StudyGroup {
 public:
  /// The outermost group.
  /// @param newFile the document's name, for messages and to find other files from
  StudyGroup(const std::string& newFile, const nlohmann::json& document)
      : StudyGroup(newFile, document, jsv::JsonPointer()) {}

  /// A JSON pointer, "/SETUP/DOMAIN" for instance.
  std::string path() const { return jsv::toText(place); }

  bool has(const char* key) const { return values->contains(key); }

  /// In the order of the alphabet.
  std::vector<std::string> keys() const {
    std::vector<std::string> names;
    for (const auto& entry : values->items()) names.push_back(entry.key());
    return names;
  }

  const nlohmann::json& operator[](const char* key) const { return values->at(key); }

  /// The file that the key names, as it can be opened from where the program runs: relative names
  /// start from the folder of the study.
  std::string fileName(const char* key) const {
    return (std::filesystem::path(file).parent_path() / values->at(key).get<std::string>())
        .string();
  }

  /// The group of this name, which must be there.
  StudyGroup group(const char* key) const { return {file, values->at(key), place / key}; }

  /// The groups of the list of this name, none if there is no such list.
  std::vector<StudyGroup> groups(const char* key) const {
    std::vector<StudyGroup> found;
    for (std::size_t k = 0; has(key) && k < values->at(key).size(); ++k) {
      found.push_back({file, values->at(key)[k], place / key / k});
    }
    return found;
  }

  /// Leaves `value` as it is if the group does not hold the key.
  /// @throws BaseException for a list of another length and for a flag that is none.
  template <class T>
  void take(const char* key, T& value) const {
    if (!has(key)) return;
    if constexpr (std::is_same_v<T, bool>) {
      if (!values->at(key).is_boolean()) refuseValue(key, "true or false");
    }
    value = values->at(key).get<T>();
  }

  template <class T>
  void take(const char* key, std::optional<T>& value) const {
    if (has(key)) take(key, value.emplace());
  }

  template <class T, std::size_t N>
  void take(const char* key, std::array<T, N>& value) const {
    if (!has(key)) return;
    if (values->at(key).size() != N) {
      refuseValue(key, common::console::text("a list of ", N, " numbers"));
    }
    value = values->at(key).get<std::array<T, N>>();
  }

  /// @throws BaseException always; so do the other two.
  template <class... Parts>
  [[noreturn]] void refuse(const Parts&... parts) const {
    refuseStudy(file, "<", path(), "> ", parts...);
  }

  template <class... Parts>
  [[noreturn]] void refuseKey(const char* key, const Parts&... parts) const {
    refuseStudy(file, "key <", jsv::toText(place / key), "> ", parts...);
  }

  /// @param wanted what the value must be
  [[noreturn]] void refuseValue(const char* key, const std::string& wanted) const {
    refuseKey(key, "must be ", wanted, ", but is ", values->at(key).dump());
  }

 private:
  StudyGroup(std::string newFile, const nlohmann::json& newValues, jsv::JsonPointer newPlace)
      : file(std::move(newFile)), values(&newValues), place(std::move(newPlace)) {}

  std::string file;
  const nlohmann::json* values;
  jsv::JsonPointer place;
};

}  // namespace setup
