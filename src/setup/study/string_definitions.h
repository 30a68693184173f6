// Nodestrings as a study names them: lines of mesh edges across or along which water is counted or
// given.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "setup/study/document/StudyGroup.h"

namespace setup {

/// How a study names a string: by a nodestring of the mesh, by node ids or by a straight line.
struct StringDefinition {
  std::string path;  ///< JSON pointer into the study document, for messages
  std::string name;
  std::string meshString;                                    ///< name of a nodestring of the mesh
  std::vector<long> nodes;                                   ///< ids of nodes
  std::optional<std::array<std::array<double, 2>, 2>> line;  ///< its two ends [m]
  bool reverse = false;                                      ///< against the order of its nodes
};

/// Reads the list STRINGDEF of the group GEOMETRY, if it has one.
/// @throws BaseException for a name that stands twice and for a string given in more than one way
std::vector<StringDefinition> readStrings(const StudyGroup& geometry);

}  // namespace setup
