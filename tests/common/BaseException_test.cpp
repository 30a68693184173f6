#include "common/BaseException.h"

#include <gtest/gtest.h>

#include <string>

namespace {

TEST(BaseException, SaysTheSameWhateverTheCause) {
  const BaseException exception;
  const std::exception& seen = exception;
  EXPECT_STREQ(seen.what(), "... unfortunately RHEOMARK is killed!");
}

}  // namespace
