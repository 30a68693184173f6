#include "setup/runfile/sets/sets.h"

namespace setup {

namespace {

int size(const Domain& domain) {
  return static_cast<int>(domain.boundaries.interpolations.size());
}

std::vector<int> series(const Domain& domain) {
  std::vector<int> values;
  for (const EdgeInterpolation& item : domain.boundaries.interpolations)
    values.push_back(item.series);
  return values;
}

std::vector<int> strings(const Domain& domain) {
  std::vector<int> values;
  for (const EdgeInterpolation& item : domain.boundaries.interpolations)
    values.push_back(item.string);
  return values;
}

std::vector<int> records(const Domain& domain) {
  std::vector<int> values;
  for (const EdgeInterpolation& item : domain.boundaries.interpolations)
    values.push_back(item.record);
  return values;
}

std::vector<int> keysAndPositions(const Domain& domain) {
  std::vector<int> values;
  for (const EdgeInterpolation& item : domain.boundaries.interpolations)
    values.insert(values.end(), {item.key, item.position});
  return values;
}

}  // namespace

SetContent edInterp() {
  using enum model::MapID;
  using enum model::DataID;
  // clang-format off
  return {&size,
          {
            {EdInterp_InSeries, &series},
            {EdInterp_NodeStrg, &strings},
            {EdInterp_EdgeData, &records},
          },
          {{EdInterp_KeyPostn, &keysAndPositions}}};
  // clang-format on
}

}  // namespace setup
