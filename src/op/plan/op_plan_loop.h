// A loop that a plan is built for, and what follows from its arguments before any block is cut.
//
// The steps of building a plan pass this from one to the next: op_plan_blocks.h, op_plan_colours.h,
// op_plan_costs.h. Include this inside the runtime only; applications need op_plan.h.
#pragma once

#include <cstddef>
#include <vector>

#include "op/plan/op_plan.h"

struct op_plan_loop {
  const char* name;
  op_set set;
  int part_size;
  int nargs;
  const op_arg* args;
  int ninds;
  const int* inds;
  int staging;

  int exec_length;     ///< elements that the loop runs over
  bool halo;           ///< reads what other processes have to send
  bool reduct;         ///< reduces to a global, for which only the set's own elements count
  long long maxbytes;  ///< bytes of the staged arguments, per element
  int bsize;           ///< elements of a block
  std::vector<int> inds_staged;  ///< per argument
  std::vector<int> leaders;      ///< per staged indirection, the argument that stands for it

  bool is_indirect(int m) const { return inds[m] >= 0; }
  bool in_use(int m) const { return args[m].opt != 0; }
  bool changes(int m) const { return args[m].acc == OP_RW || args[m].acc == OP_INC; }
  bool permutes() const { return staging == OP_STAGED_BY_COLOUR || staging == OP_ONE_BLOCK; }
};

/// Ends the process with status -1 if something is missing that the plan is made from: the set, the
/// map or the dat of an indirect argument, a column for all elements, the target of an entry.
/// Arguments that contradict each other are taken as they are.
op_plan_loop op_plan_describe(const char* name, op_set set, int part_size, int nargs,
                              const op_arg* args, int ninds, const int* inds, int staging);

/// Elements of a set with those that belong to other processes.
int op_plan_whole_size(op_set set);

/// Zeroed memory of the runtime's allocator. Ends the process with status -1 if there is none.
void* op_plan_memory(std::size_t count, std::size_t size);

template <class T>
T* op_plan_array(std::size_t count) {
  // NOLINTNEXTLINE(bugprone-sizeof-expression): some arrays hold pointers
  return static_cast<T*>(op_plan_memory(count, sizeof(T)));
}
template <class T>
T* op_plan_array(int count) {
  return op_plan_array<T>(static_cast<std::size_t>(count));
}
