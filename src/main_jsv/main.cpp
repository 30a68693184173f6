// jsv-check: validates a JSON document against a schema, for people who write schemas.
//
//   jsv-check SCHEMA DOCUMENT
//
// The exit status is the verdict: 0 clean, 1 warnings only, 2 errors or unusable input.
#include <filesystem>
#include <fstream>
#include <iostream>
#include <string>
#include <system_error>

#include "common/console.h"
#include "common/standard_streams.h"
#include "jsv/StreamValidator.h"

namespace {

constexpr int UNUSABLE = 2;

/// Opens `path` for reading.
/// @throws BaseException with a message on standard error if that cannot be done.
std::ifstream open(const std::string& name, const std::string& path) {
  // A folder can be opened like a file, but would read as an empty one.
  std::error_code ignored;
  if (std::filesystem::is_directory(path, ignored)) {
    common::console::fail(name, " <", path, "> is a folder, but must be a JSON file");
  }
  std::ifstream file(path);
  if (!file) common::console::fail("cannot read ", name, " <", path, ">");
  return file;
}

int validate(const std::string& schemaPath, const std::string& documentPath) {
  try {
    auto schema = open("schema", schemaPath);
    auto document = open("document", documentPath);
    return jsv::StreamValidator(&std::cout).validate(document, schema);
  } catch (const BaseException&) {
    return UNUSABLE;
  }
}

}  // namespace

int main(int argc, char** argv) {
  common::openStandardStreams();
  if (argc != 3) {
    common::console::error("usage: jsv-check SCHEMA DOCUMENT");
    return UNUSABLE;
  }
  return validate(argv[1], argv[2]);
}
