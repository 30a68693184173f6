#include "setup/runfile/sets/sets.h"

namespace setup {

namespace {

int size(const Domain& domain) {
  return static_cast<int>(domain.boundaries.modifications.size());
}

std::vector<int> strings(const Domain& domain) {
  std::vector<int> values;
  for (const EdgeModification& item : domain.boundaries.modifications)
    values.insert(values.end(), item.strings.begin(), item.strings.end());
  return values;
}

std::vector<int> records(const Domain& domain) {
  std::vector<int> values;
  for (const EdgeModification& item : domain.boundaries.modifications)
    values.push_back(item.record);
  return values;
}

std::vector<int> infos(const Domain& domain) {
  std::vector<int> values;
  for (const EdgeModification& item : domain.boundaries.modifications)
    values.insert(values.end(), item.info.begin(), item.info.end());
  return values;
}

}  // namespace

SetContent edModDat() {
  using enum model::MapID;
  using enum model::DataID;
  // clang-format off
  return {&size,
          {
            {EdModDat_NodeStrg, &strings},
            {EdModDat_EdgeData, &records},
          },
          {{EdModDat_ModfInfo, &infos}}};
  // clang-format on
}

}  // namespace setup
