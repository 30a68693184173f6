#include "op/plan/op_plan_loop.h"

#include <algorithm>
#include <map>

#include "op/core/op_util.h"

namespace {

constexpr int DEFAULT_BLOCK = 256;
constexpr int SHARED_BYTES = 24 * 1024;  // of a block
constexpr int LINE_BYTES = 64;           // each list starts at a multiple of it

bool is_staged(const op_plan_loop& loop, int m) {
  if (!loop.is_indirect(m)) return false;
  if (loop.staging == OP_STAGED_INCREMENTS) return loop.args[m].acc == OP_INC;
  return loop.staging == OP_STAGED || loop.staging == OP_STAGED_BY_COLOUR;
}

// Lists follow the column of a map, and so do colours.
bool follows_map(const op_plan_loop& loop, int m) {
  return loop.in_use(m) && loop.is_indirect(m) && (is_staged(loop, m) || loop.changes(m));
}

[[noreturn]] void fail_argument(const op_plan_loop& loop, int m, const char* message) {
  op_fail(-1, " op_plan error -- loop %s, argument %d: %s\n", loop.name, m, message);
}

// The table has to hold an entry for each element of the loop.
void require_column(const op_plan_loop& loop, int m) {
  const op_arg& arg = loop.args[m];
  const long long rows = op_plan_whole_size(arg.map->from);
  const long long last = (loop.exec_length - 1LL) * arg.map->dim + arg.idx;
  if (arg.idx >= 0 && last < rows * arg.map->dim) return;
  op_fail(
      -1,
      " op_plan error -- loop %s, argument %d: index %d of map %s with %lld rows of %d does not "
      "reach %d elements; each column of a vector is an argument of its own\n",
      loop.name, m, arg.idx, arg.map->name, rows, arg.map->dim, loop.exec_length);
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

// What the steps of building read has to be there; whether it makes sense is up to the caller.
void require_loop(const op_plan_loop& loop) {
  if (loop.part_size < 0 && loop.staging != OP_ONE_BLOCK) {
    op_fail(-1, " op_plan error -- loop %s: part_size is %d, must be 0 or more\n", loop.name,
            loop.part_size);
  }
  for (int m = 0; m < loop.nargs; ++m) {
    if (!follows_map(loop, m)) continue;
    if (loop.args[m].map == nullptr) fail_argument(loop, m, "an indirect argument needs a map");
    if (is_staged(loop, m) && loop.args[m].dat == nullptr) {
      fail_argument(loop, m, "an indirect argument needs a dat");
    }
    if (loop.exec_length == 0) continue;
    require_column(loop, m);
    require_targets(loop, m);
  }
}

template <class Condition>
bool any_argument(const op_plan_loop& loop, Condition condition) {
  return std::any_of(loop.args, loop.args + loop.nargs, condition);
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
  std::map<int, int> numbers;
  for (int m = 0; m < loop.nargs; ++m) {
    if (!is_staged(loop, m)) continue;
    const int next = static_cast<int>(loop.leaders.size());
    const auto [entry, isNew] = numbers.try_emplace(loop.inds[m], next);
    const int number = entry->second;
    if (isNew) loop.leaders.push_back(m);
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
