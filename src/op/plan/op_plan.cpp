#include "op/plan/op_plan.h"

#include <algorithm>
#include <cstddef>
#include <cstdio>

#include "op/core/op_rt_support.h"
#include "op/core/op_util.h"
#include "op/plan/op_plan_blocks.h"
#include "op/plan/op_plan_colours.h"
#include "op/plan/op_plan_costs.h"
#include "op/plan/op_plan_loop.h"

namespace {

constexpr int PLAN_LIST_STEP = 10;  // records by which the full list grows

// What a loop has to share with the one that a plan was built for.
bool same_argument(const op_plan& plan, int m, const op_arg& arg) {
  const bool had_dat = plan.dats[m] != nullptr;
  if (had_dat != (arg.dat != nullptr)) return false;
  if (had_dat && (plan.dims[m] != arg.dat->dim || plan.sizes[m] != arg.dat->size)) return false;
  return plan.maps[m] == arg.map && plan.idxs[m] == arg.idx && plan.accs[m] == arg.acc;
}

bool is_plan_of(const op_plan& plan, const char* name, op_set set, int part_size, int nargs,
                const op_arg* args, int ninds) {
  if (!op_same_text(plan.name, name) || plan.set != set || plan.nargs != nargs ||
      plan.ninds != ninds || plan.part_size != part_size) {
    return false;
  }
  for (int m = 0; m < nargs; ++m) {
    if (!same_argument(plan, m, args[m])) return false;
  }
  return true;
}

// A zeroed record at the end of the list.
op_plan& add_record() {
  if (OP_plan_index == OP_plan_max) {
    OP_plan_max += PLAN_LIST_STEP;
    const auto bytes = static_cast<std::size_t>(OP_plan_max) * sizeof(op_plan);
    OP_plans = static_cast<op_plan*>(op_realloc(OP_plans, bytes));
    if (OP_plans == nullptr) {
      op_fail(-1, " op_plan error -- error reallocating memory for OP_plans");
    }
  }
  op_plan& plan = OP_plans[OP_plan_index++];
  plan = op_plan{};
  return plan;
}

void fill_signature(const op_plan_loop& loop, op_plan& plan) {
  plan.name = loop.name;
  plan.set = loop.set;
  plan.nargs = loop.nargs;
  plan.ninds = loop.ninds;
  plan.nargs_staged = static_cast<int>(loop.leaders.size());
  plan.part_size = loop.part_size;
  plan.count = 1;
  plan.maps = op_plan_array<op_map>(loop.nargs);
  plan.dats = op_plan_array<op_dat>(loop.nargs);
  plan.idxs = op_plan_array<int>(loop.nargs);
  plan.optflags = op_plan_array<int>(loop.nargs);
  plan.accs = op_plan_array<int>(loop.nargs);
  plan.inds_staged = op_plan_array<int>(loop.nargs);
  plan.dims = op_plan_array<int>(loop.nargs);
  plan.sizes = op_plan_array<int>(loop.nargs);
  for (int m = 0; m < loop.nargs; ++m) {
    const op_arg& arg = loop.args[m];
    plan.maps[m] = arg.map;
    plan.dats[m] = arg.dat;
    plan.idxs[m] = arg.idx;
    plan.optflags[m] = arg.opt;
    plan.accs[m] = arg.acc;
    plan.inds_staged[m] = loop.inds_staged[static_cast<std::size_t>(m)];
    plan.dims[m] = arg.dat == nullptr ? 0 : arg.dat->dim;
    plan.sizes[m] = arg.dat == nullptr ? 0 : arg.dat->size;
  }
}

op_plan& build(const op_plan_loop& loop) {
  op_plan& plan = add_record();
  fill_signature(loop, plan);
  op_plan_cut_blocks(loop, plan);
  op_plan_list_targets(loop, plan);
  op_plan_colour_elements(loop, plan);
  op_plan_colour_blocks(loop, plan);
  const op_plan_costs costs = op_plan_estimate(loop, plan);
  if (OP_diags > 1) op_plan_report(loop, plan, costs);
  op_plan_check(plan, plan.nargs_staged, plan.inds_staged);
  return plan;
}

void account_time(const char* name, double seconds) {
  op_kernel* const end = OP_kernels + OP_kern_max;
  op_kernel* const kernel = std::find_if(
      OP_kernels, end, [=](const op_kernel& record) { return op_same_text(record.name, name); });
  if (kernel != end) kernel->plan_time += static_cast<float>(seconds);
  OP_plan_time += seconds;
}

void free_plan(op_plan& plan) {
  if (plan.col_offsets != nullptr) op_free(plan.col_offsets[0]);
  void* const arrays[] = {// NOLINT(modernize-avoid-c-arrays): the list tells its own length
                          plan.maps,     plan.dats,        plan.idxs,        plan.optflags,
                          plan.accs,     plan.inds_staged, plan.nthrcol,     plan.thrcol,
                          plan.offset,   plan.col_reord,   plan.col_offsets, plan.ind_map,
                          plan.ind_maps, plan.ind_offs,    plan.ind_sizes,   plan.nindirect,
                          plan.loc_map,  plan.loc_maps,    plan.nelems,      plan.ncolblk,
                          plan.blkmap,   plan.nsharedCol,  plan.dims,        plan.sizes};
  for (void* const array : arrays) op_free(array);
}

}  // namespace

op_plan* op_plan_core(const char* name, op_set set, int part_size, int nargs, op_arg* args,
                      int ninds, int* inds, int staging) {
  for (int i = 0; i < OP_plan_index; ++i) {
    if (!is_plan_of(OP_plans[i], name, set, part_size, nargs, args, ninds)) continue;
    ++OP_plans[i].count;
    if (OP_diags > 3) std::printf(" old execution plan #%d\n", i);
    return &OP_plans[i];
  }
  if (OP_diags > 1) {
    std::printf(" new execution plan #%d for kernel %s\n", OP_plan_index, name);
  }
  double cpu = 0.0;
  double start = 0.0;
  double end = 0.0;
  op_timers_core(&cpu, &start);
  op_plan& plan = build(op_plan_describe(name, set, part_size, nargs, args, ninds, inds, staging));
  op_timers_core(&cpu, &end);
  account_time(name, end - start);
  return &plan;
}

op_plan* op_plan_get(const char* name, op_set set, int part_size, int nargs, op_arg* args,
                     int ninds, int* inds) {
  return op_plan_get_stage(name, set, part_size, nargs, args, ninds, inds, OP_STAGED);
}

op_plan* op_plan_get_stage(const char* name, op_set set, int part_size, int nargs, op_arg* args,
                           int ninds, int* inds, int staging) {
  return op_plan_core(name, set, part_size, nargs, args, ninds, inds, staging);
}

op_plan* op_plan_get_stage_upload(const char* name, op_set set, int part_size, int nargs,
                                  op_arg* args, int ninds, int* inds, int staging, int /*upload*/) {
  return op_plan_core(name, set, part_size, nargs, args, ninds, inds, staging);
}

void op_rt_exit() {
  for (int i = 0; i < OP_plan_index; ++i) free_plan(OP_plans[i]);
  op_free(OP_plans);
  OP_plans = nullptr;
  OP_plan_index = 0;
  OP_plan_max = 0;
}
