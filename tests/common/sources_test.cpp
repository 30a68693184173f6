#include "common/sources.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>

#include "common/BaseException.h"
#include "support/TempDir.h"

namespace {

class Sources : public ::testing::Test {
 protected:
  Sources() { std::ofstream(input) << "text"; }

  std::string refusalOf(const std::string& name) const {
    testing::internal::CaptureStderr();
    EXPECT_THROW(common::requireNoSource(name, {{"study", folder + "/none"}, {"mesh", input}}),
                 BaseException);
    return testing::internal::GetCapturedStderr();
  }

  const support::TempDir dir;
  const std::string folder = dir.path();
  const std::string input = folder + "/input.txt";
};

TEST_F(Sources, MustNotBeWrittenByAnyName) {
  std::filesystem::create_hard_link(input, folder + "/hard");
  std::filesystem::create_symlink("input.txt", folder + "/soft");
  for (const std::string name : {"/input.txt", "/./input.txt", "/hard", "/soft"}) {
    EXPECT_EQ(refusalOf(folder + name),
              " -> file <" + folder + name + "> is the mesh itself: give another name\n");
  }
}

TEST_F(Sources, LeaveOtherNamesToBeWritten) {
  std::filesystem::copy(input, folder + "/copy");
  for (const std::string name : {"/copy", "/new", "/none", ""}) {
    EXPECT_NO_THROW(
        common::requireNoSource(folder + name, {{"study", folder + "/none"}, {"mesh", input}}));
  }
}

}  // namespace
