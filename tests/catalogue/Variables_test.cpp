#include "catalogue/Variables.h"

#include <gtest/gtest.h>

namespace model {
namespace {

TEST(Variables, HaveNoMembers) {
  EXPECT_TRUE(VariableProps.empty());
  EXPECT_TRUE(VariableDescription.empty());
  EXPECT_TRUE(VariableSimulation.empty());
}

}  // namespace
}  // namespace model
