// What the tests of execution plans share: a loop over edges that changes cells, and a count of the
// units of one colour that change the same element.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <map>
#include <numeric>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "op/op_test_support.h"
#include "op/plan/op_plan.h"

namespace op_test {

/// A started runtime whose plans end with the test.
class PlanTest : public RuntimeTest {
 protected:
  void TearDown() override {
    op_rt_exit();
    RuntimeTest::TearDown();
  }
};

/// The arguments of a loop, and which indirect dat each one reaches.
struct PlannedLoop {
  op_set set = nullptr;
  std::vector<op_arg> args;
  std::vector<int> inds;
  int part_size = 0;
  std::string name = "loop";

  void add(const op_arg& arg, int ind = -1) {
    args.push_back(arg);
    inds.push_back(ind);
  }
  int ninds() const {
    return inds.empty() ? 0 : 1 + std::max(-1, *std::max_element(inds.begin(), inds.end()));
  }
  op_plan* plan(int staging = OP_STAGED) {
    static std::set<std::string> names;  // a plan refers to the name for the rest of the run
    return op_plan_core(names.insert(name).first->c_str(), set, part_size,
                        static_cast<int>(args.size()), args.data(), ninds(), inds.data(), staging);
  }
};

/// Edges between two cells each, given by their pairs of cells; both sets live in the runtime.
struct EdgeMesh {
  op_set edges;
  op_set cells;
  op_map map;
  std::vector<int> table;

  EdgeMesh(int numberOfCells, std::vector<int> pairs) : table(std::move(pairs)) {
    edges = op_decl_set(static_cast<int>(table.size() / 2), "edges");
    cells = op_decl_set(numberOfCells, "cells");
    map = op_decl_map(edges, cells, 2, table.data(), "edges/cells");
  }
  EdgeMesh(const EdgeMesh&) = delete;
  EdgeMesh& operator=(const EdgeMesh&) = delete;

  /// Edge e lies between the cells e and e + 1.
  static EdgeMesh chain(int numberOfEdges) {
    std::vector<int> pairs;
    for (int e = 0; e < numberOfEdges; ++e) pairs.insert(pairs.end(), {e, e + 1});
    return {numberOfEdges + 1, pairs};
  }
  /// All edges meet in cell 0.
  static EdgeMesh star(int numberOfEdges) {
    std::vector<int> pairs;
    for (int e = 0; e < numberOfEdges; ++e) pairs.insert(pairs.end(), {0, e + 1});
    return {numberOfEdges + 1, pairs};
  }

  op_dat dat(op_set set, int dim = 1) const {
    const std::string name = "dat" + std::to_string(OP_dat_index);
    return op_decl_dat_temp_char(set, dim, "double", 8, name.c_str());
  }
  op_arg of(op_dat dat, int column, op_access access) const {
    return op_arg_dat(dat, column, map, dat->dim, "double", access);
  }
  /// A loop that changes the dat of both cells of an edge.
  PlannedLoop changes(op_dat dat, op_access access = OP_INC) const {
    PlannedLoop loop;
    loop.set = edges;
    loop.add(of(dat, 0, access), 0);
    loop.add(of(dat, 1, access), 0);
    return loop;
  }
};

/// Colour of each element in its block.
inline std::vector<int> elementColours(const op_plan& plan, int elements) {
  std::vector<int> colours(plan.thrcol, plan.thrcol + elements);
  if (plan.col_reord == nullptr) return colours;
  for (int i = 0; i < elements; ++i) {
    colours[static_cast<std::size_t>(plan.col_reord[i])] = plan.thrcol[i];
  }
  return colours;
}

/// Colour of each block.
inline std::vector<int> blockColours(const op_plan& plan) {
  std::vector<int> colours(static_cast<std::size_t>(plan.nblocks), -1);
  int next = 0;
  for (int c = 0; next < plan.nblocks; ++c) {
    for (int i = 0; i < plan.ncolblk[c]; ++i) {
      colours[static_cast<std::size_t>(plan.blkmap[next++])] = c;
    }
  }
  return colours;
}

/// Who changed an element last: a unit, in a group of units that run at the same time.
struct Mark {
  std::int64_t group = -1;
  int unit = -1;
};

/// Counts the changes of an element by two units of one group.
/// @param groupOf and unitOf of an element, in the order of groups
template <class Group, class Unit>
int collisions(const PlannedLoop& loop, const std::vector<int>& order, Group groupOf, Unit unitOf) {
  std::map<op_dat, std::vector<Mark>> marks;
  int found = 0;
  for (std::size_t m = 0; m < loop.args.size(); ++m) {
    const op_arg& arg = loop.args[m];
    const bool changes = arg.acc == OP_RW || arg.acc == OP_INC;
    if (loop.inds[m] < 0 || arg.opt == 0 || !changes) continue;
    const op_set to = arg.map->to;
    marks[arg.dat].resize(static_cast<std::size_t>(to->size + to->exec_size + to->nonexec_size));
  }
  for (const int e : order) {
    const Mark now{groupOf(e), unitOf(e)};
    for (std::size_t m = 0; m < loop.args.size(); ++m) {
      const op_arg& arg = loop.args[m];
      const auto of = marks.find(arg.dat);
      if (loop.inds[m] < 0 || of == marks.end() || (arg.acc != OP_RW && arg.acc != OP_INC))
        continue;
      const std::ptrdiff_t entry = std::ptrdiff_t{e} * arg.map->dim + arg.idx;
      Mark& last = of->second[static_cast<std::size_t>(arg.map->map[entry])];
      if (last.group == now.group && last.unit != now.unit) ++found;
      last = now;
    }
  }
  return found;
}

/// Elements in ascending order of their group.
template <class Group>
std::vector<int> orderedBy(int elements, Group groupOf) {
  std::vector<int> order(static_cast<std::size_t>(elements));
  std::iota(order.begin(), order.end(), 0);
  std::stable_sort(order.begin(), order.end(),
                   [&](int a, int b) { return groupOf(a) < groupOf(b); });
  return order;
}

/// The block of each element.
inline std::vector<int> blocksOf(const op_plan& plan, int elements) {
  std::vector<int> blocks(static_cast<std::size_t>(elements), -1);
  for (int b = 0; b < plan.nblocks; ++b) {
    std::fill_n(blocks.begin() + plan.offset[b], plan.nelems[b], b);
  }
  return blocks;
}

/// Elements of one block and one colour that change the same element of another set.
inline int elementCollisions(const op_plan& plan, const PlannedLoop& loop, int elements) {
  const std::vector<int> colours = elementColours(plan, elements);
  const std::vector<int> blocks = blocksOf(plan, elements);
  const auto group = [&](int e) {
    const auto i = static_cast<std::size_t>(e);
    return std::int64_t{blocks[i]} * (elements + 1) + colours[i];
  };
  return collisions(loop, orderedBy(elements, group), group, [](int e) { return e; });
}

/// Blocks of one colour that change the same element of another set.
inline int blockCollisions(const op_plan& plan, const PlannedLoop& loop, int elements) {
  const std::vector<int> colours = blockColours(plan);
  const std::vector<int> blocks = blocksOf(plan, elements);
  const auto unit = [&](int e) { return blocks[static_cast<std::size_t>(e)]; };
  const auto group = [&](int e) {
    return std::int64_t{colours[static_cast<std::size_t>(unit(e))]};
  };
  return collisions(loop, orderedBy(elements, group), group, unit);
}

}  // namespace op_test
