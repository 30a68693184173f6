#include "dataio/Archive.h"

#include <fstream>
#include <vector>

#include "common/console.h"

namespace console = common::console;

namespace dataio {

namespace {

std::string entry(const std::string& name) {
  return std::string(Archive::ROOT) + "/" + name;
}

}  // namespace

std::string Archive::getHash(api::IH5Reader* const& reader, const std::string& path) {
  const std::vector<std::string> texts = reader->readStrVec(path);
  // One row without columns passes as an array, but holds no text.
  if (texts.empty()) console::fail("dataset <", path, "> not a 1-d array!");
  return texts[0];
}

std::string Archive::getModel(api::IH5Reader* const& reader) {
  return getHash(reader, entry(MODEL));
}

std::string Archive::getSimulation(api::IH5Reader* const& reader) {
  return getHash(reader, entry(SIMULATION));
}

void Archive::addHash(api::IH5Writer* const& writer, const std::string& path,
                      const std::string& hash) {
  writer->writeStringVec(path, 1, {hash});
}

void Archive::addModel(api::IH5Writer* const& writer, const std::string& hash) {
  addHash(writer, entry(MODEL), hash);
}

void Archive::addSimulation(api::IH5Writer* const& writer, const std::string& hash) {
  addHash(writer, entry(SIMULATION), hash);
}

bool Archive::restore(api::IH5Reader* const& reader, const std::string& file) {
  const std::string text = getModel(reader);
  std::ofstream stream(file, std::ios::trunc);
  stream << text;
  stream.close();
  return stream.good();
}

}  // namespace dataio
