#include "op/plan/op_plan_colours.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <numeric>
#include <vector>

#include "op/core/op_util.h"

namespace {

constexpr int PASS_COLOURS = 32;  // bits of a word
constexpr std::uint32_t ALL = ~std::uint32_t{0};
constexpr std::size_t SPARE_ENTRIES = 16;  // zeros behind the sorted elements

// The colours of one pass that the elements of one dat have been given: a bit each.
using Words = std::vector<std::uint32_t>;

// One argument that changes a dat through a map.
struct Change {
  op_dat dat;
  int number;
  Words* words;
  const int* column;
  std::ptrdiff_t stride;

  std::uint32_t& word(int element) const {
    return (*words)[static_cast<std::size_t>(column[element * stride])];
  }
};

// All changes of a loop. Arguments that lead to one dat, or bear one number, share their words.
class Changes {
 public:
  explicit Changes(const op_plan_loop& loop) {
    for (int m = 0; m < loop.nargs; ++m) {
      const op_arg& arg = loop.args[m];
      if (!loop.is_indirect(m) || !loop.in_use(m) || !loop.changes(m)) continue;
      Words& words = words_for(arg.dat, loop.inds[m]);
      const auto targets = static_cast<std::size_t>(op_plan_whole_size(arg.map->to));
      words.resize(std::max(words.size(), targets));
      list_.push_back({arg.dat, loop.inds[m], &words, arg.map->map + arg.idx, arg.map->dim});
    }
  }

  void clear() {
    for (Words& words : words_) std::fill(words.begin(), words.end(), 0U);
  }
  void clear(int begin, int end) const {
    for (const Change& change : list_) {
      for (int e = begin; e < end; ++e) change.word(e) = 0;
    }
  }
  /// Colours of all that the elements change.
  std::uint32_t taken(int begin, int end) const {
    std::uint32_t mask = 0;
    for (const Change& change : list_) {
      for (int e = begin; e < end; ++e) mask |= change.word(e);
    }
    return mask;
  }
  void take(int begin, int end, std::uint32_t colour) const {
    for (const Change& change : list_) {
      for (int e = begin; e < end; ++e) change.word(e) |= colour;
    }
  }

 private:
  Words& words_for(op_dat dat, int number) {
    const auto same = std::find_if(list_.begin(), list_.end(), [=](const Change& change) {
      return change.number == number || change.dat == dat;
    });
    return same == list_.end() ? words_.emplace_back() : *same->words;
  }

  std::deque<Words> words_;  // whose addresses stay
  std::vector<Change> list_;
};

// The lowest colour that is free and does not stand in `mask`, in a pass from `base` on.
int lowest_colour(std::uint32_t mask, int base) {
  return base + std::countr_one(mask);
}

// Colours the elements of one block. Those from `barred` on do not get colour 0.
// @return number of colours
int colour_block(const Changes& changes, int begin, int end, int barred, int* colours) {
  std::fill(colours + begin, colours + end, -1);
  int ncolors = 0;
  bool waiting = begin < end;
  for (int base = 0; waiting; base += PASS_COLOURS) {
    changes.clear(begin, end);
    waiting = false;
    for (int e = begin; e < end; ++e) {
      if (colours[e] >= 0) continue;
      const std::uint32_t first = base == 0 && e >= barred ? 1 : 0;
      const std::uint32_t mask = changes.taken(e, e + 1) | first;
      if (mask == ALL) {
        waiting = true;
        continue;
      }
      colours[e] = lowest_colour(mask, base);
      changes.take(e, e + 1, 1U << (colours[e] - base));
      ncolors = std::max(ncolors, colours[e] + 1);
    }
  }
  return ncolors;
}

// Sorts the elements of a block by colour, those of one colour in ascending order.
void sort_block(op_plan& plan, int b, int* offsets) {
  using Pair = std::array<int, 2>;
  const int begin = plan.offset[b];
  std::vector<Pair> pairs(static_cast<std::size_t>(plan.nelems[b]));
  for (int i = 0; i < plan.nelems[b]; ++i) {
    pairs[static_cast<std::size_t>(i)] = {plan.thrcol[begin + i], begin + i};
  }
  std::stable_sort(pairs.begin(), pairs.end(), [](const Pair& first, const Pair& second) {
    return comp2(first.data(), second.data()) < 0;
  });
  for (int i = 0; i < plan.nelems[b]; ++i) {
    const auto [colour, element] = pairs[static_cast<std::size_t>(i)];
    plan.thrcol[begin + i] = colour;
    plan.col_reord[begin + i] = element;
    ++offsets[colour + 1];
  }
  for (int c = 0; c < plan.nthrcol[b]; ++c) offsets[c + 1] += offsets[c];
}

void sort_elements(const op_plan_loop& loop, op_plan& plan) {
  plan.col_reord = op_plan_array<int>(static_cast<std::size_t>(loop.exec_length) + SPARE_ENTRIES);
  plan.col_offsets = op_plan_array<int*>(plan.nblocks);
  std::size_t entries = 0;
  for (int b = 0; b < plan.nblocks; ++b) entries += static_cast<std::size_t>(plan.nthrcol[b]) + 1;
  int* offsets = op_plan_array<int>(entries);
  plan.col_offsets[0] = offsets;  // what op_rt_exit frees
  for (int b = 0; b < plan.nblocks; ++b) {
    plan.col_offsets[b] = offsets;
    sort_block(plan, b, offsets);
    offsets += plan.nthrcol[b] + 1;
  }
  if (loop.staging == OP_ONE_BLOCK) plan.color2_offsets = plan.col_offsets[0];
}

// The colours below `limit` in a pass from `base` on.
std::uint32_t colours_below(int limit, int base) {
  const int count = std::clamp(limit - base, 0, PASS_COLOURS);
  return count == PASS_COLOURS ? ALL : (1U << count) - 1;
}

// Colours the blocks of a plan, which come in three kinds: core, owned, and executed for others.
class BlockColours {
 public:
  BlockColours(const op_plan_loop& loop, op_plan& plan)
      : loop_(loop),
        plan_(plan),
        changes_(loop),
        colours_(static_cast<std::size_t>(plan.nblocks), -1) {}

