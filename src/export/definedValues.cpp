#include "export/definedValues.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "export/meanings.h"

namespace exporter {

namespace {

std::vector<bool> dryCells(const Results& results, const Record& record) {
  std::vector<bool> dry;
  for (const double depth : results.depths(record)) {
    dry.push_back(results.minimalDepth() > depth);
  }
  return dry;
}

/// The first tracked value is the time of arrival, which is positive once water has come.
std::vector<bool> neverWet(const std::vector<double>& tracked, std::size_t size) {
  std::vector<bool> dry;
  for (std::size_t i = 0; i < tracked.size(); i += size) dry.push_back(tracked[i] <= 0.0);
  return dry;
}

std::vector<bool> dryCells(const Results& results, const api::IOutput& output, const Record& record,
                           const std::vector<double>& values) {
  const std::vector<Meaning>& meanings = meaningsOf(output.getID());
  const bool needsWater = std::any_of(meanings.begin(), meanings.end(),
                                      [](const Meaning& meaning) { return meaning.needsWater; });
  if (!needsWater) return {};
  return output.isTracking() ? neverWet(values, meanings.size()) : dryCells(results, record);
}

}  // namespace

std::vector<double> definedValues(const Results& results, const api::IOutput& output,
                                  const Record& record) {
  std::vector<double> values = results.values(output, record);
  const std::vector<Meaning>& meanings = meaningsOf(output.getID());
  const std::vector<bool> dry = dryCells(results, output, record, values);
  for (std::size_t i = 0; i < values.size(); ++i) {
    const bool needsWater = meanings[i % meanings.size()].needsWater;
    const bool isDry = needsWater && !dry.empty() && dry[i / meanings.size()];
    if (isDry || !std::isfinite(values[i])) values[i] = std::numeric_limits<double>::quiet_NaN();
  }
  return values;
}

}  // namespace exporter
