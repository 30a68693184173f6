#include "setup/runfile/sets/sets.h"

namespace setup {

namespace {

int size(const Domain& domain) {
  return static_cast<int>(domain.boundaries.records.size());
}

std::vector<double> values(const Domain& domain) {
  return flat(domain.boundaries.records);
}

}  // namespace

SetContent edgeData() {
  using enum model::DataID;
  return {&size, {}, {{EdgeData_NumValue, &values}}};
}

}  // namespace setup
