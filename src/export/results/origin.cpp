#include "export/results/origin.h"

#include <array>
#include <charconv>
#include <ctime>
#include <filesystem>
#include <nlohmann/json.hpp>

#include "common/console.h"
#include "common/version.h"

namespace exporter {

namespace {

/// Empty if there is no such text.
std::string domainText(const Results& results, const char* key) {
  const auto study = nlohmann::json::parse(results.study());
  const auto place = nlohmann::json::json_pointer("/SETUP/DOMAIN") / key;
  if (!study.contains(place) || !study[place].is_string()) return {};
  return study[place].get<std::string>();
}

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

std::string programName() {
  return std::string("RHEOMARK ") + common::VERSION;
}

std::string historyOf(const std::string& source) {
  const std::time_t now = std::time(nullptr);
  std::tm utc{};
  ::gmtime_r(&now, &utc);
  std::array<char, 32> moment{};
  std::strftime(moment.data(), moment.size(), "%Y-%m-%dT%H:%M:%SZ", &utc);
  return std::string(moment.data()) + ": export " + common::VERSION + " of " +
         std::filesystem::path(source).filename().string();
}

std::string titleOf(const Results& results) {
  const std::string name = domainText(results, "name");
  return name.empty() ? std::filesystem::path(results.file()).filename().string() : name;
}

int epsgOf(const Results& results) {
  const std::string crs = domainText(results, "crs");
  if (crs.empty()) return 0;
  const std::string authority = "EPSG:";
  int code = 0;
  const char* const end = crs.data() + crs.size();
  if (crs.starts_with(authority)) {
    const auto parsed = std::from_chars(crs.data() + authority.size(), end, code);
    if (parsed.ec == std::errc() && parsed.ptr == end && code > 0) return code;
  }
  common::console::fail("the study names the coordinate reference system <", crs,
                        ">, which is no code such as EPSG:2056");
}

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
