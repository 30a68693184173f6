#include "simulation/ExecutionPlan.h"

#include <gtest/gtest.h>

#include <limits>
#include <memory>
#include <vector>

namespace {

using simulation::ExecutionPlan;

/// The times at which a plan fires, asked in the given order.
std::vector<double> firings(ExecutionPlan plan, const std::vector<double>& times) {
  std::vector<double> fired;
  for (const double time : times) {
    if (plan.execute(time)) fired.push_back(time);
  }
  return fired;
}

/// A step of 100 s after a plan has been asked about it.
double clipped(ExecutionPlan& plan, double time, bool fires) {
  double step = 100.0;
  EXPECT_EQ(plan.execute(time, step), fires) << time;
  return step;
}

TEST(ExecutionPlan, WithoutDurationFiresOnce) {
  EXPECT_EQ(firings({0.0, 0.0, 0.0}, {0.0, 0.0, 0.5, 1.0}), (std::vector<double>{0.0}));
  EXPECT_EQ(firings({3.0, 7.0, 3.0}, {2.0, 3.0, 3.0, 10.0}), (std::vector<double>{3.0}));
}

TEST(ExecutionPlan, WithoutIncrementFiresOnEveryCallInsideItsWindow) {
  EXPECT_EQ(firings({1.0, 0.0, 5.0}, {0.5, 1.0, 1.0, 1.25, 5.0, 5.5}),
            (std::vector<double>{1.0, 1.0, 1.25, 5.0}));
}

TEST(ExecutionPlan, WithIncrementFiresOnItsGrid) {
  EXPECT_EQ(firings({0.0, 2.0, 4.0}, {0.0, 1.0, 2.0, 4.5}), (std::vector<double>{0.0, 2.0}));
}

TEST(ExecutionPlan, IncludesBothEndsOfItsWindow) {
  EXPECT_EQ(firings({1.0, 2.0, 5.0}, {0.0, 1.0, 3.0, 5.0, 7.0}),
            (std::vector<double>{1.0, 3.0, 5.0}));
}

TEST(ExecutionPlan, ALateFiringDoesNotShiftTheGrid) {
  EXPECT_EQ(firings({0.0, 2.0, 100.0}, {0.5, 1.9, 2.0, 3.5, 4.0}),
            (std::vector<double>{0.5, 2.0, 4.0}));
}

TEST(ExecutionPlan, CatchesUpWithOneFiringPerCall) {
  EXPECT_EQ(firings({0.0, 1.0, 100.0}, {3.25, 3.25, 3.25, 3.25, 3.25, 4.0}),
            (std::vector<double>{3.25, 3.25, 3.25, 3.25, 4.0}));
}

TEST(ExecutionPlan, WithANegativeIncrementFiresOnEveryCall) {
  EXPECT_EQ(firings({0.0, -1.0, 5.0}, {0.0, 1.0, 2.0}), (std::vector<double>{0.0, 1.0, 2.0}));
}

TEST(ExecutionPlan, ClipsTheStepToTheNextFiring) {
  ExecutionPlan plan(0.0, 2.0, 10.0);
  EXPECT_EQ(clipped(plan, 0.0, true), 2.0);
  EXPECT_EQ(clipped(plan, 0.5, false), 1.5);
  EXPECT_EQ(clipped(plan, 2.0, true), 2.0);
}

TEST(ExecutionPlan, LeavesAShorterStepAlone) {
  ExecutionPlan plan(0.0, 2.0, 10.0);
  double step = 0.25;
  EXPECT_TRUE(plan.execute(0.0, step));
  EXPECT_EQ(step, 0.25);
  EXPECT_FALSE(plan.execute(0.25, step));
  EXPECT_EQ(step, 0.25);
}

TEST(ExecutionPlan, ClipsBeforeAndBehindItsWindowToo) {
  ExecutionPlan plan(1.0, 2.0, 4.0);
  EXPECT_EQ(clipped(plan, 0.25, false), 0.75);
  EXPECT_EQ(clipped(plan, 1.0, true), 2.0);
  EXPECT_EQ(clipped(plan, 4.5, false), -1.5);
}

TEST(ExecutionPlan, AFinishedFiringClipsToWhatIsNegative) {
  ExecutionPlan plan(1.0, 7.0, 1.0);
  EXPECT_EQ(clipped(plan, 1.0, true), 7.0);
  EXPECT_EQ(clipped(plan, 1.0, false), 0.0);
  EXPECT_EQ(clipped(plan, 3.0, false), -2.0);
}

TEST(ExecutionPlan, ThatFiresOnEveryCallClipsToItsIncrementOfZero) {
  ExecutionPlan plan(0.0, 0.0, 5.0);
  EXPECT_EQ(clipped(plan, 1.0, true), 0.0);
}

TEST(ExecutionPlan, AStepThatIsNotANumberIsReplaced) {
  ExecutionPlan plan(0.0, 2.0, 10.0);
  double step = std::numeric_limits<double>::quiet_NaN();
  plan.execute(0.0, step);
  EXPECT_EQ(step, 2.0);
}

TEST(ExecutionPlan, CheckingCountsAsAFiring) {
  ExecutionPlan plan(0.0, 2.0, 10.0);
  EXPECT_TRUE(plan.checkExecution(0.0));
  EXPECT_FALSE(plan.execute(0.0));
  EXPECT_TRUE(plan.execute(2.0));
  EXPECT_FALSE(plan.checkExecution(2.0));
}

TEST(ExecutionPlan, TellsItsIncrement) {
  EXPECT_EQ(ExecutionPlan(0.0, 2.0, 10.0).getIncrement(), 2.0);
  EXPECT_EQ(ExecutionPlan(3.0, 7.0, 3.0).getIncrement(), 7.0);
}

TEST(SimulationFactory, MakesPlansThatTheCallerOwns) {
  const std::unique_ptr<api::IExecutionPlan> plan(
      simulation::Factory::createExecutionPlan(1.0, 2.0, 4.0));
  EXPECT_EQ(plan->getIncrement(), 2.0);
  EXPECT_FALSE(plan->execute(0.0));
  EXPECT_TRUE(plan->execute(1.0));
  EXPECT_FALSE(plan->execute(5.0));
}

}  // namespace
