#include "export/origin.h"

#include <array>
#include <ctime>
#include <filesystem>

#include "common/version.h"

namespace exporter {

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

}  // namespace exporter
