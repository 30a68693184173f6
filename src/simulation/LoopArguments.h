// What a loop needs to find before it can run.
#pragma once

#include <cstddef>
#include <utility>

#include "catalogue/IDs.h"
#include "op/core/op_lib_core.h"

namespace simulation {

/// Number of global rows of loop L before row I: the position of the row's value among the globals.
template <class L, std::size_t I>
constexpr std::size_t globalOrdinal() {
  return []<std::size_t... J>(std::index_sequence<J...> /*before*/) {
    return (std::size_t{0} + ... + (L::template Row<J>::global ? std::size_t{1} : std::size_t{0}));
  }
  (std::make_index_sequence<I>{});
}

/// Refuses to run a loop whose datum is absent.
/// @throws BaseException naming the datum and the kernel
void requireDat(op_dat dat, model::DataID id, model::KernelID kernel);
/// The same for the element numbers of a set.
void requireDat(op_dat dat, model::SetID id, model::KernelID kernel);
/// Refuses to run a loop whose map is absent.
void requireMap(op_map map, model::MapID id, model::KernelID kernel);

}  // namespace simulation
