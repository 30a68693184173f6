// Checks a JSON document against a table of the keys that it may hold, so that no misspelt key
// goes unnoticed:
//
//   const KeyTable table = {
//     {"BASIN",       Kind::Group},
//     {"BASIN/depth", Kind::Number, {.required = true, .range = Range::Positive}},
//     {"GATES",       Kind::Groups},        // a list of groups
//     {"GATES[]/at",  Kind::Point},
//   };
//   checkKeys(document, table, "study.json");
#pragma once

#include <nlohmann/json.hpp>
#include <string>
#include <vector>

namespace setup {

enum class Kind {
  Group,    ///< an object with at least one key
  Groups,   ///< a list of at least one object
  Text,     ///< a text that is not empty
  Flag,     ///< true or false
  Number,   ///< a number
  Integer,  ///< a whole number
  Level,    ///< a number, or the text "dry"
  Point,    ///< a list of 2 numbers
  Box,      ///< a list of 4 numbers: x and y of the lower left, x and y of the upper right corner
  Counts2,  ///< a list of 2 whole numbers
  Counts3,  ///< a list of 3 whole numbers
  Ids,      ///< a list of at least one whole number
};

/// What the numbers of a value may be.
enum class Range { Any, NotNegative, Positive, UpToOne };

struct KeyRules {
  bool required = false;  ///< whether each group that may hold the key must hold it
  Range range = Range::Any;
  std::vector<std::string> choices = {};  ///< the texts that are possible; empty: all
};

struct Key {
  std::string path;
  Kind kind;
  KeyRules rules = {};
};

using KeyTable = std::vector<Key>;

/// @param file the document's name, for messages
/// @throws BaseException for a key that the table does not hold, a required key that is missing and
///         a value of another kind or beyond its range; the message names the path of the key.
void checkKeys(const nlohmann::json& document, const KeyTable& table, const std::string& file);

}  // namespace setup