  const std::vector<int>& run() {
    plan_.ncolors = 0;
    plan_.ncolors_core = plan_.ncolors_owned = -1;
    bool waiting = plan_.nblocks > 0;
    for (int base = 0; waiting; base += PASS_COLOURS) {
      changes_.clear();
      waiting = pass(base);
    }
    if (plan_.ncolors_core < 0) plan_.ncolors_core = plan_.ncolors;
    if (plan_.ncolors_owned < 0) plan_.ncolors_owned = plan_.ncolors;
    return colours_;
  }

 private:
  // @return true if a block waits for the next pass
  bool pass(int base) {
    bool waiting = false;
    for (int b = 0; b < plan_.nblocks; ++b) {
      int& colour = colours_[static_cast<std::size_t>(b)];
      if (colour >= 0) continue;
      const int begin = plan_.offset[b];
      const int end = begin + plan_.nelems[b];
      // The number of colours of one kind is known when all its blocks have one.
      if (opens_kind(begin) && waiting) break;
      close_kinds_before(begin);
      const std::uint32_t mask =
          changes_.taken(begin, end) | colours_below(barred_below(begin), base);
      if (mask == ALL) {
        waiting = true;
        continue;
      }
      colour = lowest_colour(mask, base);
      changes_.take(begin, end, 1U << (colour - base));
      plan_.ncolors = std::max(plan_.ncolors, colour + 1);
    }
    return waiting;
  }

  bool is_behind_core(int begin) const { return begin >= loop_.set->core_size; }
  bool is_behind_owned(int begin) const { return loop_.reduct && begin >= loop_.set->size; }

  bool opens_kind(int begin) const {
    return (is_behind_core(begin) && plan_.ncolors_core < 0) ||
           (is_behind_owned(begin) && plan_.ncolors_owned < 0);
  }
  void close_kinds_before(int begin) {
    if (is_behind_core(begin) && plan_.ncolors_core < 0) plan_.ncolors_core = plan_.ncolors;
    if (is_behind_owned(begin) && plan_.ncolors_owned < 0) plan_.ncolors_owned = plan_.ncolors;
  }
  int barred_below(int begin) const {
    if (is_behind_owned(begin)) return plan_.ncolors_owned;
    return is_behind_core(begin) ? plan_.ncolors_core : 0;
  }

  const op_plan_loop& loop_;
  op_plan& plan_;
  Changes changes_;
  std::vector<int> colours_;
};

void order_blocks(op_plan& plan, const std::vector<int>& colours) {
  plan.blkmap = op_plan_array<int>(plan.nblocks);
  int* const end = plan.blkmap + plan.nblocks;
  std::iota(plan.blkmap, end, 0);
  const auto colour = [&](int b) { return colours[static_cast<std::size_t>(b)]; };
  std::stable_sort(plan.blkmap, end, [&](int a, int b) { return colour(a) < colour(b); });
  for (const int c : colours) ++plan.ncolblk[c];
}

}  // namespace

void op_plan_colour_elements(const op_plan_loop& loop, op_plan& plan) {
  const Changes changes(loop);
  plan.nthrcol = op_plan_array<int>(plan.nblocks);
  plan.thrcol = op_plan_array<int>(loop.exec_length);
  const bool keepsFirst = loop.staging == OP_ONE_BLOCK && loop.halo;
  const int barred = keepsFirst ? loop.set->core_size : loop.exec_length;
  for (int b = 0; b < plan.nblocks; ++b) {
    const int begin = plan.offset[b];
    plan.nthrcol[b] = colour_block(changes, begin, begin + plan.nelems[b], barred, plan.thrcol);
  }
  if (loop.permutes()) sort_elements(loop, plan);
}

void op_plan_colour_blocks(const op_plan_loop& loop, op_plan& plan) {
  BlockColours blocks(loop, plan);
  const std::vector<int>& colours = blocks.run();
  // Of a single block, the elements take the place of the blocks.
  const int elementColours = loop.staging == OP_ONE_BLOCK ? plan.nthrcol[0] : 0;
  plan.ncolblk = op_plan_array<int>(std::max(plan.ncolors, elementColours));
  order_blocks(plan, colours);
  if (loop.staging == OP_ONE_BLOCK) plan.ncolors = elementColours;
}
