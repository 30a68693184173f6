// The boundaries of a study, those of the flow and those of the bed load.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "setup/study/boundary_types.h"
#include "setup/study/document/StudyGroup.h"
#include "setup/study/string_definitions.h"

namespace setup {

/// A boundary as the study describes it.
struct Boundary {
  std::string path;  ///< JSON pointer into the study document, for messages
  const BoundaryType* type = nullptr;
  int string = 0;                            ///< position in Study::strings
  int receiving = 0;                         ///< of the second string of a link, otherwise `string`
  Lookup lookup = Lookup::Time;              ///< by which the series are looked up
  std::map<std::string, double> values;      ///< by key
  std::map<std::string, std::string> files;  ///< series files by the key of the input
};

/// Reads the list BOUNDARY of a group, if it has one.
/// @param types those that the list may name; @param strings those of the study
/// @throws BaseException for keys that a type does not take or that it lacks, strings with two
///         boundaries of the list, and a type that needs bed friction without it.
std::vector<Boundary> readBoundaries(const StudyGroup& group,
                                     const std::vector<BoundaryType>& types,
                                     const std::vector<StringDefinition>& strings,
                                     bool hasFriction);

/// Whether an input takes the value.
bool isWithin(double value, Bound bound);

/// What an input takes, for messages.
const char* describe(Bound bound);

}  // namespace setup
