#include "op/plan/op_plan_costs.h"

#include <algorithm>
#include <climits>
#include <cstddef>
#include <cstdio>
#include <numeric>

#include "op/core/op_util.h"

namespace {

constexpr float KB = 0.0009765625F;  // per byte
constexpr float MB = 9.536743e-7F;

// One list of one block.
struct List {
  const int* begin;
  int size;
};

List list_of(const op_plan& plan, int b, int s) {
  const int entry = s + b * plan.nargs_staged;
  return {plan.ind_maps[s] + plan.ind_offs[entry], plan.ind_sizes[entry]};
}

const op_arg& leader(const op_plan_loop& loop, int s) {
  return loop.args[loop.leaders[static_cast<std::size_t>(s)]];
}

// Each list starts at a multiple of 64 bytes.
int shared_bytes(const op_plan_loop& loop, const op_plan& plan, int b) {
  long long bytes = 0;
  for (int s = 0; s < plan.nargs_staged; ++s) {
    const long long size = list_of(plan, b, s).size;
    if (size > 0) bytes += (size * leader(loop, s).dat->size + 63) & ~63LL;
  }
  if (bytes > INT_MAX) {
    op_fail(-1,
            " op_plan error -- loop %s: block %d needs %lld bytes of shared memory, at most %d "
            "are possible; a smaller part_size makes smaller blocks\n",
            loop.name, b, bytes, INT_MAX);
  }
  return static_cast<int>(bytes);
}

float estimate_shared(const op_plan_loop& loop, op_plan& plan) {
  plan.nsharedCol = op_plan_array<int>(std::max(plan.ncolors, 1));
  float total = 0.0F;
  int next = 0;
  for (int c = 0; c < plan.ncolors; ++c) {
    for (int i = 0; i < plan.ncolblk[c]; ++i) {
      const int bytes = shared_bytes(loop, plan, plan.blkmap[next++]);
      plan.nsharedCol[c] = std::max(plan.nsharedCol[c], bytes);
    }
    plan.nshared = std::max(plan.nshared, plan.nsharedCol[c]);
  }
  for (int b = 0; b < plan.nblocks; ++b) total += static_cast<float>(shared_bytes(loop, plan, b));
  return total;
}

// Lines of `line` bytes that the elements of an ascending list touch, at `size` bytes each.
long long lines_touched(List list, long long size, long long line) {
  long long lines = 0;
  long long previous = -1;
  for (int i = 0; i < list.size; ++i) {
    const long long first = list.begin[i] * size / line;
    const long long last = (list.begin[i] * size + size - 1) / line;
    lines += last - std::max(first, previous + 1) + 1;
    previous = last;
  }
  return lines;
}

// Adds the same bytes to all estimates.
void add_all(op_plan& plan, op_plan_costs& costs, long long bytes) {
  const auto more = static_cast<float>(bytes);
  plan.transfer += more;
  plan.transfer2 += more;
  costs.transfer3 += more;
}

// What is both read and written moves twice.
long long passes(const op_arg& arg) {
  return arg.acc > OP_WRITE ? 2 : 1;
}

void add_argument(const op_plan_loop& loop, int m, int elements, op_plan& plan,
                  op_plan_costs& costs) {
  const op_arg& arg = loop.args[m];
  if (!loop.in_use(m)) return;
  if (loop.is_indirect(m)) {
    add_all(plan, costs, 2LL * elements);  // its part of loc_map
  } else if (arg.dat != nullptr) {
    add_all(plan, costs, passes(arg) * elements * arg.dat->size);
  }
}

void add_list(const op_plan_loop& loop, int b, int s, op_plan& plan, op_plan_costs& costs) {
  const op_arg& arg = leader(loop, s);
  if (arg.opt == 0) return;
  const List list = list_of(plan, b, s);
  const long long line = OP_cache_line_size;
  if (line == 0) {
    op_fail(-1, " op_plan error -- loop %s: OP_cache_line_size must not be 0\n", loop.name);
  }
  const long long wide = line * arg.dat->dim;
  const long long size = arg.dat->size;
  plan.transfer += static_cast<float>(passes(arg) * list.size * size);
  plan.transfer2 += static_cast<float>(passes(arg) * line * lines_touched(list, size, line));
  costs.transfer3 += static_cast<float>(passes(arg) * wide * lines_touched(list, size, wide));
  add_all(plan, costs, (arg.acc == OP_RW ? 2LL : 1LL) * list.size * 4);
}

// 0 where there is nothing to divide by.
double ratio(double part, double whole) {
  return whole > 0.0 ? part / whole : 0.0;
}

}  // namespace

op_plan_costs op_plan_estimate(const op_plan_loop& loop, op_plan& plan) {
  op_plan_costs costs;
  costs.shared = estimate_shared(loop, plan);
  if (loop.staging == OP_STAGED_INCREMENTS || loop.staging == OP_ONE_BLOCK) return costs;
  for (int b = 0; b < plan.nblocks; ++b) {
    for (int m = 0; m < loop.nargs; ++m) add_argument(loop, m, plan.nelems[b], plan, costs);
    for (int s = 0; s < plan.nargs_staged; ++s) add_list(loop, b, s, plan, costs);
  }
  return costs;
}

void op_plan_report(const op_plan_loop& loop, const op_plan& plan, const op_plan_costs& costs) {
  const double colours = std::accumulate(plan.nthrcol, plan.nthrcol + plan.nblocks, 0.0);
  const double staged = static_cast<double>(loop.exec_length) * static_cast<double>(loop.maxbytes);
  std::printf(" number of blocks       = %d \n", plan.nblocks);
  std::printf(" number of block colors = %d \n", plan.ncolors);
  std::printf(" maximum block size     = %d \n", loop.bsize);
  std::printf(" average thread colors  = %.2f \n", ratio(colours, plan.nblocks));
  std::printf(" shared memory required = ");
  for (int c = 0; c < plan.ncolors; ++c) {
    const char* const end = c + 1 < plan.ncolors ? "," : "\n";
    std::printf(" %.2f KB%s", static_cast<float>(plan.nsharedCol[c]) * KB, end);
  }
  if (plan.ncolors == 0) std::printf("\n");
  std::printf(" average data reuse     = %.2f \n", ratio(staged, costs.shared));
  std::printf(" data transfer (used)   = %.2f MB \n", plan.transfer * MB);
  std::printf(" data transfer (total)  = %.2f MB \n", plan.transfer2 * MB);
  std::printf(" SoA/AoS transfer ratio = %.2f \n\n", ratio(costs.transfer3, plan.transfer2));
}
