#include "setup/runfile/sets/sets.h"

namespace setup {

namespace {

int size(const Domain& domain) {
  return static_cast<int>(domain.sources.interpolations.size());
}

std::vector<int> series(const Domain& domain) {
  std::vector<int> values;
  for (const CellInterpolation& item : domain.sources.interpolations) values.push_back(item.series);
  return values;
}

std::vector<int> records(const Domain& domain) {
  std::vector<int> values;
  for (const CellInterpolation& item : domain.sources.interpolations) values.push_back(item.record);
  return values;
}

/// Sources know series over time only, which become the rate as given.
std::vector<int> keysAndPositions(const Domain& domain) {
  return std::vector<int>(2 * domain.sources.interpolations.size(), 0);
}

}  // namespace

SetContent clInterp() {
  using enum model::MapID;
  using enum model::DataID;
  // clang-format off
  return {&size,
          {
            {ClInterp_InSeries, &series},
            {ClInterp_CellData, &records},
          },
          {{ClInterp_KeyPostn, &keysAndPositions}}};
  // clang-format on
}

}  // namespace setup
