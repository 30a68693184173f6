#include "setup/study/boundaries.h"

#include <algorithm>
#include <functional>
#include <set>

namespace setup {

namespace {

/// The keys under which a study can give an input.
std::vector<std::string> keysOf(const Input& input) {
  if (input.takes == Takes::Nothing) return {};
  if (input.takes == Takes::Series) return {input.key + "_file"};
  if (input.takes == Takes::SeriesToo) return {input.key, input.key + "_file"};
  return {input.key};
}

/// The schema has checked each key by itself; which of them a type takes is checked here.
class BoundaryReader {
 public:
  BoundaryReader(const StudyGroup& newGroup, const std::vector<BoundaryType>& types,
                 const std::vector<StringDefinition>& newStrings, bool newHasFriction)
      : group(newGroup),
        strings(newStrings),
        hasFriction(newHasFriction),
        type(typeNamed(newGroup["type"].get<std::string>(), types)) {
    boundary.path = group.path();
    boundary.type = &type;
  }

  Boundary read() {
    boundary.string = stringAt("string");
    boundary.receiving = boundary.string;
    if (type.place == Place::Link) {
      if (!group.has("to")) refuse("needs the key to: the string where the water comes in");
      boundary.receiving = stringAt("to");
    }
    if (type.needsFriction && !hasFriction) {
      refuse("needs bed friction: the study must hold HYDRAULICS/FRICTION");
    }
    refuseOtherKeys();
    for (const Input& input : type.inputs) readInput(input);
    readLookup();
    requireOrderOfLevels();
    return std::move(boundary);
  }

 private:
  template <class... Parts>
  [[noreturn]] void refuse(const Parts&... parts) const {
    group.refuse("of type <", type.name, "> ", parts...);
  }

  int stringAt(const char* key) const {
    const auto found =
        std::find_if(strings.begin(), strings.end(),
                     [&](const StringDefinition& string) { return group[key] == string.name; });
    return static_cast<int>(found - strings.begin());
  }

  void refuseOtherKeys() const {
    std::vector<std::string> known{"string", "type"};
    if (type.place == Place::Link) known.emplace_back("to");
    for (const Input& input : type.inputs) {
      for (const std::string& key : keysOf(input)) known.push_back(key);
    }
    if (type.lookups.size() > 1) known.emplace_back("over");
    for (const std::string& key : group.keys()) {
      if (std::find(known.begin(), known.end(), key) == known.end()) {
        refuse("does not take the key ", key, ", but these: ", listOf(known, std::identity()));
      }
    }
  }

  void readInput(const Input& input) {
    const char* key = input.key.c_str();
    const std::string file = input.key + "_file";
    if (input.takes == Takes::Nothing) {
      boundary.values[input.key] = input.fallback.value();
      return;
    }
    if (group.has(key) && group.has(file.c_str())) {
      refuse("must hold only one of ", input.key, " and ", file);
    }
    if (group.has(file.c_str())) {
      boundary.files[input.key] = group.fileName(file.c_str());
    } else if (group.has(key)) {
      boundary.values[input.key] = valueAt(key, input.takes);
    } else if (input.fallback) {
      boundary.values[input.key] = *input.fallback;
    } else {
      refuse("needs the key ", listOf(keysOf(input), std::identity()));
    }
  }

  double valueAt(const char* key, Takes takes) const {
    if (takes != Takes::Flag) return group[key].get<double>();
    bool flag = false;
    group.take(key, flag);
    return flag ? 1.0 : 0.0;
  }

  void readLookup() {
    if (type.lookups.empty()) return;
    boundary.lookup = type.lookups.front();
    if (!group.has("over")) return;
    const auto name = group["over"].get<std::string>();
    const auto found = std::find_if(type.lookups.begin(), type.lookups.end(),
                                    [&name](Lookup lookup) { return nameOf(lookup) == name; });
    if (found == type.lookups.end()) {
      refuse("cannot look up a series over <", name, ">, but over ", listOf(type.lookups, nameOf));
    }
    if (boundary.files.empty()) refuse("has no series that over could be meant for");
    boundary.lookup = *found;
  }

  /// Otherwise a switch would go back and forth in every step.
  void requireOrderOfLevels() const {
    if (!group.has("lower_level")) return;
    const double lower = boundary.values.at("lower_level");
    const double upper = boundary.values.at("upper_level");
    if (lower >= upper) {
      refuse("needs a lower_level below its upper_level, but they are ", lower, " and ", upper);
    }
  }

  const StudyGroup& group;
  const std::vector<StringDefinition>& strings;
  const bool hasFriction;
  const BoundaryType& type;
  Boundary boundary;
};

}  // namespace

std::vector<Boundary> readBoundaries(const StudyGroup& group,
                                     const std::vector<BoundaryType>& types,
                                     const std::vector<StringDefinition>& strings,
                                     bool hasFriction) {
  std::vector<Boundary> boundaries;
  std::set<std::string> used;
  for (const StudyGroup& item : group.groups("BOUNDARY")) {
    const Boundary boundary = BoundaryReader(item, types, strings, hasFriction).read();
    std::vector<const char*> keys{"string"};
    if (boundary.type->place == Place::Link) keys.push_back("to");
    for (const char* key : keys) {
      const auto string = item[key].get<std::string>();
      if (used.insert(string).second) continue;
      item.refuse("uses the string <", string, "> a second time, a string has one boundary");
    }
    boundaries.push_back(boundary);
  }
  return boundaries;
}

bool isWithin(double value, Bound bound) {
  switch (bound) {
    // clang-format off
    case Bound::Any:         return true;
    case Bound::NotNegative: return value >= 0.0;
    case Bound::Positive:    return value > 0.0;
      // clang-format on
  }
  return false;
}

const char* describe(Bound bound) {
  return bound == Bound::Positive ? "greater than 0" : "at least 0";
}

}  // namespace setup
