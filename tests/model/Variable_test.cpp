#include "model/Variable.h"

#include <gtest/gtest.h>

#include "model/reports.h"

namespace model {
namespace {

const Variable STEP(static_cast<VariableID>(4), "Step", "time step", true, DataType::Double, 1);

TEST(Variable, TellsWhatItWasGiven) {
  EXPECT_EQ(STEP.getID(), static_cast<VariableID>(4));
  EXPECT_EQ(STEP.getName(), "Step");
  EXPECT_EQ(STEP.getDescription(), "time step");
  EXPECT_EQ(STEP.getType(), "double");
  EXPECT_EQ(STEP.getSize(), 1);
  EXPECT_TRUE(STEP.isSimulationOnly());
  EXPECT_FALSE(STEP.isSetupOnly());
  EXPECT_FALSE(STEP.isSolution());
}

TEST(Variable, HasItsNameForAPath) {
  EXPECT_EQ(STEP.getH5Path(), "Step");
}

TEST(Variable, PrintsPathTypeAndSize) {
  EXPECT_EQ(reports::outputOf([] { STEP.print(); }),
            "Variable: Step (dtype=double)\n -> with size 1\n");
}

}  // namespace
}  // namespace model
