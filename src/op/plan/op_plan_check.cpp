#include <algorithm>
#include <cstddef>
#include <cstdio>
#include <vector>

#include "op/core/op_util.h"
#include "op/plan/op_plan.h"
#include "op/plan/op_plan_loop.h"

namespace {

// A plan with what its checks need besides. Nothing in it is trusted to be in range.
struct Plan {
  const op_plan& record;
  int nargs_staged;
  const int* inds_staged;
  int exec_length;

  bool holds_block(int b) const {
    const int begin = record.offset[b];
    const int elements = record.nelems[b];
    return begin >= 0 && elements >= 0 && begin <= exec_length && elements <= exec_length - begin;
  }
  int list_entry(int b, int s) const { return s + b * nargs_staged; }

  // Entries that the lists of an indirection have room for.
  long long list_room(int s) const {
    return std::count(inds_staged, inds_staged + record.nargs, s) *
           static_cast<long long>(exec_length);
  }
  bool holds_list(int b, int s) const {
    const int offset = record.ind_offs[list_entry(b, s)];
    const int size = record.ind_sizes[list_entry(b, s)];
    return offset >= 0 && size >= 0 && offset <= list_room(s) - size;
  }
};

int executed_elements(const op_plan& plan) {
  for (int m = 0; m < plan.nargs; ++m) {
    if (plan.optflags[m] != 0 && plan.idxs[m] != -1 && plan.accs[m] != OP_READ) {
      return plan.set->size + plan.set->exec_size;
    }
  }
  return plan.set->size;
}

void report(const char* item, bool good, const char* confirmation) {
  if (!good) {
    std::printf(" *** OP_plan_check: %s error \n", item);
  } else if (OP_diags > 6) {
    std::printf(" *** OP_plan_check: %s \n", confirmation);
  }
}

bool elements_add_up(const Plan& plan) {
  long long elements = 0;
  for (int b = 0; b < plan.record.nblocks; ++b) elements += plan.record.nelems[b];
  return elements == plan.exec_length;
}

bool offsets_follow(const Plan& plan) {
  long long sum = 0;
  for (int b = 0; b < plan.record.nblocks; ++b) {
    if (plan.record.offset[b] != sum) return false;
    sum += plan.record.nelems[b];
  }
  return true;
}

bool lists_all_blocks(const Plan& plan) {
  std::vector<int> blocks(plan.record.blkmap, plan.record.blkmap + plan.record.nblocks);
  quickSort(blocks.data(), 0, plan.record.nblocks - 1);
  for (int b = 0; b < plan.record.nblocks; ++b) {
    if (blocks[static_cast<std::size_t>(b)] != b) return false;
  }
  return true;
}

bool list_offsets_follow(const Plan& plan) {
  for (int s = 0; s < plan.nargs_staged; ++s) {
    long long sum = 0;
    for (int b = 0; b < plan.record.nblocks; ++b) {
      if (plan.record.ind_offs[plan.list_entry(b, s)] != sum) return false;
      sum += plan.record.ind_sizes[plan.list_entry(b, s)];
    }
  }
  return true;
}

// The argument in use that stands for a staged indirection, or -1.
int argument_of(const Plan& plan, int s) {
  for (int m = 0; m < plan.record.nargs; ++m) {
    if (plan.inds_staged[m] == s && plan.record.optflags[m] != 0) return m;
  }
  return -1;
}

bool list_rises(const Plan& plan, int b, int s, int targets) {
  if (!plan.holds_list(b, s)) return false;
  const int* const list = plan.record.ind_maps[s] + plan.record.ind_offs[plan.list_entry(b, s)];
  const int size = plan.record.ind_sizes[plan.list_entry(b, s)];
  int previous = -1;
  for (int i = 0; i < size; ++i) {
    if (list[i] <= previous || list[i] >= targets) return false;
    previous = list[i];
  }
  return true;
}

bool lists_rise(const Plan& plan) {
  for (int s = 0; s < plan.nargs_staged; ++s) {
    const int m = argument_of(plan, s);
    const int targets = m < 0 ? 0 : op_plan_whole_size(plan.record.maps[m]->to);
    for (int b = 0; b < plan.record.nblocks; ++b) {
      if (!list_rises(plan, b, s, targets)) return false;
    }
  }
  return true;
}

int wrong_places(const Plan& plan, int m, int b) {
  const int s = plan.inds_staged[m];
  if (!plan.holds_block(b) || !plan.holds_list(b, s)) return 0;  // reported already
  const op_map map = plan.record.maps[m];
  const int* const list = plan.record.ind_maps[s] + plan.record.ind_offs[plan.list_entry(b, s)];
  const int size = plan.record.ind_sizes[plan.list_entry(b, s)];
  const int begin = plan.record.offset[b];
  const int end = begin + plan.record.nelems[b];
  int errors = 0;
  for (int e = begin; e < end; ++e) {
    const int place = plan.record.loc_maps[m][e];
    const int target = map->map[static_cast<std::ptrdiff_t>(e) * map->dim + plan.record.idxs[m]];
    if (place < 0 || place >= size || list[place] != target) ++errors;
  }
  return errors;
}

void check_places(const Plan& plan) {
  int errors = 0;
  for (int m = 0; m < plan.record.nargs; ++m) {
    if (plan.inds_staged[m] < 0 || plan.record.optflags[m] == 0) continue;
    for (int b = 0; b < plan.record.nblocks; ++b) errors += wrong_places(plan, m, b);
  }
  if (errors > 0) {
    std::printf(" *** OP_plan_check: %d maps error(s) \n", errors);
  } else if (OP_diags > 6) {
    std::printf(" *** OP_plan_check: maps     OK \n");
  }
}

}  // namespace

void op_plan_check(op_plan plan, int nargs_staged, const int* inds_staged) {
  const Plan checked{plan, nargs_staged, inds_staged, executed_elements(plan)};
  report("nelems", elements_add_up(checked), "nelems   OK");
  report("offset", offsets_follow(checked), "offset   OK");
  report("blkmap", lists_all_blocks(checked), "blkmap   OK");
  report("ind_offs", list_offsets_follow(checked), "ind_offs OK");
  report("ind_maps", lists_rise(checked), "ind_maps OK");
  check_places(checked);
}
