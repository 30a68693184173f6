#include "setup/runfile/sets/sets.h"

namespace setup {

namespace {

int size(const Domain& domain) {
  return static_cast<int>(domain.sources.regionAreas.size());
}

std::vector<double> areas(const Domain& domain) {
  return domain.sources.regionAreas;
}

}  // namespace

SetContent matIDRgn() {
  using enum model::DataID;
  return {&size, {}, {{MatIDRgn_GeomArea, &areas}}};
}

}  // namespace setup
