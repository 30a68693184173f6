#include "dataio/H5FileNameDefinitions.h"

#include "common/console.h"

namespace console = common::console;

namespace dataio {

namespace {

/// Position of the first ".h5".
std::size_t findExtension(const std::string& name) {
  const std::size_t position = name.find(H5FileNameDefinitions::H5EXTENSION);
  if (position == std::string::npos) {
    console::fail("no filename with '", H5FileNameDefinitions::H5EXTENSION, "' extension.");
  }
  return position;
}

}  // namespace

std::string H5FileNameDefinitions::getResultFileName(const std::string& name) {
  return name.substr(0, findExtension(name)) + RESULTSID + H5EXTENSION;
}

std::string H5FileNameDefinitions::getRunFromResult(const std::string& name) {
  findExtension(name);
  const std::size_t position = name.find(RESULTSID);
  if (position == std::string::npos) {
    console::fail("runfile names must contain '", RESULTSID, "' extension.");
  }
  return name.substr(0, position) + H5EXTENSION;
}

}  // namespace dataio
