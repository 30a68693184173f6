// A file that comes into being as a whole or not at all: it is written under another name, and what
// has stood under its own name before stays until then.
//
//   exporter::NewFile file(results.file(), "gauges.csv");
//   std::ofstream(file.unfinished()) << text;
//   file.finish();
#pragma once

#include <string>

namespace exporter {

class NewFile {
 public:
  /// @param source the results file, which must not be overwritten
  /// @throws BaseException if `name` is that file, a folder, or in a folder that does not exist.
  NewFile(const std::string& source, const std::string& name);
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
void writeText(const std::string& source, const std::string& name, const std::string& text);

}  // namespace exporter
