#include "simulation/Factory.h"

#include <gtest/gtest.h>

#include <memory>

namespace {

TEST(SimulationFactory, MakesPlansThatTheCallerOwns) {
  const std::unique_ptr<api::IExecutionPlan> plan(
      simulation::Factory::createExecutionPlan(1.0, 2.0, 4.0));
  EXPECT_EQ(plan->getIncrement(), 2.0);
  EXPECT_FALSE(plan->execute(0.0));
  EXPECT_TRUE(plan->execute(1.0));
  EXPECT_FALSE(plan->execute(5.0));
}

}  // namespace
