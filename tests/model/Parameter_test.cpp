#include "model/Parameter.h"

#include <gtest/gtest.h>

#include "model/reports.h"

namespace model {
namespace {

const Parameter DERIVED(ParameterID::InvGravity, "InvGravity", "1/g", true, false, DataType::Double,
                        1);
const Parameter INTS(ParameterID::BedloadInts, "BedloadInts", "switches", false, true,
                     DataType::Int, 2);

TEST(Parameter, TellsWhatItWasGiven) {
  EXPECT_EQ(INTS.getID(), ParameterID::BedloadInts);
  EXPECT_EQ(INTS.getName(), "BedloadInts");
  EXPECT_EQ(INTS.getDescription(), "switches");
  EXPECT_EQ(INTS.getType(), "int");
  EXPECT_EQ(INTS.getSize(), 2);
  EXPECT_FALSE(INTS.isSimulationOnly());
  EXPECT_TRUE(INTS.isSetupOnly());
}

TEST(Parameter, IsNeverPartOfTheSolution) {
  EXPECT_TRUE(DERIVED.isSimulationOnly());
  EXPECT_FALSE(DERIVED.isSolution());
  EXPECT_FALSE(INTS.isVariableInTime());
}

TEST(Parameter, StandsInAGroupOfItsOwn) {
  EXPECT_EQ(DERIVED.getH5Path(), "Parameters/InvGravity");
}

TEST(Parameter, PrintsPathTypeAndSize) {
  EXPECT_EQ(reports::outputOf([] { INTS.print(); }),
            "Parameter: Parameters/BedloadInts (dtype=int)\n -> with size 2\n");
}

}  // namespace
}  // namespace model
