#include "op/plan/op_plan_blocks.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

#include "op/plan/op_plan_test_support.h"

namespace {

using op_test::EdgeMesh;
using op_test::outputToStderr;
using op_test::PlannedLoop;

using Ints = std::vector<int>;

class OpPlanBlocks : public op_test::PlanTest {
 protected:
  // Elements of each block of a loop over `size` elements with a core and others to execute.
  static Ints blocks(int core, int size, int exec, PlannedLoop& loop, int staging = OP_STAGED) {
    loop.set->core_size = core;
    loop.set->size = size;
    loop.set->exec_size = exec;
    loop.name += "'";
    const op_plan& plan = *loop.plan(staging);
    EXPECT_EQ(plan.offset[0], 0);
    for (int b = 1; b < plan.nblocks; ++b) {
      EXPECT_EQ(plan.offset[b], plan.offset[b - 1] + plan.nelems[b - 1]);
    }
    return {plan.nelems, plan.nelems + plan.nblocks};
  }
  static Ints list(const op_plan& plan, int b, int s) {
    const int entry = s + b * plan.nargs_staged;
    const int* const begin = plan.ind_maps[s] + plan.ind_offs[entry];
    return {begin, begin + plan.ind_sizes[entry]};
  }
  static Ints places(const op_plan& plan, int m) {
    return {plan.loc_maps[m], plan.loc_maps[m] + plan.set->size};
  }
};

TEST_F(OpPlanBlocks, AreOfOneSizeButTheLast) {
  const EdgeMesh mesh = EdgeMesh::chain(600);
  PlannedLoop loop = mesh.changes(mesh.dat(mesh.cells));
  loop.part_size = 256;
  EXPECT_EQ(blocks(600, 600, 0, loop), (Ints{256, 256, 88}));
  loop.part_size = 300;
  EXPECT_EQ(blocks(600, 600, 0, loop), (Ints{300, 300}));
  loop.part_size = 1 << 30;
  EXPECT_EQ(blocks(600, 600, 0, loop), (Ints{600}));
  loop.part_size = 0;
  EXPECT_EQ(blocks(600, 600, 0, loop), (Ints{600})) << "16 bytes per edge: blocks of 1536";
}

TEST_F(OpPlanBlocks, EndWithTheCore) {
  const EdgeMesh mesh = EdgeMesh::chain(1500);
  PlannedLoop loop = mesh.changes(mesh.dat(mesh.cells));
  loop.part_size = 256;
  EXPECT_EQ(blocks(1000, 1500, 0, loop), (Ints{256, 256, 256, 232, 256, 244}));
  EXPECT_EQ(OP_plans[OP_plan_index - 1].offset[4], 1000);
  EXPECT_EQ(blocks(512, 600, 0, loop), (Ints{256, 256, 88}));
  EXPECT_EQ(blocks(0, 300, 0, loop), (Ints{256, 44}));
}

TEST_F(OpPlanBlocks, EndWithTheOwnElementsInAReductionOnly) {
  const EdgeMesh mesh = EdgeMesh::chain(700);
  PlannedLoop loop = mesh.changes(mesh.dat(mesh.cells));
  loop.part_size = 256;
  EXPECT_EQ(blocks(300, 600, 100, loop), (Ints{256, 44, 256, 144}));
  double sum = 0.0;
  loop.add(op_arg_gbl(&sum, 1, "double", OP_INC));
  EXPECT_EQ(blocks(300, 600, 100, loop), (Ints{256, 44, 256, 44, 100}));
  loop.part_size = 10000;
  EXPECT_EQ(blocks(300, 600, 100, loop), (Ints{300, 300, 100}));
  EXPECT_EQ(blocks(600, 600, 100, loop), (Ints{600, 100}));
}

TEST_F(OpPlanBlocks, OneCoversEverythingIfAskedFor) {
  const EdgeMesh mesh = EdgeMesh::chain(700);
  PlannedLoop loop = mesh.changes(mesh.dat(mesh.cells));
  double sum = 0.0;
  loop.add(op_arg_gbl(&sum, 1, "double", OP_INC));
  loop.part_size = 10;
  EXPECT_EQ(blocks(300, 600, 100, loop, OP_ONE_BLOCK), (Ints{700}));
}

TEST_F(OpPlanBlocks, ListWhatTheyReachAndWhereItStands) {
  const EdgeMesh mesh(6, {5, 0, 0, 3, 3, 5, 4, 1, 1, 4});
  const op_dat written = mesh.dat(mesh.cells);
  const op_dat read = mesh.dat(mesh.cells, 2);
  PlannedLoop loop;
  loop.set = mesh.edges;
  loop.part_size = 3;
  loop.add(mesh.of(written, 0, OP_INC), 0);
  loop.add(mesh.of(written, 1, OP_INC), 0);
  loop.add(mesh.of(read, 1, OP_READ), 1);
  const op_plan& plan = *loop.plan();
  ASSERT_EQ(plan.nargs_staged, 2);
  EXPECT_EQ(list(plan, 0, 0), (Ints{0, 3, 5}));
  EXPECT_EQ(list(plan, 1, 0), (Ints{1, 4}));
  EXPECT_EQ(list(plan, 0, 1), (Ints{0, 3, 5}));
  EXPECT_EQ(list(plan, 1, 1), (Ints{1, 4}));
  EXPECT_EQ(Ints(plan.ind_offs, plan.ind_offs + 4), (Ints{0, 0, 3, 3}));
  EXPECT_EQ(Ints(plan.nindirect, plan.nindirect + 2), (Ints{5, 5}));
  EXPECT_EQ(plan.ind_maps[1], plan.ind_map + 10);
  EXPECT_EQ(places(plan, 0), (Ints{2, 0, 1, 1, 0}));
  EXPECT_EQ(places(plan, 1), (Ints{0, 1, 2, 0, 1}));
  EXPECT_EQ(places(plan, 2), (Ints{0, 1, 2, 0, 1}));
}

TEST_F(OpPlanBlocks, ListNothingForArgumentsThatAreNotStaged) {
  const EdgeMesh mesh = EdgeMesh::chain(6);
  PlannedLoop loop = mesh.changes(mesh.dat(mesh.cells));
  loop.args[1].acc = OP_READ;
  loop.inds[1] = 1;
  const op_plan& plan = *loop.plan(OP_STAGED_INCREMENTS);
  EXPECT_EQ(plan.nargs_staged, 1);
  EXPECT_NE(plan.loc_maps[0], nullptr);
  EXPECT_EQ(plan.loc_maps[1], nullptr);
}

TEST_F(OpPlanBlocks, ListNothingForArgumentsOutOfUse) {
  const EdgeMesh mesh = EdgeMesh::chain(6);
  PlannedLoop loop = mesh.changes(mesh.dat(mesh.cells));
  loop.part_size = 3;
  op_arg absent = op_opt_arg_dat(0, nullptr, 0, nullptr, 1, "double", OP_READ);
  loop.add(absent, 1);
  OP_diags = 7;
  const std::string output = op_test::outputOf([&] { loop.plan(); });
  const op_plan& plan = OP_plans[0];
  ASSERT_EQ(plan.nargs_staged, 2);
  EXPECT_EQ(list(plan, 0, 1), Ints());
  EXPECT_EQ(list(plan, 1, 1), Ints());
  EXPECT_EQ(plan.ind_offs[3], 0);
  EXPECT_EQ(output.find("error"), std::string::npos);
}

TEST_F(OpPlanBlocks, HoldListsOfUpTo32767Entries) {
  const EdgeMesh mesh = EdgeMesh::chain(32767);
  PlannedLoop loop = mesh.changes(mesh.dat(mesh.cells));
  loop.part_size = 32766;
  const op_plan& plan = *loop.plan();
  EXPECT_EQ(plan.ind_sizes[0], INT16_MAX);
  EXPECT_EQ(plan.loc_maps[1][32765], INT16_MAX - 1);
  loop.part_size = 32767;
  EXPECT_EXIT((outputToStderr(), loop.plan()), testing::ExitedWithCode(255),
              " op_plan error -- loop loop: block 0 of 32767 elements reaches 32768 elements of "
              "set cells, at most 32767 are possible; a smaller part_size makes smaller blocks\n");
}

}  // namespace
