// The files that a program reads: what it writes must not take their place.
//
//   common::requireNoSource("run_results.h5", {{"run file", "run.h5"}});
#pragma once

#include <string>
#include <vector>

namespace common {

struct Source {
  std::string kind;  ///< what it is to the user
  std::string name;
};

using Sources = std::vector<Source>;

/// @throws BaseException if the file of that name is one of the sources, also by a link or another
///         path.
void requireNoSource(const std::string& name, const Sources& sources);

}  // namespace common
