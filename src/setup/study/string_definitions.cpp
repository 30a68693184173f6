#include "setup/study/string_definitions.h"

#include <set>

namespace setup {

namespace {

StringDefinition readString(const StudyGroup& group) {
  StringDefinition string;
  string.path = group.path();
  group.take("name", string.name);
  group.take("reverse", string.reverse);
  if (group.has("from") != group.has("to")) {
    group.refuse("must hold from and to together: the ends of a line");
  }
  if (int{group.has("mesh_string")} + int{group.has("nodes")} + int{group.has("from")} > 1) {
    group.refuse("must hold only one of mesh_string, nodes and the pair from, to");
  }
  if (group.has("nodes")) {
    group.take("nodes", string.nodes);
  } else if (group.has("from")) {
    auto& [from, to] = string.line.emplace();
    group.take("from", from);
    group.take("to", to);
  } else {
    string.meshString = string.name;
    group.take("mesh_string", string.meshString);
  }
  return string;
}

}  // namespace

std::vector<StringDefinition> readStrings(const StudyGroup& geometry) {
  std::vector<StringDefinition> strings;
  std::set<std::string> names;
  for (const StudyGroup& group : geometry.groups("STRINGDEF")) {
    strings.push_back(readString(group));
    const std::string& name = strings.back().name;
    if (!names.insert(name).second) {
      group.refuseKey("name", "is <", name, ">, but another string has this name");
    }
  }
  return strings;
}

}  // namespace setup
