#include "export/results/values.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "catalogue/wet.h"
#include "export/results/quantities.h"

namespace exporter {

namespace {

bool needsWater(const Quantity& quantity) {
  return quantity.whenDry == WhenDry::nothing;
}

std::vector<bool> dryCells(const Results& results, const Record& record) {
  std::vector<bool> dry;
  for (const double depth : results.depths(record)) {
    dry.push_back(!model::isWet(depth, results.minimalDepth()));
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
  const std::vector<Quantity>& quantities = quantitiesOf(output.getID());
  if (std::none_of(quantities.begin(), quantities.end(), needsWater)) return {};
  return output.isTracking() ? neverWet(values, quantities.size()) : dryCells(results, record);
}

}  // namespace

std::vector<double> definedValues(const Results& results, const api::IOutput& output,
                                  const Record& record) {
  std::vector<double> values = results.values(output, record);
  const std::vector<Quantity>& quantities = quantitiesOf(output.getID());
  const std::vector<bool> dry = dryCells(results, output, record, values);
  for (std::size_t i = 0; i < values.size(); ++i) {
    const bool isDry =
        needsWater(quantities[i % quantities.size()]) && !dry.empty() && dry[i / quantities.size()];
    if (isDry || !std::isfinite(values[i])) values[i] = std::numeric_limits<double>::quiet_NaN();
  }
  return values;
}

std::vector<double> maskedValues(const Results& results, const api::IOutput& output,
                                 const Record& record) {
  std::vector<double> values = results.values(output, record);
  if (output.getID() == model::OutputID::water_depth) {
    for (double& depth : values) {
      if (!model::isWet(depth, results.minimalDepth())) depth = 0.0;
    }
  }
  return values;
}

}  // namespace exporter
