#include "setup/KeyTable.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "common/console.h"

namespace console = common::console;
using nlohmann::json;

namespace setup {

namespace {

std::string parentOf(const std::string& path) {
  const std::size_t slash = path.rfind('/');
  return slash == std::string::npos ? "" : path.substr(0, slash);
}

std::string join(const std::string& group, const std::string& key) {
  return group.empty() ? key : group + "/" + key;
}

bool areNumbers(const json& value, std::size_t length) {
  return value.is_array() && value.size() == length &&
         std::all_of(value.begin(), value.end(), [](const json& v) { return v.is_number(); });
}

/// Whole and within an int.
bool isInteger(const json& value) {
  constexpr double limit = std::numeric_limits<int>::max();
  return value.is_number_integer() && std::abs(value.get<double>()) <= limit;
}

bool areIntegers(const json& value, std::size_t length) {
  return areNumbers(value, length) && std::all_of(value.begin(), value.end(), isInteger);
}

bool areGroups(const json& value) {
  return value.is_array() && !value.empty() &&
         std::all_of(value.begin(), value.end(),
                     [](const json& v) { return v.is_object() && !v.empty(); });
}

bool isKind(const json& value, Kind kind) {
  switch (kind) {
    // clang-format off
    case Kind::Group:   return value.is_object() && !value.empty();
    case Kind::Groups:  return areGroups(value);
    case Kind::Text:    return value.is_string() && !value.get<std::string>().empty();
    case Kind::Flag:    return value.is_boolean();
    case Kind::Number:  return value.is_number();
    case Kind::Integer: return isInteger(value);
    case Kind::Level:   return value.is_number() || value == "dry";
    case Kind::Point:   return areNumbers(value, 2);
    case Kind::Box:     return areNumbers(value, 4) && value[0] < value[2] && value[1] < value[3];
    case Kind::Counts2: return areIntegers(value, 2);
    case Kind::Counts3: return areIntegers(value, 3);
    case Kind::Ids:     return !value.empty() && areIntegers(value, value.size());
      // clang-format on
  }
  return false;
}

const char* describe(Kind kind) {
  switch (kind) {
    // clang-format off
    case Kind::Group:   return "an object with at least one key";
    case Kind::Groups:  return "a list of objects that are not empty";
    case Kind::Text:    return "a text";
    case Kind::Flag:    return "true or false";
    case Kind::Number:  return "a number";
    case Kind::Integer: return "a whole number";
    case Kind::Level:   return "a number or \"dry\"";
    case Kind::Point:   return "a list of two numbers, [x, y]";
    case Kind::Box:     return "a list of four numbers, [xmin, ymin, xmax, ymax]";
    case Kind::Counts2: return "a list of two whole numbers";
    case Kind::Counts3: return "a list of three whole numbers";
    case Kind::Ids:     return "a list of whole numbers that is not empty";
      // clang-format on
  }
  return "";
}

bool isInRange(double value, Range range) {
  switch (range) {
    // clang-format off
    case Range::Any:         return true;
    case Range::NotNegative: return value >= 0.0;
    case Range::Positive:    return value > 0.0;
    case Range::UpToOne:     return value > 0.0 && value <= 1.0;
      // clang-format on
  }
  return false;
}

const char* describe(Range range) {
  switch (range) {
    // clang-format off
    case Range::Any:         return "";
    case Range::NotNegative: return "at least 0";
    case Range::Positive:    return "greater than 0";
    case Range::UpToOne:     return "greater than 0 and at most 1";
      // clang-format on
  }
  return "";
}

class Checker {
 public:
  Checker(const KeyTable& keyTable, const std::string& fileName)
      : table(keyTable), file(fileName) {}

  /// @param pattern the group's path as the table writes it
  /// @param path the same with the positions in lists, as the user is told
  void checkGroup(const json& group, const std::string& pattern, const std::string& path) const {
    for (const auto& [name, value] : group.items()) {
      checkValue(value, keyAt(join(pattern, name), pattern, join(path, name)), join(path, name));
    }
    for (const Key& key : table) {
      if (!key.rules.required || parentOf(key.path) != pattern) continue;
      const std::string name = key.path.substr(pattern.empty() ? 0 : pattern.size() + 1);
      if (!group.contains(name)) refuse("key <", join(path, name), "> is missing");
    }
  }

 private:
  template <class... Parts>
  [[noreturn]] void refuse(const Parts&... parts) const {
    console::fail("study file <", file, ">: ", parts...);
  }

  const Key& keyAt(const std::string& wanted, const std::string& group,
                   const std::string& path) const {
    std::string siblings;
    for (const Key& key : table) {
      if (parentOf(key.path) != group) continue;
      if (key.path == wanted) return key;
      siblings +=
          (siblings.empty() ? "" : ", ") + key.path.substr(group.empty() ? 0 : group.size() + 1);
    }
    refuse("unknown key <", path, ">, possible are: ", siblings);
  }

  void checkValue(const json& value, const Key& key, const std::string& path) const {
    if (!isKind(value, key.kind)) {
      refuse("key <", path, "> must be ", describe(key.kind), ", but is ", value.dump());
    }
    if (key.kind == Kind::Group) checkGroup(value, key.path, path);
    if (key.kind == Kind::Groups) {
      for (std::size_t k = 0; k < value.size(); ++k) {
        checkGroup(value[k], key.path + "[]", path + "[" + std::to_string(k) + "]");
      }
    }
    checkRange(value, key, path);
    checkChoice(value, key, path);
  }

  void checkRange(const json& value, const Key& key, const std::string& path) const {
    if (value.is_array()) {
      for (const json& item : value) checkRange(item, key, path);
    } else if (value.is_number() && !isInRange(value.get<double>(), key.rules.range)) {
      refuse("key <", path, "> must be ", describe(key.rules.range), ", but is ", value.dump());
    }
  }

  void checkChoice(const json& value, const Key& key, const std::string& path) const {
    const std::vector<std::string>& choices = key.rules.choices;
    if (choices.empty() || std::find(choices.begin(), choices.end(), value) != choices.end()) {
      return;
    }
    std::string names;
    for (const std::string& choice : choices) {
      names += (names.empty() ? "\"" : ", \"") + choice + "\"";
    }
    refuse("key <", path, "> must be one of ", names, ", but is ", value.dump());
  }

  const KeyTable& table;
  const std::string& file;
};

}  // namespace

void checkKeys(const json& document, const KeyTable& table, const std::string& file) {
  if (!document.is_object()) {
    console::fail("study file <", file, ">: the document must be an object, but is ",
                  document.type_name());
  }
  Checker(table, file).checkGroup(document, "", "");
}

}  // namespace setup
