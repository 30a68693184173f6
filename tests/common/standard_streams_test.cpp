#include "common/standard_streams.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdlib>
#include <vector>

namespace {

bool isOpen(int descriptor) {
  return ::fcntl(descriptor, F_GETFD) != -1;
}

/// Ends the process: with 0 if a file that is opened afterwards is no standard stream.
[[noreturn]] void closeAndOpen(const std::vector<int>& closed) {
  for (const int descriptor : closed) ::close(descriptor);
  common::openStandardStreams();
  const bool areOpen = isOpen(0) && isOpen(1) && isOpen(2);
  const bool isWritable = ::write(1, "x", 1) == 1 && ::write(2, "x", 1) == 1;
  std::_Exit(areOpen && isWritable && ::open("/dev/null", O_RDONLY) > 2 ? 0 : 1);
}

TEST(StandardStreams, OpensThoseThatAreClosed) {
  for (const std::vector<int>& closed :
       {std::vector<int>{0, 1, 2}, {0}, {1}, {2}, {0, 2}, {1, 2}}) {
    EXPECT_EXIT(closeAndOpen(closed), testing::ExitedWithCode(0), "");
  }
}

TEST(StandardStreams, LeavesOpenOnesAndOtherFilesAlone) {
  EXPECT_EXIT(
      {
        const int next = ::dup(0);
        ::close(next);
        common::openStandardStreams();
        std::_Exit(isOpen(next) ? 1 : 0);
      },
      testing::ExitedWithCode(0), "");
}

}  // namespace
