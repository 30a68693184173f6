#include "h5/journal/WriterLock.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <optional>
#include <string>

#include "h5/journal/Refused.h"
#include "support/Process.h"
#include "support/TempDir.h"

namespace {

using h5::Descriptor;
using h5::Refused;
using h5::WriterLock;
using ::testing::HasSubstr;

class WriterLockTest : public ::testing::Test {
 protected:
  WriterLockTest() { support::writeFile(name, ""); }

  const support::TempDir dir;
  const std::string name = dir.file("data");
};

TEST_F(WriterLockTest, IsSharedWithinAProcess) {
  std::optional<WriterLock> first(std::in_place, Descriptor(name, O_RDWR));
  const WriterLock second(Descriptor(name, O_RDWR));
  first.reset();
  EXPECT_EQ(Descriptor(name, O_RDWR).lockForWriting(), Descriptor::Lock::HeldByAnother);
}

TEST_F(WriterLockTest, EndsWithTheProcessHoweverItEnds) {
  int ready[2];
  ASSERT_EQ(::pipe(ready), 0);
  const pid_t other = ::fork();
  if (other == 0) {
    const WriterLock lock(Descriptor(name, O_RDWR));
    if (::write(ready[1], "!", 1) == 1) ::pause();
    ::_exit(1);
  }
  char sign = 0;
  ASSERT_EQ(::read(ready[0], &sign, 1), 1);
  try {
    const WriterLock lock(Descriptor(name, O_RDWR));
    ADD_FAILURE() << "not refused";
  } catch (const Refused& refusal) {
    EXPECT_THAT(refusal.what(), HasSubstr("another process is writing to file " + name));
  }
  ::kill(other, SIGKILL);
  ::waitpid(other, nullptr, 0);
  EXPECT_NO_THROW(WriterLock(Descriptor(name, O_RDWR)));
  ::close(ready[0]);
  ::close(ready[1]);
}

// A file that is open for reading cannot be locked so: as where the file system has no locks.
TEST_F(WriterLockTest, GoesOnWithANoteWhereThereAreNoLocks) {
  ::testing::internal::CaptureStderr();
  { const WriterLock lock(Descriptor(name, O_RDONLY)); }
  EXPECT_THAT(::testing::internal::GetCapturedStderr(),
              HasSubstr("note: file " + name + " lies where files cannot be locked"));
}

}  // namespace
