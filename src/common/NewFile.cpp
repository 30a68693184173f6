#include "common/NewFile.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <system_error>

#include "common/console.h"

namespace fs = std::filesystem;

namespace common {

namespace {

void requireOrdinary(const std::string& name, const Sources& sources) {
  std::error_code ignored;
  const fs::path folder = fs::path(name).parent_path();
  if (!folder.empty() && !fs::is_directory(folder, ignored)) {
    console::fail("file <", name, "> cannot be written: there is no folder <", folder.string(),
                  ">");
  }
  if (fs::is_directory(name, ignored)) {
    console::fail("file <", name, "> cannot be written: it is a folder");
  }
  if (fs::exists(name, ignored) && !fs::is_regular_file(name, ignored)) {
    console::fail("file <", name, "> cannot be written: it is a device or a pipe");
  }
  requireNoSource(name, sources);
}

/// "gauges.csv.part", or "gauges.csv.part2" if somebody has a file of that name.
std::string createBeside(const std::string& name) {
  std::string part = name + ".part";
  for (int number = 2;; ++number) {
    const int file = ::open(part.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
    if (file >= 0) {
      ::close(file);
      return part;
    }
    if (errno != EEXIST) {
      console::fail("file <", name, "> cannot be written: ", std::strerror(errno));
    }
    part = name + ".part" + std::to_string(number);
  }
}

}  // namespace

NewFile::NewFile(const std::string& name, const Sources& sources) : target(name) {
  requireOrdinary(name, sources);
  part = createBeside(name);
}

NewFile::~NewFile() {
  std::error_code ignored;
  if (!part.empty()) fs::remove(part, ignored);
}

void NewFile::finish() {
  std::error_code error;
  fs::rename(part, target, error);
  if (error) console::fail("file <", target, "> cannot be written: ", error.message());
  part.clear();  // whoever takes that name now shall keep it
}

void writeText(const std::string& name, const std::string& text, const Sources& sources) {
  NewFile file(name, sources);
  std::ofstream stream(file.unfinished(), std::ios::binary | std::ios::trunc);
  stream << text;
  stream.close();
  if (!stream) {
    console::fail("file <", name,
                  "> cannot be written: is the disk full, or the folder not yours?");
  }
  file.finish();
}

}  // namespace common
