#include "export/stringNames.h"

namespace exporter {

namespace {

/// Of any record that holds them.
std::size_t countStrings(const Results& results) {
  for (const api::IOutput* output : results.outputsOn(model::SetID::NodeStrg)) {
    for (const Record& record : results.records()) {
      if (results.holds(*output, record)) return results.values(*output, record).size();
    }
  }
  return 0;
}

}  // namespace

std::vector<std::string> stringNamesOf(const Results& results) {
  std::vector<std::string> names = results.strings();
  const std::size_t known = names.size();
  names.resize(countStrings(results));
  for (std::size_t i = known; i < names.size(); ++i) {
    names[i] = "nodestring " + std::to_string(i + 1);
  }
  return names;
}

}  // namespace exporter
