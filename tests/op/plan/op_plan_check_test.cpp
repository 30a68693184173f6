#include <gtest/gtest.h>

#include <climits>
#include <cstdint>
#include <string>
#include <vector>

#include "op/plan/op_plan.h"
#include "op/plan/op_plan_test_support.h"

namespace {

using op_test::EdgeMesh;
using op_test::outputOf;
using op_test::PlannedLoop;

// Eight edges in three blocks. The tests damage a plan, look at the report and mend it.
class OpPlanCheck : public op_test::PlanTest {
 protected:
  EdgeMesh* mesh_ = nullptr;
  op_plan plan_{};

  void SetUp() override {
    PlanTest::SetUp();
    mesh_ = new EdgeMesh(9, {0, 1, 1, 2, 2, 3, 3, 4, 4, 5, 5, 6, 6, 7, 7, 8});
    PlannedLoop loop = mesh_->changes(mesh_->dat(mesh_->cells));
    loop.part_size = 3;
    plan_ = *loop.plan();
  }
  void TearDown() override {
    PlanTest::TearDown();
    delete mesh_;
  }

  std::string check() const {
    return outputOf([&] { op_plan_check(plan_, plan_.nargs_staged, plan_.inds_staged); });
  }
  template <class T>
  std::string checkWith(T& value, T wrong) const {
    const T right = value;
    value = wrong;
    const std::string output = check();
    value = right;
    return output;
  }
  static std::string error(const std::string& item) {
    return " *** OP_plan_check: " + item + " error \n";
  }
};

TEST_F(OpPlanCheck, IsSilentAboutAConsistentPlan) {
  OP_diags = 6;
  EXPECT_EQ(check(), "");
}

TEST_F(OpPlanCheck, ConfirmsEachItemAboveLevelSix) {
  OP_diags = 7;
  EXPECT_EQ(check(),
            " *** OP_plan_check: nelems   OK \n"
            " *** OP_plan_check: offset   OK \n"
            " *** OP_plan_check: blkmap   OK \n"
            " *** OP_plan_check: ind_offs OK \n"
            " *** OP_plan_check: ind_maps OK \n"
            " *** OP_plan_check: maps     OK \n");
}

TEST_F(OpPlanCheck, ConfirmsTheOtherItems) {
  OP_diags = 7;
  EXPECT_EQ(checkWith(plan_.blkmap[0], 2),
            " *** OP_plan_check: nelems   OK \n"
            " *** OP_plan_check: offset   OK \n"
            " *** OP_plan_check: blkmap error \n"
            " *** OP_plan_check: ind_offs OK \n"
            " *** OP_plan_check: ind_maps OK \n"
            " *** OP_plan_check: maps     OK \n");
}

TEST_F(OpPlanCheck, IsMadeOfEachNewPlan) {
  PlannedLoop loop = mesh_->changes(mesh_->dat(mesh_->cells, 2));
  OP_diags = 7;
  EXPECT_NE(outputOf([&] { loop.plan(); }).find(" *** OP_plan_check: maps     OK \n"),
            std::string::npos);
}

TEST_F(OpPlanCheck, FindsElementsThatDoNotAddUp) {
  EXPECT_EQ(checkWith(plan_.nelems[2], 1), error("nelems"));
  EXPECT_EQ(checkWith(plan_.nelems[2], 3), error("nelems"));
  EXPECT_EQ(checkWith(plan_.nelems[2], INT_MAX), error("nelems"));
}

TEST_F(OpPlanCheck, CountsTheExtraElementsOfALoopThatChangesData) {
  mesh_->edges->size = 6;
  EXPECT_EQ(check(), error("nelems"));
  mesh_->edges->exec_size = 2;
  EXPECT_EQ(check(), "");
  plan_.optflags[0] = 0;
  EXPECT_EQ(check(), "");
  plan_.accs[1] = OP_READ;
  EXPECT_EQ(check(), error("nelems"));
}

TEST_F(OpPlanCheck, FindsOffsetsThatDoNotFollow) {
  EXPECT_EQ(checkWith(plan_.offset[0], -1), error("offset"));
  EXPECT_EQ(checkWith(plan_.nelems[1], 4),
            error("nelems") + error("offset") + " *** OP_plan_check: 2 maps error(s) \n");
}

TEST_F(OpPlanCheck, FindsBlocksThatAreMissingInTheMap) {
  EXPECT_EQ(checkWith(plan_.blkmap[1], plan_.blkmap[0]), error("blkmap"));
  EXPECT_EQ(checkWith(plan_.blkmap[1], 3), error("blkmap"));
}

TEST_F(OpPlanCheck, KeepsThePlan) {
  const std::vector<int> before(plan_.blkmap, plan_.blkmap + 3);
  EXPECT_EQ(before, (std::vector<int>{0, 2, 1}));
  check();
  EXPECT_EQ(std::vector<int>(plan_.blkmap, plan_.blkmap + 3), before);
}

TEST_F(OpPlanCheck, FindsListOffsetsThatDoNotFollow) {
  // A block whose list leaves the storage is not looked at any further.
  EXPECT_EQ(checkWith(plan_.ind_offs[1], INT_MAX), error("ind_offs") + error("ind_maps"));
  EXPECT_EQ(checkWith(plan_.ind_offs[1], -1), error("ind_offs") + error("ind_maps"));
  EXPECT_EQ(checkWith(plan_.ind_sizes[0], INT_MAX), error("ind_offs") + error("ind_maps"));
  EXPECT_EQ(checkWith(plan_.ind_sizes[2], 2), " *** OP_plan_check: 1 maps error(s) \n");
}

TEST_F(OpPlanCheck, FindsListsThatDoNotRise) {
  EXPECT_EQ(checkWith(plan_.ind_maps[0][1], 2),
            error("ind_maps") + " *** OP_plan_check: 2 maps error(s) \n");
}

TEST_F(OpPlanCheck, FindsElementsOutsideTheTargetSet) {
  EXPECT_EQ(checkWith(plan_.ind_maps[0][0], -1),
            error("ind_maps") + " *** OP_plan_check: 1 maps error(s) \n");
  EXPECT_EQ(checkWith(plan_.ind_maps[0][10], 9),
            error("ind_maps") + " *** OP_plan_check: 1 maps error(s) \n");
  mesh_->cells->size = 8;
  EXPECT_EQ(check(), error("ind_maps"));
  mesh_->cells->nonexec_size = 1;
  EXPECT_EQ(check(), "");
}

TEST_F(OpPlanCheck, FindsPlacesThatLeadElsewhere) {
  std::int16_t& place = plan_.loc_maps[1][4];
  for (const int wrong : {1, -1, 4}) {
    EXPECT_EQ(checkWith(place, static_cast<std::int16_t>(wrong)),
              " *** OP_plan_check: 1 maps error(s) \n");
  }
  mesh_->table[9] = 0;
  mesh_->table[2] = 0;
  EXPECT_EQ(check(), " *** OP_plan_check: 2 maps error(s) \n");
  plan_.optflags[1] = 0;
  EXPECT_EQ(check(), " *** OP_plan_check: 1 maps error(s) \n") << "one argument is not in use";
}

}  // namespace
