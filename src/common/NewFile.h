// A file that comes into being as a whole or not at all: it is written under another name, and what
// has stood under its own name before stays until then.
//
//   common::NewFile file("gauges.csv", {{"results file", "run_results.h5"}});
//   std::ofstream(file.unfinished()) << text;
//   file.finish();
#pragma once

#include <string>

#include "common/sources.h"

namespace common {

class NewFile {
 public:
  /// Creates the unfinished file, empty, beside its target, under a name that no other file has.
  /// @param sources must not be overwritten
  /// @throws BaseException if `name` is one of these, a folder or a device, or in a folder that
  ///         does not exist or cannot be written to.
  NewFile(const std::string& name, const Sources& sources);
  /// Removes what has not been finished.
  ~NewFile();
  NewFile(const NewFile&) = delete;
  NewFile& operator=(const NewFile&) = delete;
  NewFile(NewFile&&) = delete;
  NewFile& operator=(NewFile&&) = delete;

  /// The name to write to.
  const std::string& unfinished() const { return part; }

  /// @throws BaseException if the file cannot take its name.
  void finish();

 private:
  std::string target;
  std::string part;
};

/// Writes a text file as a whole or not at all.
/// @throws BaseException if it cannot be written.
void writeText(const std::string& name, const std::string& text, const Sources& sources);

}  // namespace common
