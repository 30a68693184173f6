#include "setup/runfile/sets/sets.h"

namespace setup {

namespace {

int size(const Domain& domain) {
  return static_cast<int>(domain.sources.modifications.size());
}

std::vector<int> regions(const Domain& domain) {
  std::vector<int> values;
  for (const CellModification& item : domain.sources.modifications) values.push_back(item.region);
  return values;
}

std::vector<int> records(const Domain& domain) {
  std::vector<int> values;
  for (const CellModification& item : domain.sources.modifications) values.push_back(item.record);
  return values;
}

/// The rate as given becomes the rate in m/s.
std::vector<int> infos(const Domain& domain) {
  std::vector<int> values;
  for (const CellModification& item : domain.sources.modifications) {
    values.insert(values.end(), {item.type, 1, 0, 0, 0, 0, 0});
  }
  return values;
}

}  // namespace

SetContent clModDat() {
  using enum model::MapID;
  using enum model::DataID;
  // clang-format off
  return {&size,
          {
            {ClModDat_MatIDRgn, &regions},
            {ClModDat_CellData, &records},
          },
          {{ClModDat_ModfInfo, &infos}}};
  // clang-format on
}

}  // namespace setup
