#include "setup/domain/missing_value.h"
#include "setup/runfile/sets/sets.h"

namespace setup {

namespace {

int size(const Domain& domain) {
  return static_cast<int>(domain.series.all().size());
}

/// Points of a series in the run file; behind the last one in use stand missing values.
constexpr std::size_t POINTS = 6000;

std::vector<double> values(const Domain& domain) {
  std::vector<double> rows;
  for (const Series& series : domain.series.all()) {
    const std::size_t end = rows.size() + 2 * POINTS;
    for (const auto& [x, y] : series.points) rows.insert(rows.end(), {x, y * series.factor});
    rows.resize(end, MISSING_VALUE);
  }
  return rows;
}

std::vector<int> sizes(const Domain& domain) {
  std::vector<int> result;
  for (const Series& series : domain.series.all()) {
    result.push_back(static_cast<int>(2 * series.points.size()));
  }
  return result;
}

}  // namespace

SetContent inSeries() {
  using enum model::DataID;
  return {&size, {}, {{InSeries_NumValue, &values}, {InSeries_ListSize, &sizes}}};
}

}  // namespace setup
