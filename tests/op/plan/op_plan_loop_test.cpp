#include "op/plan/op_plan_loop.h"

#include <gtest/gtest.h>

#include <climits>
#include <string>
#include <vector>

#include "op/plan/op_plan_test_support.h"

namespace {

using op_test::EdgeMesh;
using op_test::literally;
using op_test::outputToStderr;
using op_test::PlannedLoop;

class OpPlanLoop : public op_test::PlanTest {
 protected:
  static op_plan_loop describe(const PlannedLoop& loop, int staging = OP_STAGED) {
    return op_plan_describe(loop.name.c_str(), loop.set, loop.part_size,
                            static_cast<int>(loop.args.size()), loop.args.data(), loop.ninds(),
                            loop.inds.data(), staging);
  }
  // A loop over edges that moves so many bytes of cells per element.
  static PlannedLoop moving(const EdgeMesh& mesh, int bytes) {
    const std::string name = "dat" + std::to_string(OP_dat_index);
    return mesh.changes(op_decl_dat_temp_char(mesh.cells, bytes / 2, "char", 1, name.c_str()));
  }
  static void refuses(PlannedLoop loop, const std::string& message) {
    EXPECT_EXIT((outputToStderr(), loop.plan()), testing::ExitedWithCode(255),
                literally(" op_plan error -- loop loop" + message));
  }
};

TEST_F(OpPlanLoop, BlockSizeFollowsFromTheBytesPerElement) {
  const EdgeMesh mesh = EdgeMesh::chain(3);
  EXPECT_EQ(describe(moving(mesh, 100)).maxbytes, 100);
  EXPECT_EQ(describe(moving(mesh, 100)).bsize, 256);
}

TEST_F(OpPlanLoop, FewBytesMakeLargeBlocks) {
  const EdgeMesh mesh = EdgeMesh::chain(3);
  PlannedLoop loop = moving(mesh, 16);
  EXPECT_EQ(describe(loop).maxbytes, 16);
  EXPECT_EQ(describe(loop).bsize, 1536);
  loop.part_size = 100;
  EXPECT_EQ(describe(loop).bsize, 100);
}

TEST_F(OpPlanLoop, BlockSizeWithoutStagedBytesIsTheUsualOne) {
  const EdgeMesh mesh = EdgeMesh::chain(3);
  PlannedLoop loop = moving(mesh, 16);
  for (op_arg& arg : loop.args) arg.acc = OP_READ;
  EXPECT_EQ(describe(loop, OP_STAGED_INCREMENTS).maxbytes, 0);
  EXPECT_EQ(describe(loop, OP_STAGED_INCREMENTS).bsize, 256);
  EXPECT_EQ(describe(loop, 7).bsize, 256);
  EXPECT_EQ(describe(loop, OP_ONE_BLOCK).bsize, 3);
}

TEST_F(OpPlanLoop, ArgumentsOutOfUseHaveNoBytes) {
  const EdgeMesh mesh = EdgeMesh::chain(3);
  PlannedLoop loop = mesh.changes(mesh.dat(mesh.cells));
  loop.args[0].opt = 0;
  EXPECT_EQ(describe(loop).maxbytes, 8);
}

TEST_F(OpPlanLoop, StagesByTheOrderOfFirstAppearance) {
  const EdgeMesh mesh = EdgeMesh::chain(3);
  const op_dat one = mesh.dat(mesh.cells);
  const op_dat two = mesh.dat(mesh.cells);
  PlannedLoop loop;
  loop.set = mesh.edges;
  loop.add(op_arg_dat(mesh.dat(mesh.edges), -1, nullptr, 1, "double", OP_READ));
  loop.add(mesh.of(two, 0, OP_READ), 1);
  loop.add(mesh.of(one, 0, OP_INC), 0);
  loop.add(mesh.of(two, 1, OP_READ), 1);
  EXPECT_EQ(describe(loop).inds_staged, (std::vector<int>{-1, 0, 1, 0}));
  EXPECT_EQ(describe(loop).leaders, (std::vector<int>{1, 2}));
  EXPECT_EQ(describe(loop, OP_STAGED_BY_COLOUR).leaders, (std::vector<int>{1, 2}));
  EXPECT_EQ(describe(loop, OP_STAGED_INCREMENTS).inds_staged, (std::vector<int>{-1, -1, 0, -1}));
  EXPECT_EQ(describe(loop, OP_ONE_BLOCK).leaders, std::vector<int>());
  EXPECT_EQ(describe(loop, 0).leaders, std::vector<int>());
  loop.args[1].opt = 0;
  EXPECT_EQ(describe(loop).leaders, (std::vector<int>{3, 2}));
}

TEST_F(OpPlanLoop, RunsOverTheExtraElementsIfIndirectDataChange) {
  const EdgeMesh mesh = EdgeMesh::chain(8);
  mesh.edges->size = mesh.edges->core_size = 5;
  mesh.edges->exec_size = 3;
  PlannedLoop loop = mesh.changes(mesh.dat(mesh.cells));
  EXPECT_EQ(describe(loop).exec_length, 8);
  loop.args[0].acc = OP_READ;
  EXPECT_EQ(describe(loop).exec_length, 8);
  loop.args[1].opt = 0;
  EXPECT_EQ(describe(loop).exec_length, 5);
}

TEST_F(OpPlanLoop, TellsWhatItWaitsForAndReduces) {
  const EdgeMesh mesh = EdgeMesh::chain(3);
  PlannedLoop loop = mesh.changes(mesh.dat(mesh.cells));
  EXPECT_FALSE(describe(loop).halo);
  EXPECT_FALSE(describe(loop).reduct);
  loop.args[0].acc = OP_READ;
  EXPECT_TRUE(describe(loop).halo);
  loop.args[0].acc = OP_WRITE;
  EXPECT_FALSE(describe(loop).halo);
  double value = 0.0;
  loop.add(op_arg_gbl(&value, 1, "double", OP_READ));
  EXPECT_FALSE(describe(loop).reduct);
  loop.args.back().acc = OP_MIN;
  EXPECT_TRUE(describe(loop).reduct);
  loop.inds = {-1, -1, -1};
  EXPECT_FALSE(describe(loop).reduct);
}

TEST_F(OpPlanLoop, RefusesWhatMakesNoLoop) {
  const EdgeMesh mesh = EdgeMesh::chain(3);
  const op_dat dat = mesh.dat(mesh.cells);
  const PlannedLoop good = mesh.changes(dat);
  PlannedLoop loop = good;
  loop.set = nullptr;
  refuses(loop, " has no set\n");
  loop = good;
  loop.part_size = -1;
  refuses(loop, ": part_size is -1, must be 0 or more\n");
  loop = good;
  loop.args[1].dat = nullptr;
  refuses(loop, ", argument 1: an indirect argument needs a dat\n");
  loop = good;
  loop.args[1].map = nullptr;
  refuses(loop, ", argument 1: an indirect argument needs a map\n");
  loop = good;
  loop.set = mesh.cells;
  refuses(loop,
          ", argument 0: index 0 of map edges/cells with 3 rows of 2 does not reach 4 "
          "elements; each column of a vector is an argument of its own\n");
}

TEST_F(OpPlanLoop, RefusesNumbersOutOfRange) {
  EdgeMesh mesh = EdgeMesh::chain(3);
  const PlannedLoop good = mesh.changes(mesh.dat(mesh.cells));
  PlannedLoop loop = good;
  for (const int idx : {2, -2}) {
    loop.args[1].idx = idx;
    refuses(loop, ", argument 1: index " + std::to_string(idx) +
                      " of map edges/cells with 3 rows of 2 does not reach 3 elements; each column "
                      "of a vector is an argument of its own\n");
  }
  for (const int cell : {4, -1}) {
    mesh.table[5] = cell;
    refuses(good, ", argument 1: row 2, column 1 of map edges/cells holds " + std::to_string(cell) +
                      ", which is not in the range 0 to 3 of set cells\n");
  }
}

TEST_F(OpPlanLoop, RefusesCacheLinesWithoutBytes) {
  const EdgeMesh mesh = EdgeMesh::chain(3);
  OP_cache_line_size = 0;
  refuses(mesh.changes(mesh.dat(mesh.cells)), ": OP_cache_line_size must not be 0\n");
  EXPECT_EQ(mesh.changes(mesh.dat(mesh.cells)).plan(OP_STAGED_INCREMENTS)->nblocks, 1);
}

TEST_F(OpPlanLoop, NumbersMayGoBeyondTheNumberOfDats) {
  const EdgeMesh mesh = EdgeMesh::chain(3);
  PlannedLoop loop = mesh.changes(mesh.dat(mesh.cells));
  loop.inds = {1000000, 7};
  const op_plan_loop described =
      op_plan_describe("loop", mesh.edges, 0, 2, loop.args.data(), 0, loop.inds.data(), OP_STAGED);
  EXPECT_EQ(described.inds_staged, (std::vector<int>{0, 1}));
  EXPECT_FALSE(described.reduct);
}

TEST_F(OpPlanLoop, DatsOfOneNumberShareTheirLists) {
  const EdgeMesh mesh = EdgeMesh::chain(3);
  PlannedLoop loop = mesh.changes(mesh.dat(mesh.cells));
  loop.args[1].dat = mesh.dat(mesh.cells);
  const op_plan* plan = loop.plan();
  EXPECT_EQ(plan->nargs_staged, 1);
  EXPECT_EQ(plan->ind_sizes[0], 4);
  EXPECT_EQ(plan->nthrcol[0], 2);
}

TEST_F(OpPlanLoop, AMapOfAnotherSetNeedsAnEntryForEachElement) {
  const EdgeMesh mesh = EdgeMesh::chain(3);
  PlannedLoop loop = mesh.changes(mesh.dat(mesh.edges));
  loop.set = op_decl_set(2, "few");
  loop.args[1].idx = 2;  // the first column of the next row
  const op_plan* plan = loop.plan();
  EXPECT_EQ(plan->nelems[0], 2);
  EXPECT_EQ(std::vector<int>(plan->ind_map, plan->ind_map + plan->ind_sizes[0]),
            (std::vector<int>{0, 1, 2}));
}

TEST_F(OpPlanLoop, WhatNoStepReadsMayBeMissing) {
  const EdgeMesh mesh = EdgeMesh::chain(3);
  PlannedLoop loop = mesh.changes(mesh.dat(mesh.cells), OP_READ);
  loop.part_size = -1;
  for (op_arg& arg : loop.args) arg.map = nullptr;
  for (op_arg& arg : loop.args) arg.dat = nullptr;
  EXPECT_EQ(loop.plan(OP_ONE_BLOCK)->nelems[0], 3);
}

}  // namespace
