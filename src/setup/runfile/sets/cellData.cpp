#include "setup/runfile/sets/sets.h"

namespace setup {

namespace {

int size(const Domain& domain) {
  return static_cast<int>(domain.sources.records.size());
}

std::vector<double> values(const Domain& domain) {
  return flat(domain.sources.records);
}

}  // namespace

SetContent cellData() {
  using enum model::DataID;
  return {&size, {}, {{CellData_NumValue, &values}}};
}

}  // namespace setup
