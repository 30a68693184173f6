// The keys of a table of the catalogue, in the order of a walk over it.
#pragma once

#include <map>
#include <vector>

namespace catalogue {

template <class ID, class Value>
std::vector<ID> keysOf(const std::map<ID, Value>& table) {
  std::vector<ID> keys;
  for (const auto& [id, value] : table) keys.push_back(id);
  return keys;
}

}  // namespace catalogue
