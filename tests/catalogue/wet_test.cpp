#include "catalogue/wet.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace model {
namespace {

TEST(IsWet, TheDepthIsAboveTheMinimumStrictly) {
  constexpr double MINIMUM = 0.01;
  EXPECT_TRUE(isWet(0.02, MINIMUM));
  EXPECT_TRUE(isWet(std::nextafter(MINIMUM, 1.0), MINIMUM));
  EXPECT_FALSE(isWet(MINIMUM, MINIMUM));
  EXPECT_FALSE(isWet(0.0, MINIMUM));
  EXPECT_FALSE(isWet(-1.0, MINIMUM));
}

TEST(IsWet, ADepthThatIsNoNumberIsDry) {
  EXPECT_FALSE(isWet(std::numeric_limits<double>::quiet_NaN(), 0.01));
}

}  // namespace
}  // namespace model
