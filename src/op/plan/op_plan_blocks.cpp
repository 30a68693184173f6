#include "op/plan/op_plan_blocks.h"

#include <algorithm>
#include <climits>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "op/core/op_util.h"

namespace {

// First element behind the block that begins at `begin`.
int block_end(const op_plan_loop& loop, int begin) {
  const auto reaches = [&](int border) { return begin < border && border - begin <= loop.bsize; };
  if (reaches(loop.set->core_size)) return std::min(loop.set->core_size, loop.exec_length);
  if (loop.reduct && reaches(loop.set->size)) return loop.set->size;
  return reaches(loop.exec_length) ? loop.exec_length : begin + loop.bsize;
}

std::vector<int> block_ends(const op_plan_loop& loop) {
  std::vector<int> ends;
  if (loop.staging == OP_ONE_BLOCK) return {loop.exec_length};
  for (int begin = 0; begin < loop.exec_length; begin = ends.back()) {
    ends.push_back(block_end(loop, begin));
  }
  return ends;
}

// Arguments of each staged indirection that are in use.
std::vector<std::vector<int>> members_of(const op_plan_loop& loop) {
  std::vector<std::vector<int>> members(loop.leaders.size());
  for (int m = 0; m < loop.nargs; ++m) {
    const int s = loop.inds_staged[static_cast<std::size_t>(m)];
    if (s >= 0 && loop.in_use(m)) members[static_cast<std::size_t>(s)].push_back(m);
  }
  return members;
}

int target(const op_arg& arg, int element) {
  return arg.map->map[static_cast<std::ptrdiff_t>(element) * arg.map->dim + arg.idx];
}

// Storage for the worst case: every argument of every element reaches an element of its own.
void reserve_lists(const op_plan_loop& loop, op_plan& plan) {
  const auto elements = static_cast<std::size_t>(loop.exec_length);
  std::vector<std::size_t> arguments(loop.leaders.size(), 0);
  std::size_t staged = 0;
  for (const int s : loop.inds_staged) {
    if (s < 0) continue;
    ++arguments[static_cast<std::size_t>(s)];
    ++staged;
  }
  plan.ind_map = op_plan_array<int>(elements * staged);
  plan.ind_maps = op_plan_array<int*>(loop.leaders.size());
  int* list = plan.ind_map;
  for (std::size_t s = 0; s < loop.leaders.size(); ++s) {
    if (elements * arguments[s] > INT_MAX) {
      op_fail(-1, " op_plan error -- loop %s: %zu indirect accesses are more than %d\n", loop.name,
              elements * arguments[s], INT_MAX);
    }
    plan.ind_maps[s] = list;
    list += elements * arguments[s];
  }

  plan.loc_map = op_plan_array<std::int16_t>(elements * staged);
  plan.loc_maps = op_plan_array<std::int16_t*>(loop.nargs);
  std::int16_t* places = plan.loc_map;
  for (std::size_t m = 0; m < loop.inds_staged.size(); ++m) {
    if (loop.inds_staged[m] < 0) continue;
    plan.loc_maps[m] = places;
    places += elements;
  }
  const std::size_t lists = loop.leaders.size() * static_cast<std::size_t>(plan.nblocks);
  plan.ind_offs = op_plan_array<int>(lists);
  plan.ind_sizes = op_plan_array<int>(lists);
  plan.nindirect = op_plan_array<int>(loop.leaders.size());
}

[[noreturn]] void fail_length(const op_plan_loop& loop, const op_arg& arg, int b, int length) {
  op_fail(-1,
          " op_plan error -- loop %s: block %d of %d elements reaches %d elements of set %s, at "
          "most %d are possible; a smaller part_size makes smaller blocks\n",
          loop.name, b, loop.bsize, length, arg.map->to->name, INT16_MAX);
}

// One list of one block. `places` has room for the position of every element of the target set.
void list_targets(const op_plan_loop& loop, op_plan& plan, int b, std::size_t s,
                  const std::vector<int>& members, std::vector<int>& places) {
  const std::size_t entry = s + static_cast<std::size_t>(b) * loop.leaders.size();
  const std::size_t previous = entry - loop.leaders.size();
  plan.ind_offs[entry] = b == 0 ? 0 : plan.ind_offs[previous] + plan.ind_sizes[previous];
  if (members.empty()) return;

  const int begin = plan.offset[b];
  const int end = begin + plan.nelems[b];
  int* const list = plan.ind_maps[s] + plan.ind_offs[entry];
  int length = 0;
  for (const int m : members) {
    for (int e = begin; e < end; ++e) list[length++] = target(loop.args[m], e);
  }
  quickSort(list, 0, length - 1);
  length = removeDups(list, length);
  if (length > INT16_MAX) fail_length(loop, loop.args[members.front()], b, length);
  plan.ind_sizes[entry] = length;
  plan.nindirect[s] += length;

  for (int i = 0; i < length; ++i) places[static_cast<std::size_t>(list[i])] = i;
  for (const int m : members) {
    for (int e = begin; e < end; ++e) {
      const auto element = static_cast<std::size_t>(target(loop.args[m], e));
      plan.loc_maps[m][e] = static_cast<std::int16_t>(places[element]);
    }
  }
}

std::size_t largest_target_set(const op_plan_loop& loop,
                               const std::vector<std::vector<int>>& members) {
  int size = 0;
  for (const auto& arguments : members) {
    for (const int m : arguments) {
      size = std::max(size, op_plan_whole_size(loop.args[m].map->to));
    }
  }
  return static_cast<std::size_t>(size);
}

}  // namespace

void op_plan_cut_blocks(const op_plan_loop& loop, op_plan& plan) {
  const std::vector<int> ends = block_ends(loop);
  plan.nblocks = static_cast<int>(ends.size());
  plan.offset = op_plan_array<int>(ends.size());
  plan.nelems = op_plan_array<int>(ends.size());
  int begin = 0;
  for (std::size_t b = 0; b < ends.size(); ++b) {
    plan.offset[b] = begin;
    plan.nelems[b] = ends[b] - begin;
    begin = ends[b];
  }
}

void op_plan_list_targets(const op_plan_loop& loop, op_plan& plan) {
  reserve_lists(loop, plan);
  const std::vector<std::vector<int>> members = members_of(loop);
  std::vector<int> places(largest_target_set(loop, members));
  for (int b = 0; b < plan.nblocks; ++b) {
    for (std::size_t s = 0; s < members.size(); ++s) {
      list_targets(loop, plan, b, s, members[s], places);
    }
  }
}
