#include "setup/sets/sets.h"

namespace setup {

namespace {

/// Nodestrings become part of a run only where a study gives them a purpose, which none can so far.
int size(const Domain& /*domain*/) {
  return 0;
}

std::vector<std::string> names(const Domain& /*domain*/) {
  return {};
}

}  // namespace

SetContent nodeStrg() {
  using enum model::DataID;
  return {&size, {}, {{StrNames, &names}}};
}

}  // namespace setup
