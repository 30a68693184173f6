#include "dataio/ResultReader.h"

#include <array>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <limits>
#include <set>

#include "common/check.h"
#include "common/console.h"

namespace console = common::console;

namespace dataio {

namespace {

/// 10^digits cut to an integer. What does not fit becomes the lowest integer, as in the processor.
double roundingFactor(int digits) {
  const double power = std::pow(10.0, digits);
  const bool fits = power < 2147483648.0;
  return fits ? static_cast<std::int32_t>(power) : std::numeric_limits<std::int32_t>::min();
}

}  // namespace

ResultReader::ResultReader(const std::string& file) : H5Reader(file, "rw") {}

std::string ResultReader::getOutputGroup(const std::string& path) {
  return RESULTPATH + path;
}

std::string ResultReader::getOutputPath(const std::string& path, const int& position) {
  std::array<char, 16> number{};
  std::snprintf(number.data(), number.size(), "/%07i", position);
  return getOutputGroup(path) + number.data();
}

std::map<double, std::vector<int>> ResultReader::getAllTimesWithPosition(
    const std::vector<std::string>& paths) const {
  std::map<double, std::vector<int>> times;
  for (const std::string& path : paths) {
    const int n = getNumberObjs(getOutputGroup(path));
    for (int position = 0; position < n; ++position) {
      const std::string record = getOutputPath(path, position);
      const double time = readAttributeDouble(record, "t");
      // A map cannot be ordered by it.
      if (std::isnan(time)) console::fail("time of results <", record, "> is not a number!");
      times[time].push_back(position);
    }
  }
  return times;
}

std::map<double, int> ResultReader::getTimesWithPosition(const std::vector<std::string>& paths,
                                                         const bool& complete) const {
  std::map<double, int> result;
  for (const auto& it : getAllTimesWithPosition(paths)) {
    if (complete) {
      CHECK_THAT(it.second.size() == paths.size(),
                 "not all needed results are found for t=" << it.first);
    }
    const std::set<int> positions(it.second.begin(), it.second.end());
    const int position = *positions.begin();
    if (positions.size() > 1 || position == NONVALIDRESULTTIME) {
      console::fail("corrupt result file!");
    }
    result[it.first] = position;
  }
  return result;
}

int ResultReader::findTime(const std::vector<std::string>& paths, const double& t,
                           const int& digits) const {
  const double s = roundingFactor(digits);
  const double wanted = std::round(t * s) / s;
  for (const auto& [time, position] : getTimesWithPosition(paths, true)) {
    if (std::round(time * s) / s == wanted) return position;
  }
  return -1;
}

void ResultReader::printValidTimes(const std::vector<std::string>& paths) const {
  for (const auto& [time, position] : getTimesWithPosition(paths, true)) {
    if (time >= 0.0) console::info("t[s]: ", time);
  }
}

void ResultReader::deleteResults(const std::string& path, const int& fromPosition) {
  const int n = getNumberObjs(getOutputGroup(path));
  for (int position = fromPosition; position < n; ++position) {
    attachAttributeDouble(getOutputPath(path, position), "t", NONVALIDRESULTTIME);
  }
}

}  // namespace dataio
