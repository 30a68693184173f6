#include "setup/riverKeys.h"

#include <set>

#include "setup/boundaryTable.h"
#include "setup/friction.h"
#include "setup/sources.h"

namespace setup {

namespace {

const std::string P = "SETUP/DOMAIN/RHEOPLANE_2D";
const std::string STRING = P + "/GEOMETRY/STRINGDEF";
const std::string FRICTION = P + "/HYDRAULICS/FRICTION";
const std::string BOUNDARY = P + "/HYDRAULICS/BOUNDARY";
const std::string SOURCE = P + "/HYDRAULICS/SOURCE";

const KeyRules REQUIRED = {.required = true};
const KeyRules ROUGHNESS = {.required = true, .range = Range::Positive};

template <class Items>
KeyRules namesOf(const Items& items) {
  KeyRules rules = REQUIRED;
  for (const auto& item : items) rules.choices.push_back(item.name);
  return rules;
}

KeyTable stringKeys() {
  // clang-format off
  return {
    {STRING,                       Kind::Groups},
    {STRING + "[]/name",           Kind::Text,     REQUIRED},
    {STRING + "[]/mesh_string",    Kind::Text},
    {STRING + "[]/nodes",          Kind::Ids},
    {STRING + "[]/from",           Kind::Point},
    {STRING + "[]/to",             Kind::Point},
    {STRING + "[]/reverse",        Kind::Flag},
  };
  // clang-format on
}

KeyTable frictionKeys() {
  // clang-format off
  return {
    {FRICTION,                     Kind::Group},
    {FRICTION + "/type",           Kind::Text,     namesOf(frictionClosures())},
    {FRICTION + "/value",          Kind::Number,   ROUGHNESS},
    {FRICTION + "/ZONES",          Kind::Groups},
    {FRICTION + "/ZONES[]/region", Kind::Text},
    {FRICTION + "/ZONES[]/box",    Kind::Box},
    {FRICTION + "/ZONES[]/value",  Kind::Number,   ROUGHNESS},
  };
  // clang-format on
}

/// The keys of all types; which of them a type takes is a matter of its reading.
KeyTable boundaryKeys() {
  KeyRules lookups;
  for (const Lookup lookup :
       {Lookup::Time, Lookup::Depth, Lookup::Level, Lookup::Discharge, Lookup::ReceivingLevel}) {
    lookups.choices.push_back(nameOf(lookup));
  }
  // clang-format off
  KeyTable keys = {
    {BOUNDARY,                     Kind::Groups},
    {BOUNDARY + "[]/string",       Kind::Text,     REQUIRED},
    {BOUNDARY + "[]/type",         Kind::Text,     namesOf(boundaryTypes())},
    {BOUNDARY + "[]/to",           Kind::Text},
    {BOUNDARY + "[]/over",         Kind::Text,     lookups},
  };
  // clang-format on
  std::set<std::string> known;
  for (const BoundaryType& type : boundaryTypes()) {
    for (const Input& input : type.inputs) {
      const std::string path = BOUNDARY + "[]/" + input.key;
      const Kind kind = input.takes == Takes::Flag ? Kind::Flag : Kind::Number;
      if (input.takes != Takes::Series && known.insert(path).second) keys.push_back({path, kind});
      const bool hasFile = input.takes == Takes::Series || input.takes == Takes::SeriesToo;
      if (hasFile && known.insert(path + "_file").second) {
        keys.push_back({path + "_file", Kind::Text});
      }
    }
  }
  return keys;
}

KeyTable sourceKeys() {
  KeyRules sinks;
  sinks.choices = sinkNames();
  // clang-format off
  KeyTable keys = {
    {SOURCE,                       Kind::Groups},
    {SOURCE + "[]/region",         Kind::Text,     REQUIRED},
    {SOURCE + "[]/type",           Kind::Text,     namesOf(sourceTypes())},
    {SOURCE + "[]/sink",           Kind::Text,     sinks},
  };
  // clang-format on
  for (const SourceType& type : sourceTypes()) {
    keys.push_back({SOURCE + "[]/" + type.key, Kind::Number});
    keys.push_back({SOURCE + "[]/" + type.key + "_file", Kind::Text});
  }
  return keys;
}

}  // namespace

const KeyTable& riverKeys() {
  static const KeyTable table = [] {
    KeyTable all;
    for (const KeyTable& part : {stringKeys(), frictionKeys(), boundaryKeys(), sourceKeys()}) {
      all.insert(all.end(), part.begin(), part.end());
    }
    return all;
  }();
  return table;
}

}  // namespace setup
