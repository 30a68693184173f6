#include "op/op_plan_loop.h"

#include <algorithm>
#include <climits>

#include "op/op_util.h"

namespace {

constexpr int DEFAULT_BLOCK = 256;
constexpr int SHARED_BYTES = 24 * 1024;  // of a block
constexpr int LINE_BYTES = 64;           // each list starts at a multiple of it

[[noreturn]] void fail_argument(const char* loop, int m, const char* message) {
  op_fail(-1, " op_plan error -- loop %s, argument %d: %s\n", loop, m, message);
}

// Every entry of an argument's column has to be an element of its target set.
void require_targets(const op_plan_loop& loop, int m) {
  const op_arg& arg = loop.args[m];
  const int size = op_plan_whole_size(arg.map->to);
  const int* entry = arg.map->map + arg.idx;
  for (int e = 0; e < loop.exec_length; ++e, entry += arg.map->dim) {
    if (*entry >= 0 && *entry < size) continue;
    op_fail(-1,
            " op_plan error -- loop %s, argument %d: row %d, column %d of map %s holds %d, which "
            "is not in the range 0 to %d of set %s\n",
            loop.name, m, e, arg.idx, arg.map->name, *entry, size - 1, arg.map->to->name);
  }
}

void require_indirect(const op_plan_loop& loop, int m) {
  const op_arg& arg = loop.args[m];
  if (loop.inds[m] >= loop.ninds) {
    op_fail(-1, " op_plan error -- loop %s, argument %d: indirect dat %d, but there are %d\n",
            loop.name, m, loop.inds[m], loop.ninds);
  }
  if (!loop.in_use(m)) return;
  if (arg.dat == nullptr) fail_argument(loop.name, m, "an indirect argument needs a dat");
  if (arg.map == nullptr) fail_argument(loop.name, m, "an indirect argument needs a map");
  if (arg.map->from != loop.set || arg.map->to != arg.dat->set) {
    fail_argument(loop.name, m,
                  "the map does not lead from the set of the loop to that of the dat");
  }
  if (arg.idx < 0 || arg.idx >= arg.map->dim) {
    op_fail(-1,
            " op_plan error -- loop %s, argument %d: index %d is not in the range 0 to %d of map "
            "%s; each column of a vector is an argument of its own\n",
            loop.name, m, arg.idx, arg.map->dim - 1, arg.map->name);
  }
  require_targets(loop, m);
}

// Arguments with the same number share lists and colours.
void require_one_dat(const op_plan_loop& loop, int m) {
  if (!loop.in_use(m)) return;
  for (int other = 0; other < m; ++other) {
    if (loop.inds[other] != loop.inds[m] || !loop.in_use(other)) continue;
    if (loop.args[other].dat == loop.args[m].dat) continue;
    op_fail(-1, " op_plan error -- loop %s: arguments %d and %d share number %d, but not the dat\n",
            loop.name, other, m, loop.inds[m]);
  }
}

void require_loop(const op_plan_loop& loop) {
  if (loop.part_size < 0) {
    op_fail(-1, " op_plan error -- loop %s: part_size is %d, must be 0 or more\n", loop.name,
            loop.part_size);
  }
  if (OP_cache_line_size < 1) {
    op_fail(-1, " op_plan error -- loop %s: OP_cache_line_size is %d, must be 1 or more\n",
            loop.name, OP_cache_line_size);
  }
  for (int m = 0; m < loop.nargs; ++m) {
    if (!loop.is_indirect(m)) continue;
    require_indirect(loop, m);
    require_one_dat(loop, m);
  }
}

template <class Condition>
bool any_argument(const op_plan_loop& loop, Condition condition) {
  return std::any_of(loop.args, loop.args + loop.nargs, condition);
}

bool is_staged(const op_plan_loop& loop, int m) {
  if (!loop.is_indirect(m)) return false;
  if (loop.staging == OP_STAGED_INCREMENTS) return loop.args[m].acc == OP_INC;
  return loop.staging == OP_STAGED || loop.staging == OP_STAGED_BY_COLOUR;
}

int executed_elements(const op_plan_loop& loop) {
  const bool changes = any_argument(
      loop, [](const op_arg& arg) { return arg.opt != 0 && arg.idx != -1 && arg.acc != OP_READ; });
  return loop.set->size + (changes ? loop.set->exec_size : 0);
}

// Numbers the staged indirections. Optional arguments of one dat need not all be in use: the first
// one that is stands for them.
void number_staged(op_plan_loop& loop) {
  loop.inds_staged.assign(static_cast<std::size_t>(loop.nargs), -1);
  std::vector<int> numbers(static_cast<std::size_t>(std::max(loop.ninds, 0)), -1);
  for (int m = 0; m < loop.nargs; ++m) {
    if (!is_staged(loop, m)) continue;
    int& number = numbers[static_cast<std::size_t>(loop.inds[m])];
    if (number < 0) {
      number = static_cast<int>(loop.leaders.size());
      loop.leaders.push_back(m);
    }
    int& leader = loop.leaders[static_cast<std::size_t>(number)];
    if (!loop.in_use(leader) && loop.in_use(m)) leader = m;
    loop.inds_staged[static_cast<std::size_t>(m)] = number;
  }
}

long long staged_bytes(const op_plan_loop& loop) {
  long long bytes = 0;
  for (int m = 0; m < loop.nargs; ++m) {
    if (loop.in_use(m) && is_staged(loop, m)) bytes += loop.args[m].dat->size;
  }
  return bytes;
}

int block_size(const op_plan_loop& loop) {
  if (loop.staging == OP_ONE_BLOCK) return loop.exec_length;
  if (loop.maxbytes >= 1 && loop.part_size == 0) {
    const long long fitting = SHARED_BYTES / (loop.maxbytes * LINE_BYTES) * LINE_BYTES;
    return std::max(static_cast<int>(fitting), DEFAULT_BLOCK);
  }
  return loop.part_size > 0 ? loop.part_size : DEFAULT_BLOCK;
}

}  // namespace

op_plan_loop op_plan_describe(const char* name, op_set set, int part_size, int nargs,
                              const op_arg* args, int ninds, const int* inds, int staging) {
  if (set == nullptr) op_fail(-1, " op_plan error -- loop %s has no set\n", name);
  op_plan_loop loop{};
  loop.name = name;
  loop.set = set;
  loop.part_size = part_size;
  loop.nargs = nargs;
  loop.args = args;
  loop.ninds = ninds;
  loop.inds = inds;
  loop.staging = staging;

  loop.exec_length = executed_elements(loop);
  require_loop(loop);
  loop.halo = any_argument(loop, [](const op_arg& arg) {
    return arg.opt != 0 && arg.idx != -1 && arg.acc != OP_WRITE && arg.acc != OP_INC;
  });
  loop.reduct = ninds > 0 && any_argument(loop, [](const op_arg& arg) {
                  return arg.argtype == 0 && arg.acc != OP_READ;
                });
  number_staged(loop);
  loop.maxbytes = staged_bytes(loop);
  loop.bsize = block_size(loop);
  return loop;
}

int op_plan_whole_size(op_set set) {
  return set->size + set->exec_size + set->nonexec_size;
}

void* op_plan_memory(std::size_t count, std::size_t size) {
  void* const memory = op_calloc(std::max(count, std::size_t{1}), size);
  if (memory == nullptr) {
    op_fail(-1, " op_plan error -- no memory for %zu values of %zu bytes\n", count, size);
  }
  return memory;
}
