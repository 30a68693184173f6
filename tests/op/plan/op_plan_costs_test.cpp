#include "op/plan/op_plan_costs.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "op/plan/op_plan_test_support.h"

namespace {

using op_test::EdgeMesh;
using op_test::outputOf;
using op_test::PlannedLoop;

class OpPlanCosts : public op_test::PlanTest {
 protected:
  // Two blocks of three edges; a block reaches four cells.
  static PlannedLoop loopOf(const EdgeMesh& mesh) {
    PlannedLoop loop = mesh.changes(mesh.dat(mesh.cells, 3));
    loop.part_size = 3;
    return loop;
  }
};

TEST_F(OpPlanCosts, SharedMemoryRoundsEachListUpTo64Bytes) {
  const EdgeMesh mesh = EdgeMesh::chain(7);
  PlannedLoop loop = loopOf(mesh);
  loop.add(mesh.of(mesh.dat(mesh.cells), 0, OP_READ), 1);
  const op_plan& plan = *loop.plan();
  ASSERT_EQ(plan.ncolors, 2);
  // Four cells of 24 bytes, three of 8 bytes; the last block has one edge, its colour is 0.
  EXPECT_EQ(plan.nsharedCol[0], 128 + 64);
  EXPECT_EQ(plan.nsharedCol[1], 128 + 64);
  EXPECT_EQ(plan.nshared, 192);
}

TEST_F(OpPlanCosts, SharedMemoryIsThatOfTheLargestBlockOfAColour) {
  const EdgeMesh mesh = EdgeMesh::chain(4);
  PlannedLoop loop = loopOf(mesh);
  const op_plan& plan = *loop.plan();
  ASSERT_EQ(plan.ncolors, 2);
  EXPECT_EQ(plan.nsharedCol[0], 128);
  EXPECT_EQ(plan.nsharedCol[1], 64);
  EXPECT_EQ(plan.nshared, 128);
}

TEST_F(OpPlanCosts, TransferCountsListsAndDirectData) {
  const EdgeMesh mesh = EdgeMesh::chain(6);
  PlannedLoop loop = loopOf(mesh);
  loop.add(op_arg_dat(mesh.dat(mesh.edges), -1, nullptr, 1, "double", OP_READ));
  loop.add(op_arg_dat(mesh.dat(mesh.edges, 2), -1, nullptr, 2, "double", OP_RW));
  op_arg absent = op_arg_dat(mesh.dat(mesh.edges), -1, nullptr, 1, "double", OP_READ);
  absent.opt = 0;
  loop.add(absent);
  const op_plan& plan = *loop.plan();
  // Per block: 2 columns of 3 places, 3 edges of 8 bytes, 3 of 16 bytes twice; 4 cells of 24 bytes
  // twice and their numbers.
  EXPECT_EQ(plan.transfer, 2.0F * (12 + 24 + 96 + 192 + 16));
  // Cells 0 to 3 touch the first line of 128 bytes; cells 3 to 6 the first and, from 120 on, the
  // second.
  EXPECT_EQ(plan.transfer2, 2.0F * (12 + 24 + 96 + 16) + 256.0F + 512.0F);
}

TEST_F(OpPlanCosts, TransferCountsALineOnceAndAnElementOverTwoLinesTwice) {
  const EdgeMesh mesh(40, {0, 39, 5, 6});
  PlannedLoop loop;
  loop.set = mesh.edges;
  const op_dat dat = mesh.dat(mesh.cells, 3);
  loop.add(mesh.of(dat, 0, OP_READ), 0);
  loop.add(mesh.of(dat, 1, OP_READ), 0);
  const op_plan& plan = *loop.plan();
  // Cells 0, 5 (bytes 120 to 143), 6 and 39 touch the lines 0, 0 and 1, 1, 7.
  EXPECT_EQ(plan.transfer2, 8.0F + 3 * 128.0F + 16.0F);
}

TEST_F(OpPlanCosts, TransferCountsAChangedListOfNumbersTwice) {
  const EdgeMesh mesh = EdgeMesh::chain(6);
  PlannedLoop loop = loopOf(mesh);
  for (op_arg& arg : loop.args) arg.acc = OP_RW;
  EXPECT_EQ(loop.plan()->transfer, 2.0F * (12 + 192 + 32));
}

TEST_F(OpPlanCosts, TransferIsNotEstimatedForSomeStagings) {
  const EdgeMesh mesh = EdgeMesh::chain(6);
  for (const int staging : {OP_STAGED_INCREMENTS, OP_ONE_BLOCK}) {
    PlannedLoop loop = loopOf(mesh);
    loop.name = std::to_string(staging);
    EXPECT_EQ(loop.plan(staging)->transfer, 0.0F);
    EXPECT_EQ(loop.plan(staging)->transfer2, 0.0F);
  }
}

TEST_F(OpPlanCosts, AreReportedAboveLevelOne) {
  const EdgeMesh mesh = EdgeMesh::chain(6000);
  PlannedLoop loop = loopOf(mesh);
  loop.part_size = 3000;
  OP_diags = 2;
  // A block has 3001 cells of 24 bytes: 72064 bytes when rounded up. It needs 12000 bytes of
  // places, 144048 bytes of cells and 12004 bytes of numbers; the lines of its cells are 563, or
  // 188 of three times the length.
  EXPECT_EQ(outputOf([&] { loop.plan(); }),
            " new execution plan #0 for kernel loop\n"
            " number of blocks       = 2 \n"
            " number of block colors = 2 \n"
            " maximum block size     = 3000 \n"
            " average thread colors  = 2.00 \n"
            " shared memory required =  70.38 KB, 70.38 KB\n"
            " average data reuse     = 2.00 \n"
            " data transfer (used)   = 0.32 MB \n"
            " data transfer (total)  = 0.32 MB \n"
            " SoA/AoS transfer ratio = 1.00 \n\n");
}

TEST_F(OpPlanCosts, RatioComparesLinesOfOneComponentWithLinesOfAll) {
  const EdgeMesh mesh(1000, {0, 999});
  PlannedLoop loop = mesh.changes(mesh.dat(mesh.cells, 4), OP_READ);
  OP_diags = 2;
  // Two cells: 4 bytes of places, 8 of numbers, two lines of 128 or of 512 bytes.
  EXPECT_NE(outputOf([&] { loop.plan(); }).find(" SoA/AoS transfer ratio = 3.87 \n\n"),
            std::string::npos);
}

}  // namespace
