// One loop ready to be called, whatever its description asks for.
//
//   LoopCall<loops::HydFriction> call(mesh, {.given = 0.01});
//   call.run(mesh.set(SetID::CellsAll));
#pragma once

#include <array>
#include <cstddef>
#include <type_traits>
#include <utility>

#include "bench/simulation/KernelMesh.h"
#include "bench/simulation/LoopDats.h"
#include "op/core/op_seq.h"
#include "simulation/loops/all_loops.h"

namespace bench {

/// What a loop gets in its globals.
struct LoopSetting {
  double given = 0.01;     ///< the time step or the current time [s]
  bool morphology = true;  ///< whether the bed moves
};

template <class L>
class LoopCall {
 public:
  LoopCall(KernelMesh& kernelMesh, const LoopSetting& loopSetting)
      : mesh(kernelMesh),
        setting(loopSetting),
        dats(kernelMesh),
        args(makeAll(std::make_index_sequence<L::rows>{})) {}

  void run(op_set set) const { runRows(set, std::make_index_sequence<L::rows>{}); }

 private:
  template <std::size_t... I>
  void runRows(op_set set, std::index_sequence<I...> /*rows*/) const {
    loops::FrameOf<L>::run(loops::FrameOf<L>::name, set, args[I]...);
  }

  template <std::size_t... I>
  typename L::Arguments makeAll(std::index_sequence<I...> /*rows*/) {
    return {make<typename L::template Row<I>>(I)...};
  }

  template <class Row>
  op_arg make(std::size_t row) {
    using Value = typename Row::Value;
    constexpr const char* type = op::typeText<Value>();
    if constexpr (Row::global) {
      Value& value = global<Row>(row);
      return op_arg_gbl(&value, Row::dim, type, Row::access);
    } else {
      op_map map = nullptr;
      if constexpr (Row::mapped) map = mesh.map(Row::Route::map);
      if constexpr (Row::optional) {
        const bool used = isOn(Row::flag());
        return op_opt_arg_dat(used ? 1 : 0, used ? dat(Row::datum) : nullptr, Row::Route::idx, map,
                              Row::dim, type, Row::access);
      } else {
        return op_arg_dat(dat(Row::datum), Row::Route::idx, map, Row::dim, type, Row::access);
      }
    }
  }

  /// A global at its start: what is given, or where a reduction begins. Flags are those of friction
  /// and morphology; friction is always on.
  template <class Row>
  typename Row::Value& global(std::size_t row) {
    if constexpr (std::is_same_v<typename Row::Value, int>) {
      integers[row] = Row::access == OP_READ && !setting.morphology ? 0 : 1;
      return integers[row];
    } else {
      reals[row] = Row::access == OP_READ ? setting.given : Row::access == OP_MIN ? 1e12 : 0.0;
      return reals[row];
    }
  }

  bool isOn(loops::Flag flag) const {
    if (flag == loops::Flag::debug) return false;
    return flag == loops::Flag::friction || setting.morphology;
  }

  op_dat dat(model::DataID id) { return dats.get(id); }
  /// Numbers of elements are read in debug mode only.
  static op_dat dat(model::SetID /*id*/) { return nullptr; }

  KernelMesh& mesh;
  LoopSetting setting;
  LoopDats dats;
  std::array<double, L::rows> reals{};
  std::array<int, L::rows> integers{};
  typename L::Arguments args;  // points into the members above
};

}  // namespace bench
