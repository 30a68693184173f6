#include "op/plan/op_plan.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

#include "op/core/op_rt_support.h"
#include "op/plan/op_plan_test_support.h"

namespace {

using op_test::EdgeMesh;
using op_test::outputOf;
using op_test::PlannedLoop;
using testing::HasSubstr;
using testing::Not;

class OpPlan : public op_test::PlanTest {};

TEST_F(OpPlan, RecordsTheLoop) {
  const EdgeMesh mesh = EdgeMesh::chain(6);
  const op_dat dat = mesh.dat(mesh.cells);
  PlannedLoop loop = mesh.changes(dat);
  loop.add(op_arg_dat(mesh.dat(mesh.edges), -1, nullptr, 1, "double", OP_READ));
  loop.part_size = 4;
  const op_plan& plan = *loop.plan();
  EXPECT_STREQ(plan.name, "loop");
  EXPECT_EQ(plan.set, mesh.edges);
  EXPECT_EQ(plan.nargs, 3);
  EXPECT_EQ(plan.ninds, 1);
  EXPECT_EQ(plan.nargs_staged, 1);
  EXPECT_EQ(plan.part_size, 4);
  EXPECT_EQ(plan.count, 1);
  const std::vector<op_map> maps{mesh.map, mesh.map, nullptr};
  const std::vector<int> idxs{0, 1, -1};
  const std::vector<int> staged{0, 0, -1};
  for (int m = 0; m < 3; ++m) {
    const auto i = static_cast<std::size_t>(m);
    EXPECT_EQ(plan.maps[m], maps[i]);
    EXPECT_EQ(plan.dats[m], loop.args[i].dat);
    EXPECT_EQ(plan.idxs[m], idxs[i]);
    EXPECT_EQ(plan.optflags[m], 1);
    EXPECT_EQ(plan.accs[m], m < 2 ? OP_INC : OP_READ);
    EXPECT_EQ(plan.inds_staged[m], staged[i]);
  }
  EXPECT_EQ(OP_plan_index, 1);
  EXPECT_EQ(OP_plan_max, 10);
}

TEST_F(OpPlan, OfTheSameSignatureIsFoundAgain) {
  const EdgeMesh mesh = EdgeMesh::chain(6);
  PlannedLoop loop = mesh.changes(mesh.dat(mesh.cells));
  const op_plan* const first = loop.plan();
  for (const int level : {3, 4}) {
    OP_diags = level;
    const op_plan* again = nullptr;
    EXPECT_EQ(outputOf([&] { again = loop.plan(); }), level > 3 ? " old execution plan #0\n" : "");
    EXPECT_EQ(again, first);
    EXPECT_EQ(again->count, level - 1);
  }
  EXPECT_EQ(OP_plan_index, 1);
}

TEST_F(OpPlan, IsSharedByDatsOfTheSameShapeEvenIfTheFirstOneIsGone) {
  const EdgeMesh mesh = EdgeMesh::chain(6);
  const op_dat first = mesh.dat(mesh.cells, 2);
  const op_plan* const plan = mesh.changes(first).plan();
  op_free_dat_temp_char(first);
  EXPECT_EQ(mesh.changes(mesh.dat(mesh.cells, 2)).plan(), plan);
}

TEST_F(OpPlan, OfAnotherDimIsAnother) {
  const EdgeMesh mesh = EdgeMesh::chain(6);
  mesh.changes(mesh.dat(mesh.cells, 1)).plan();
  mesh.changes(mesh.dat(mesh.cells, 2)).plan();
  EXPECT_EQ(OP_plan_index, 2);
  EXPECT_EQ(OP_plans[0].count + OP_plans[1].count, 2);
}

TEST_F(OpPlan, OfAnotherSignatureIsAnother) {
  const EdgeMesh mesh = EdgeMesh::chain(6);
  const EdgeMesh other = EdgeMesh::chain(6);
  const op_dat dat = mesh.dat(mesh.cells);
  const PlannedLoop loop = mesh.changes(dat);
  std::vector<PlannedLoop> others(8, loop);
  others[0].name = "another loop";
  others[1] = other.changes(other.dat(other.cells));
  others[2].part_size = 128;
  others[3].args[0].acc = OP_READ;
  others[4].args[0].idx = 1;
  others[5].add(op_arg_dat(mesh.dat(mesh.edges), -1, nullptr, 1, "double", OP_READ));
  others[6].inds[1] = 1;
  double sum = 0.0;
  others[7].add(op_arg_gbl(&sum, 1, "double", OP_INC));
  PlannedLoop(loop).plan();
  for (PlannedLoop& each : others) each.plan();
  EXPECT_EQ(OP_plan_index, 9);
}

TEST_F(OpPlan, ListGrowsByTen) {
  const EdgeMesh mesh = EdgeMesh::chain(6);
  const op_dat dat = mesh.dat(mesh.cells);
  std::vector<PlannedLoop> loops(11, mesh.changes(dat));
  for (std::size_t i = 0; i < loops.size(); ++i) {
    loops[i].name = "loop " + std::to_string(i);
    loops[i].plan();
  }
  EXPECT_EQ(OP_plan_index, 11);
  EXPECT_EQ(OP_plan_max, 20);
  EXPECT_STREQ(OP_plans[0].name, "loop 0");
  EXPECT_STREQ(OP_plans[10].name, "loop 10");
  EXPECT_EQ(OP_plans[0].nblocks, 1);
}

TEST_F(OpPlan, IsAnnouncedAboveLevelOne) {
  const EdgeMesh mesh = EdgeMesh::chain(6);
  PlannedLoop loop = mesh.changes(mesh.dat(mesh.cells));
  EXPECT_EQ(outputOf([&] { loop.plan(); }), "");
  loop.name = "fluxes";
  OP_diags = 1;
  EXPECT_EQ(outputOf([&] { loop.plan(OP_ONE_BLOCK); }), "");
  loop.name = "sources";
  OP_diags = 2;
  EXPECT_THAT(outputOf([&] { loop.plan(); }),
              HasSubstr(" new execution plan #2 for kernel sources\n number of blocks       = 1 "));
}

TEST_F(OpPlan, EntriesDifferInTheStaging) {
  const EdgeMesh mesh = EdgeMesh::chain(6);
  const op_dat dat = mesh.dat(mesh.cells);
  const int count = 2;
  PlannedLoop loop = mesh.changes(dat, OP_RW);
  auto* const args = loop.args.data();
  auto* const inds = loop.inds.data();
  EXPECT_EQ(op_plan_get("a", mesh.edges, 0, count, args, 1, inds)->nargs_staged, 1);
  EXPECT_EQ(op_plan_get_stage("b", mesh.edges, 0, count, args, 1, inds, 1)->nargs_staged, 0);
  EXPECT_NE(op_plan_get_stage_upload("c", mesh.edges, 0, count, args, 1, inds, 3, 1)->col_reord,
            nullptr);
}

TEST_F(OpPlan, BooksItsTimeForTheLoop) {
  const EdgeMesh mesh = EdgeMesh::chain(50000);
  const double before = OP_plan_time;
  op_timing_realloc(0);
  OP_kernels[3].name = "loop";
  PlannedLoop loop = mesh.changes(mesh.dat(mesh.cells));
  loop.plan();
  EXPECT_GT(OP_plan_time, before);
  EXPECT_GT(OP_kernels[3].plan_time, 0.0F);
  EXPECT_EQ(OP_kernels[0].plan_time, 0.0F);
  const double built = OP_plan_time;
  loop.plan();
  EXPECT_EQ(OP_plan_time, built);
}

TEST_F(OpPlan, OfALoopWithoutArgumentsHasOneColour) {
  PlannedLoop loop;
  loop.set = op_decl_set(600, "cells");
  const op_plan& plan = *loop.plan();
  EXPECT_EQ(plan.nblocks, 3);
  EXPECT_EQ(plan.ncolors, 1);
  EXPECT_EQ(plan.nthrcol[2], 1);
}

TEST_F(OpPlan, OfAnEmptySetHasNoBlocks) {
  const EdgeMesh mesh(3, {});
  for (const int staging : {1, 2, 3, 4}) {
    PlannedLoop loop = mesh.changes(mesh.dat(mesh.cells));
    loop.name = "staging " + std::to_string(staging);
    OP_diags = 2;
    const std::string output = outputOf([&] { loop.plan(staging); });
    const op_plan& plan = OP_plans[OP_plan_index - 1];
    EXPECT_EQ(plan.nblocks, staging == OP_ONE_BLOCK ? 1 : 0);
    EXPECT_EQ(plan.ncolors, 0);
    EXPECT_THAT(output, Not(HasSubstr("error")));
    EXPECT_THAT(output, HasSubstr(" shared memory required = \n average data reuse     = 0.00 \n"));
  }
}

TEST_F(OpPlan, SurvivesTheEndOfTheRuntimeUntilItsOwn) {
  const EdgeMesh mesh = EdgeMesh::chain(6);
  PlannedLoop loop = mesh.changes(mesh.dat(mesh.cells));
  loop.plan();
  op_exit();
  EXPECT_EQ(OP_plan_index, 1);
  EXPECT_EQ(OP_plans[0].offset[0], 0);
  op_rt_exit();
  EXPECT_EQ(OP_plans, nullptr);
  EXPECT_EQ(OP_plan_index, 0);
  EXPECT_EQ(OP_plan_max, 0);
}

}  // namespace
