#include "export/NewFile.h"

#include <filesystem>
#include <fstream>
#include <system_error>

#include "common/console.h"

namespace console = common::console;

namespace exporter {

NewFile::NewFile(const std::string& source, const std::string& name)
    : target(name), part(name + ".part") {
  std::error_code ignored;
  const std::filesystem::path folder = std::filesystem::path(name).parent_path();
  if (!folder.empty() && !std::filesystem::is_directory(folder, ignored)) {
    console::fail("file <", name, "> cannot be written: there is no folder <", folder.string(),
                  ">");
  }
  if (std::filesystem::is_directory(name, ignored)) {
    console::fail("file <", name, "> cannot be written: it is a folder");
  }
  if (std::filesystem::equivalent(source, name, ignored)) {
    console::fail("file <", name, "> is the results file itself: give another name");
  }
}

NewFile::~NewFile() {
  std::error_code ignored;
  std::filesystem::remove(part, ignored);
}

void NewFile::finish() {
  std::error_code error;
  std::filesystem::rename(part, target, error);
  if (error) console::fail("file <", target, "> cannot be written: ", error.message());
}

void writeText(const std::string& source, const std::string& name, const std::string& text) {
  NewFile file(source, name);
  std::ofstream stream(file.unfinished(), std::ios::binary | std::ios::trunc);
  stream << text;
  stream.close();
  if (!stream) {
    console::fail("file <", name,
                  "> cannot be written: is the disk full, or the folder not yours?");
  }
  file.finish();
}

}  // namespace exporter
