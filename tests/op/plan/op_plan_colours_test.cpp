#include "op/plan/op_plan_colours.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "op/plan/op_plan_test_support.h"

namespace {

using op_test::blockCollisions;
using op_test::blockColours;
using op_test::EdgeMesh;
using op_test::elementCollisions;
using op_test::elementColours;
using op_test::PlannedLoop;

using Ints = std::vector<int>;

class OpPlanColours : public op_test::PlanTest {
 protected:
  static Ints coloursOf(PlannedLoop& loop, int staging = OP_STAGED) {
    return elementColours(*loop.plan(staging), loop.set->size);
  }
  static Ints ascending(int count) {
    Ints values(static_cast<std::size_t>(count));
    std::iota(values.begin(), values.end(), 0);
    return values;
  }
};

TEST_F(OpPlanColours, OfElementsAlternateAlongAChain) {
  const EdgeMesh mesh = EdgeMesh::chain(5);
  for (const op_access access : {OP_INC, OP_RW}) {
    PlannedLoop loop = mesh.changes(mesh.dat(mesh.cells), access);
    EXPECT_EQ(coloursOf(loop), (Ints{0, 1, 0, 1, 0}));
    EXPECT_EQ(OP_plans[OP_plan_index - 1].nthrcol[0], 2);
  }
}

TEST_F(OpPlanColours, AreNotNeededForWhatIsReadOrWritten) {
  const EdgeMesh mesh = EdgeMesh::chain(5);
  for (const op_access access : {OP_READ, OP_WRITE}) {
    PlannedLoop loop = mesh.changes(mesh.dat(mesh.cells), access);
    EXPECT_EQ(coloursOf(loop), Ints(5, 0));
  }
}

TEST_F(OpPlanColours, AreNotNeededForArgumentsOutOfUse) {
  const EdgeMesh mesh = EdgeMesh::chain(5);
  PlannedLoop loop = mesh.changes(mesh.dat(mesh.cells));
  for (op_arg& arg : loop.args) arg.opt = 0;
  EXPECT_EQ(coloursOf(loop), Ints(5, 0));
}

TEST_F(OpPlanColours, BeginAnewInEachBlock) {
  const EdgeMesh mesh = EdgeMesh::chain(6);
  PlannedLoop loop = mesh.changes(mesh.dat(mesh.cells));
  loop.part_size = 3;
  EXPECT_EQ(coloursOf(loop), (Ints{0, 1, 0, 0, 1, 0}));
}

TEST_F(OpPlanColours, AnElementThatReachesACellTwiceIsInNobodysWay) {
  const EdgeMesh mesh(2, {0, 0, 1, 1});
  PlannedLoop loop = mesh.changes(mesh.dat(mesh.cells));
  EXPECT_EQ(coloursOf(loop), (Ints{0, 0}));
}

TEST_F(OpPlanColours, ContinueBeyond32InFurtherPasses) {
  for (const int edges : {32, 33, 64, 65, 100}) {
    const EdgeMesh mesh = EdgeMesh::star(edges);
    PlannedLoop loop = mesh.changes(mesh.dat(mesh.cells));
    loop.name = std::to_string(edges);
    EXPECT_EQ(coloursOf(loop), ascending(edges));
    EXPECT_EQ(OP_plans[OP_plan_index - 1].nthrcol[0], edges);
  }
}

TEST_F(OpPlanColours, TwoNumbersForOneDatShareItsColours) {
  const EdgeMesh mesh = EdgeMesh::chain(5);
  PlannedLoop loop = mesh.changes(mesh.dat(mesh.cells));
  loop.inds[1] = 1;
  loop.part_size = 2;
  const op_plan& plan = *loop.plan();
  EXPECT_EQ(elementColours(plan, 5), (Ints{0, 1, 0, 1, 0}));
  EXPECT_EQ(plan.ncolors, 2);
}

TEST_F(OpPlanColours, SortTheElementsOfEachBlock) {
  const EdgeMesh mesh = EdgeMesh::chain(7);
  PlannedLoop loop = mesh.changes(mesh.dat(mesh.cells));
  loop.part_size = 4;
  const op_plan& plan = *loop.plan(OP_STAGED_BY_COLOUR);
  EXPECT_EQ(Ints(plan.col_reord, plan.col_reord + 7 + 16),
            (Ints{0, 2, 1, 3, 4, 6, 5, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0}));
  EXPECT_EQ(Ints(plan.thrcol, plan.thrcol + 7), (Ints{0, 0, 1, 1, 0, 0, 1}));
  EXPECT_EQ(Ints(plan.col_offsets[0], plan.col_offsets[0] + 3), (Ints{0, 2, 4}));
  EXPECT_EQ(Ints(plan.col_offsets[1], plan.col_offsets[1] + 3), (Ints{0, 2, 3}));
  EXPECT_EQ(plan.color2_offsets, nullptr);
}

TEST_F(OpPlanColours, LeaveTheElementsInPlaceOtherwise) {
  const EdgeMesh mesh = EdgeMesh::chain(7);
  PlannedLoop loop = mesh.changes(mesh.dat(mesh.cells));
  const op_plan& plan = *loop.plan(OP_STAGED);
  EXPECT_EQ(plan.col_reord, nullptr);
  EXPECT_EQ(plan.col_offsets, nullptr);
}

TEST_F(OpPlanColours, OfTheElementsAreThoseOfTheSingleBlock) {
  const EdgeMesh mesh = EdgeMesh::star(40);
  PlannedLoop loop = mesh.changes(mesh.dat(mesh.cells));
  const op_plan& plan = *loop.plan(OP_ONE_BLOCK);
  EXPECT_EQ(plan.nblocks, 1);
  EXPECT_EQ(plan.ncolors, 40);
  EXPECT_EQ(plan.ncolors_core, 1);
  EXPECT_EQ(plan.ncolors_owned, 1);
  EXPECT_EQ(Ints(plan.color2_offsets, plan.color2_offsets + 41), ascending(41));
  EXPECT_EQ(Ints(plan.col_reord, plan.col_reord + 40), ascending(40));
  EXPECT_EQ(plan.ncolblk[0], 1);
  EXPECT_EQ(plan.ncolblk[39], 0);
}

TEST_F(OpPlanColours, TheFirstIsTheCoresInTheSingleBlockOfALoopThatWaits) {
  const EdgeMesh mesh = EdgeMesh::chain(6);
  mesh.edges->core_size = 3;
  PlannedLoop loop = mesh.changes(mesh.dat(mesh.cells), OP_RW);
  EXPECT_EQ(coloursOf(loop, OP_ONE_BLOCK), (Ints{0, 1, 0, 1, 2, 1}));
  loop = mesh.changes(mesh.dat(mesh.cells), OP_INC);
  EXPECT_EQ(coloursOf(loop, OP_ONE_BLOCK), (Ints{0, 1, 0, 1, 0, 1})) << "nothing to wait for";
  loop = mesh.changes(mesh.dat(mesh.cells), OP_RW);
  loop.name = "staged";
  EXPECT_EQ(coloursOf(loop), (Ints{0, 1, 0, 0, 1, 0})) << "two blocks";
}

TEST_F(OpPlanColours, OfBlocksAlternateAlongAChain) {
  const EdgeMesh mesh = EdgeMesh::chain(10);
  PlannedLoop loop = mesh.changes(mesh.dat(mesh.cells));
  loop.part_size = 2;
  const op_plan& plan = *loop.plan();
  EXPECT_EQ(plan.ncolors, 2);
  EXPECT_EQ(plan.ncolors_core, 2);
  EXPECT_EQ(plan.ncolors_owned, 2);
  EXPECT_EQ(Ints(plan.ncolblk, plan.ncolblk + 2), (Ints{3, 2}));
  EXPECT_EQ(Ints(plan.blkmap, plan.blkmap + 5), (Ints{0, 2, 4, 1, 3}));
}

TEST_F(OpPlanColours, OfBlocksContinueBeyond32) {
  const EdgeMesh mesh = EdgeMesh::star(80);
  PlannedLoop loop = mesh.changes(mesh.dat(mesh.cells));
  loop.part_size = 2;
  const op_plan& plan = *loop.plan();
  EXPECT_EQ(plan.ncolors, 40);
  EXPECT_EQ(blockColours(plan), ascending(40));
  EXPECT_EQ(blockCollisions(plan, loop, 80), 0);
  EXPECT_EQ(elementCollisions(plan, loop, 80), 0);
}

TEST_F(OpPlanColours, OfTheCoreAreItsOwn) {
  const EdgeMesh mesh = EdgeMesh::chain(10);
  mesh.edges->core_size = 4;
  PlannedLoop loop = mesh.changes(mesh.dat(mesh.cells));
  loop.part_size = 2;
  const op_plan& plan = *loop.plan();
  EXPECT_EQ(blockColours(plan), (Ints{0, 1, 2, 3, 2}));
  EXPECT_EQ(plan.ncolors_core, 2);
  EXPECT_EQ(plan.ncolors_owned, 4);
  EXPECT_EQ(plan.ncolors, 4);
}

TEST_F(OpPlanColours, OfTheOwnElementsAreTheirOwnInAReduction) {
  const EdgeMesh mesh = EdgeMesh::chain(14);
  mesh.edges->core_size = 4;
  mesh.edges->size = 10;
  mesh.edges->exec_size = 4;
  PlannedLoop loop = mesh.changes(mesh.dat(mesh.cells));
  loop.part_size = 2;
  EXPECT_EQ(blockColours(*loop.plan()), (Ints{0, 1, 2, 3, 2, 3, 2}));
  double sum = 0.0;
  loop.add(op_arg_gbl(&sum, 1, "double", OP_INC));
  const op_plan& plan = *loop.plan();
  EXPECT_EQ(blockColours(plan), (Ints{0, 1, 2, 3, 2, 4, 5}));
  EXPECT_EQ(plan.ncolors_core, 2);
  EXPECT_EQ(plan.ncolors_owned, 4);
  EXPECT_EQ(plan.ncolors, 6);
}

TEST_F(OpPlanColours, OfAnEmptyCoreAreNone) {
  const EdgeMesh mesh = EdgeMesh::chain(6);
  mesh.edges->core_size = 0;
  PlannedLoop loop = mesh.changes(mesh.dat(mesh.cells));
  loop.part_size = 2;
  EXPECT_EQ(loop.plan()->ncolors_core, 0);
  EXPECT_EQ(loop.plan()->ncolors, 2);
}

// More than one pass for the core: the others wait until all its blocks have a colour.
TEST_F(OpPlanColours, OfALargeCoreAreItsOwn) {
  const EdgeMesh mesh = EdgeMesh::star(100);
  mesh.edges->core_size = 40;
  mesh.edges->size = 80;
  mesh.edges->exec_size = 20;
  double sum = 0.0;
  PlannedLoop loop = mesh.changes(mesh.dat(mesh.cells));
  loop.add(op_arg_gbl(&sum, 1, "double", OP_INC));
  loop.part_size = 1;
  const op_plan& plan = *loop.plan();
  EXPECT_EQ(plan.ncolors_core, 40);
  EXPECT_EQ(plan.ncolors_owned, 80);
  EXPECT_EQ(blockColours(plan), ascending(100));
}

}  // namespace
