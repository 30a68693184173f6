// How a study is refused by what is read out of it.
#pragma once

#include <string>

#include "common/console.h"

namespace setup {

/// Prints the faults of a study with the name of its file in front.
/// @throws BaseException always.
template <class... Parts>
[[noreturn]] void refuseStudy(const std::string& file, const Parts&... parts) {
  common::console::fail("study file <", file, ">: ", parts...);
}

/// A list for a message: "a, b, c".
template <class Items, class Name>
std::string listOf(const Items& items, const Name& nameOf) {
  std::string list;
  for (const auto& item : items) list += (list.empty() ? "" : ", ") + nameOf(item);
  return list;
}

}  // namespace setup
