// The one frame of all loops: timing, diagnostics, halo calls, the backend, reductions, accounting.
//
//   void op_par_loop_kernel_DATA_CellModification(const char* name, op_set set, op_arg arg1,
//                                                 op_arg arg2, op_arg arg3, op_arg arg4) {
//     op::par_loop<loops::CellDataModification, data::cell_modification, op::backend::Sequential>(
//         "kernel_DATA_CellModification", name, set, {arg1, arg2, arg3, arg4});
//   }
//
// The frame keeps the shape of a parallel build; what has no meaning for one process is a stub.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <utility>

#include "op/core/op_lib_core.h"
#include "op/core/op_rt_support.h"
#include "op/core/op_seq.h"
#include "op/loop/op_loop.h"

/// Shows that a loop runs, if the diagnostic level is above 2.
/// @param kernel the kernel's own name, not the name that the caller gives the loop
void op_frame_diagnostics(const char* kernel, bool isDirect);

namespace op {

namespace detail {

/// Copies the incoming arguments to the local array, a vector row taking one entry per column.
/// The first entry of a vector row addresses column 0.
template <class L, std::size_t... I>
std::array<op_arg, std::size_t{L::entries}> expand(typename L::Arguments& incoming,
                                                   std::index_sequence<I...> /*rows*/) {
  std::array<op_arg, std::size_t{L::entries}> args;
  std::size_t next = 0;
  const auto append = [&]<class Row>(std::type_identity<Row>, op_arg& arg) {
    if constexpr (Row::vector) arg.idx = 0;
    args[next++] = arg;
    for (int column = 1; column < Row::entries; ++column) {
      if constexpr (Row::optional) {
        args[next++] =
            op_opt_arg_dat(arg.opt, arg.dat, column, arg.map, arg.dim, arg.type, arg.acc);
      } else {
        args[next++] = op_arg_dat(arg.dat, column, arg.map, arg.dim, arg.type, arg.acc);
      }
    }
  };
  (append(std::type_identity<typename L::template Row<I>>{}, incoming[I]), ...);
  return args;
}

/// Adds the estimated bytes of one call to a timing record, in single precision and in argument
/// order: each dat, twice if it is read and written, and each map.
template <class L, std::size_t... I>
void addTransfer(op_kernel& record, op_set set, const typename L::Arguments& args,
                 std::index_sequence<I...> /*rows*/) {
  const auto elements = static_cast<float>(set->size);
  const auto addDat = [&]<class Row>(std::type_identity<Row>, const op_arg& arg, bool repeated) {
    if constexpr (!Row::global) {
      if (repeated || (Row::optional && L::isDirect && arg.opt == 0)) return;
      const bool twice = Row::access == OP_RW || (L::isDirect && Row::access == OP_WRITE);
      const float bytes = elements * static_cast<float>(arg.size);
      record.transfer += twice ? bytes * 2.0F : bytes;
    }
  };
  const auto addMap = [&](bool leads, const op_arg& arg) {
    if (leads) record.transfer += elements * static_cast<float>(arg.map->dim) * 4.0F;
  };
  (addDat(std::type_identity<typename L::template Row<I>>{}, args[I], repeatsDatum<L, I>()), ...);
  (addMap(L::template Row<I>::mapped && mapLeader<L, I>() == I, args[I]), ...);
}

inline void reduceGlobal(op_arg* arg, double* value) {
  op_mpi_reduce_double(arg, value);
}
inline void reduceGlobal(op_arg* arg, int* value) {
  op_mpi_reduce_int(arg, value);
}

template <class L, std::size_t... I>
void reduce(typename L::Arguments& args, std::index_sequence<I...> /*rows*/) {
  const auto one = []<class Row>(std::type_identity<Row>, op_arg& arg) {
    if constexpr (Row::global) {
      if constexpr (Row::reduction)
        reduceGlobal(&arg, reinterpret_cast<typename Row::Value*>(arg.data));
    }
  };
  (one(std::type_identity<typename L::template Row<I>>{}, args[I]), ...);
}

}  // namespace detail

/// Runs a kernel body over a set.
/// @tparam L description of the loop
/// @tparam Body one small function over raw pointers; it is inlined here
/// @tparam Backend who visits the elements, see op/backend/
/// @param kernel the kernel's own name, for the diagnostics
/// @param name under which the timing table lists the loop
/// @param incoming one argument per row of the description
template <class L, typename L::Body* Body, class Backend>
void par_loop(const char* kernel, const char* name, op_set set, typename L::Arguments incoming) {
  constexpr auto rows = std::make_index_sequence<L::rows>{};
  auto args = detail::expand<L>(incoming, rows);

  op_timing_realloc(L::slot);
  double cpu = 0.0;
  double start = 0.0;
  op_timers_core(&cpu, &start);
  op_frame_diagnostics(kernel, L::isDirect);

  const int executed = op_mpi_halo_exchanges(set, L::entries, args.data());
  if (set->size >= 1 && executed >= 1) {
    // The elements of the core need nothing from other processes; the rest waits for them.
    const int core = L::isDirect ? executed : std::min(set->core_size, executed);
    Backend::template run<L, Body>(incoming, 0, core);
    if (core < executed) {
      op_mpi_wait_all(L::entries, args.data());
      Backend::template run<L, Body>(incoming, core, executed);
    }
  }
  if (!L::isDirect && (executed == 0 || executed == set->core_size)) {
    op_mpi_wait_all(L::entries, args.data());
  }

  detail::reduce<L>(incoming, rows);
  op_mpi_set_dirtybit(L::entries, args.data());
  double end = 0.0;
  op_timers_core(&cpu, &end);

  op_kernel& record = OP_kernels[L::slot];
  record.name = name;
  record.count += 1;
  record.time += end - start;
  detail::addTransfer<L>(record, set, incoming, rows);
}

}  // namespace op

// The parameters of a frame with n arguments, OP_ARGS_n(OP_ARG_PARAMETER), and their names,
// OP_ARGS_n(OP_ARG_NAME).
#define OP_ARG_PARAMETER(N) op_arg arg##N
#define OP_ARG_NAME(N) arg##N
#define OP_ARGS_1(ONE) ONE(1)
#define OP_ARGS_2(ONE) OP_ARGS_1(ONE), ONE(2)
#define OP_ARGS_3(ONE) OP_ARGS_2(ONE), ONE(3)
#define OP_ARGS_4(ONE) OP_ARGS_3(ONE), ONE(4)
#define OP_ARGS_5(ONE) OP_ARGS_4(ONE), ONE(5)
#define OP_ARGS_6(ONE) OP_ARGS_5(ONE), ONE(6)
#define OP_ARGS_7(ONE) OP_ARGS_6(ONE), ONE(7)
#define OP_ARGS_8(ONE) OP_ARGS_7(ONE), ONE(8)
#define OP_ARGS_9(ONE) OP_ARGS_8(ONE), ONE(9)
#define OP_ARGS_10(ONE) OP_ARGS_9(ONE), ONE(10)
#define OP_ARGS_11(ONE) OP_ARGS_10(ONE), ONE(11)
#define OP_ARGS_12(ONE) OP_ARGS_11(ONE), ONE(12)
#define OP_ARGS_13(ONE) OP_ARGS_12(ONE), ONE(13)
#define OP_ARGS_14(ONE) OP_ARGS_13(ONE), ONE(14)
#define OP_ARGS_15(ONE) OP_ARGS_14(ONE), ONE(15)
#define OP_ARGS_16(ONE) OP_ARGS_15(ONE), ONE(16)
