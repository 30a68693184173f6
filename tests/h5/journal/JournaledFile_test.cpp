#include "h5/journal/JournaledFile.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/stat.h>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <future>
#include <iterator>
#include <optional>
#include <string>
#include <system_error>
#include <vector>

#include "dataio/failures.h"
#include "h5/SystemCalls.h"
#include "h5/journal/Refused.h"
#include "support/FileSizeLimit.h"
#include "support/Process.h"
#include "support/TempDir.h"

namespace {

using h5::JournaledFile;
using h5::PAGE_SIZE;
using h5::Refused;

constexpr int NEW_FILE = O_RDWR | O_CREAT | O_TRUNC;

class JournaledFileTest : public ::testing::Test {
 protected:
  JournaledFileTest() { support::writeFile(name, before); }

  static void write(JournaledFile& file, std::uint64_t offset, const std::string& bytes) {
    file.write(offset, bytes.data(), bytes.size());
  }
  static std::string contents(const JournaledFile& file) {
    std::string bytes(file.end(), '#');
    file.read(0, bytes.data(), bytes.size());
    return bytes;
  }
  std::string onDisk() const { return support::readFile(name); }
  /// Not the contents: they are long.
  static void expectSame(const std::string& actual, const std::string& expected) {
    const auto place =
        std::mismatch(actual.begin(), actual.end(), expected.begin(), expected.end());
    EXPECT_TRUE(actual == expected) << actual.size() << " bytes instead of " << expected.size()
                                    << ", different from byte " << place.first - actual.begin();
  }
  std::ptrdiff_t filesInFolder() const {
    return std::distance(std::filesystem::directory_iterator(dir.path()), {});
  }
  bool hasJournal() const { return std::filesystem::exists(journal); }

  /// Leaves file and journal as a process does that is killed within the commit of `after`.
  void leaveTorn() {
    const auto change = [&] {
      JournaledFile file(name, O_RDWR);
      write(file, 0, after);
      file.commit();
    };
    for (int n = 0; onDisk()[0] != after[0]; ++n) {
      support::writeFile(name, before);
      std::filesystem::remove(journal);
      ASSERT_EQ(systemCalls::killedInCall(n, change), systemCalls::End::InCall);
    }
    ASSERT_TRUE(onDisk() != after);
    ASSERT_TRUE(hasJournal());
  }

  const std::string before = std::string(3 * PAGE_SIZE, 'a') + "tail";
  const std::string after = std::string(3 * PAGE_SIZE, 'b') + "TAIL and more";
  const support::TempDir dir;
  const std::string name = dir.file("data");
  const std::string journal = dir.file("data.rheomark-journal");
};

// -- changes --------------------------------------------------------------------------------------

TEST_F(JournaledFileTest, KeepsWhatOverwritesCommittedBytesInMemory) {
  JournaledFile file(name, O_RDWR);
  write(file, PAGE_SIZE - 2, "1234");
  expectSame(onDisk(), before);
  std::string expected = before;
  expected.replace(PAGE_SIZE - 2, 4, "1234");
  expectSame(contents(file), expected);
  file.commit();
  expectSame(onDisk(), expected);
  EXPECT_FALSE(hasJournal());
}

TEST_F(JournaledFileTest, ReadsAPartOfAChange) {
  JournaledFile file(name, O_RDWR);
  write(file, PAGE_SIZE - 2, "1234");
  for (std::uint64_t offset = PAGE_SIZE - 4; offset < PAGE_SIZE + 4; ++offset) {
    std::string part(3, '#');
    file.read(offset, part.data(), part.size());
    EXPECT_EQ(part, contents(file).substr(offset, 3));
  }
}

TEST_F(JournaledFileTest, WritesBehindTheCommittedEndAtOnce) {
  JournaledFile file(name, O_RDWR);
  write(file, before.size(), "new");
  expectSame(onDisk(), before + "new");
  EXPECT_EQ(file.end(), before.size() + 3);
  file.commit();
  write(file, before.size(), "old");
  expectSame(onDisk(), before + "new");
  file.commit();
  expectSame(onDisk(), before + "old");
}

TEST_F(JournaledFileTest, WritesAcrossTheCommittedEnd) {
  JournaledFile file(name, O_RDWR);
  write(file, before.size() - 2, "1234");
  expectSame(contents(file), before.substr(0, before.size() - 2) + "1234");
  expectSame(onDisk(), before + "34");
  file.commit();
  expectSame(onDisk(), before.substr(0, before.size() - 2) + "1234");
}

TEST_F(JournaledFileTest, EndsWhereItIsTold) {
  JournaledFile file(name, O_RDWR);
  file.setEnd(before.size() + 5);
  expectSame(contents(file), before + std::string(5, '\0'));
  file.commit();
  expectSame(onDisk(), before + std::string(5, '\0'));
  file.setEnd(10);
  EXPECT_EQ(onDisk().size(), before.size() + 5);
  file.commit();
  expectSame(onDisk(), before.substr(0, 10));
  EXPECT_FALSE(hasJournal());
}

TEST_F(JournaledFileTest, DropsWhatWasNotCommitted) {
  {
    JournaledFile file(name, O_RDWR);
    write(file, 0, "dropped");
  }
  expectSame(onDisk(), before);
}

TEST_F(JournaledFileTest, WritesNothingForBytesThatDidNotChange) {
  JournaledFile file(name, O_RDWR);
  write(file, 0, before);
  EXPECT_EQ(systemCalls::killedInCall(0, [&] { file.commit(); }), systemCalls::End::AfterWork);
}

// -- new files ------------------------------------------------------------------------------------

TEST_F(JournaledFileTest, ANewFileReplacesAnEarlierOneWithItsFirstCommit) {
  JournaledFile file(name, NEW_FILE);
  EXPECT_EQ(file.end(), 0U);
  write(file, 0, "new");
  expectSame(onDisk(), before);
  file.commit();
  expectSame(onDisk(), "new");
  write(file, 0, "NEW");
  expectSame(onDisk(), "new");
  file.commit();
  expectSame(onDisk(), "NEW");
  EXPECT_EQ(filesInFolder(), 1);
}

TEST_F(JournaledFileTest, NothingIsLeftOfANewFileWithoutACommit) {
  {
    JournaledFile file(name, NEW_FILE);
    write(file, 0, "new");
  }
  expectSame(onDisk(), before);
  EXPECT_EQ(filesInFolder(), 1);
}

TEST_F(JournaledFileTest, ANewFileIsTheOneThatHasItsNameNow) {
  JournaledFile file(name, NEW_FILE);
  EXPECT_EQ(file.identity(), JournaledFile(name, O_RDWR).identity());
  file.commit();
  EXPECT_EQ(file.identity(), JournaledFile(name, O_RDWR).identity());
}

TEST_F(JournaledFileTest, ANewFileHasThePermissionsOfTheEarlierOne) {
  constexpr auto mine = std::filesystem::perms::owner_read | std::filesystem::perms::owner_write;
  std::filesystem::permissions(name, mine);
  JournaledFile(name, NEW_FILE).commit();
  EXPECT_EQ(std::filesystem::status(name).permissions(), mine);
}

TEST_F(JournaledFileTest, ANewFileLeavesALinkToIt) {
  const std::string link = dir.file("link");
  std::filesystem::create_symlink("data", link);
  {
    JournaledFile file(link, NEW_FILE);
    write(file, 0, "new");
    file.commit();
    write(file, 0, "NEW");
    file.commit();
  }
  EXPECT_TRUE(std::filesystem::is_symlink(link));
  expectSame(onDisk(), "NEW");
}

TEST_F(JournaledFileTest, ANewFileIsThereWholeOrNotAtAllWhereverTheProcessIsKilled) {
  const std::string results = "\x89HDF\r\n\x1a\n" + after;
  const auto replace = [&] {
    JournaledFile file(name, NEW_FILE);
    write(file, 0, results);
    file.commit();
  };
  int n = 0;
  for (; systemCalls::killedInCall(n, replace) == systemCalls::End::InCall; ++n) {
    expectSame(onDisk(), before);
  }
  EXPECT_GE(n, 3);
  // Where the last kill has left the new file beside the earlier one, it was in nobody's way.
  expectSame(onDisk(), results);
  EXPECT_EQ(filesInFolder(), 1);
}

TEST_F(JournaledFileTest, ANewFileSparesAnotherOneThatHasItsUnfinishedName) {
  const std::string other = dir.file("data.rheomark-new");
  support::writeFile(other, "a user's own");
  JournaledFile file(name, NEW_FILE);
  EXPECT_THROW(file.commit(), std::system_error);
  EXPECT_EQ(support::readFile(other), "a user's own");
  expectSame(onDisk(), before);
}

// As on a disk over the network.
TEST_F(JournaledFileTest, ANewFileHasANameAtOnceWhereThereAreNoFilesWithout) {
  const systemCalls::NoUnnamedFiles here;
  support::writeFile(dir.file("data.rheomark-new"), std::string(100, '\0'));
  JournaledFile file(name, NEW_FILE);
  write(file, 0, "new");
  EXPECT_EQ(filesInFolder(), 2);
  expectSame(onDisk(), before);
  file.commit();
  expectSame(onDisk(), "new");
  EXPECT_EQ(filesInFolder(), 1);
}

TEST_F(JournaledFileTest, ANewFileEmptiesTheEarlierOneWhereTheFolderTakesNoOther) {
  const systemCalls::Refusal refusal(dir.path());
  JournaledFile file(name, NEW_FILE);
  write(file, 0, "new");
  file.commit();
  expectSame(onDisk(), "new");
}

// -- one writer -----------------------------------------------------------------------------------

TEST_F(JournaledFileTest, IsRefusedWhereAnotherProcessWrites) {
  {
    const h5::Descriptor other(name, O_RDWR);
    EXPECT_EQ(other.lockForWriting(), h5::Descriptor::Lock::Taken);
    for (const int flags : {O_RDWR, NEW_FILE}) EXPECT_THROW(JournaledFile(name, flags), Refused);
    expectSame(contents(JournaledFile(name, O_RDONLY)), before);
  }
  expectSame(contents(JournaledFile(name, O_RDWR)), before);
}

TEST_F(JournaledFileTest, IsOpenForOneWriterOnlyFromItsStartToItsEnd) {
  const auto isRefused = [&] {
    return h5::Descriptor(name, O_RDWR).lockForWriting() == h5::Descriptor::Lock::HeldByAnother;
  };
  {
    JournaledFile file(name, NEW_FILE);
    EXPECT_TRUE(isRefused());
    const JournaledFile ofTheSameProcess(name, O_RDWR);
    file.commit();
    EXPECT_TRUE(isRefused());
  }
  EXPECT_FALSE(isRefused());
}

TEST_F(JournaledFileTest, ReadersMayLockItWhileItIsWritten) {
  const JournaledFile file(name, O_RDWR);
  EXPECT_NO_THROW(h5::Descriptor(name, O_RDONLY).lock(LOCK_SH | LOCK_NB));
}

// -- loss of power --------------------------------------------------------------------------------

class Durable : public JournaledFileTest {
 protected:
  Durable() { ::setenv("RHEOMARK_SYNC", "1", 1); }
  ~Durable() override { ::unsetenv("RHEOMARK_SYNC"); }

  using Calls = std::vector<std::string>;
};

TEST_F(Durable, AChangeIsOnTheDiskStepByStep) {
  JournaledFile file(name, O_RDWR);
  write(file, 0, "1234");
  const systemCalls::Log log;
  file.commit();
  EXPECT_EQ(log.calls, (Calls{"sync", "write", "sync", "sync folder", "write", "sync", "unlink"}));
}

TEST_F(Durable, ANewFileIsOnTheDiskBeforeItReplacesTheEarlierOne) {
  JournaledFile file(name, NEW_FILE);
  const systemCalls::Log log;
  write(file, 0, "1234");
  file.commit();
  EXPECT_EQ(log.calls, (Calls{"write", "sync", "rename", "sync folder"}));
}

TEST_F(Durable, WhatIsCompletedIsOnTheDiskBeforeItsJournalGoes) {
  leaveTorn();
  const systemCalls::Log log;
  const JournaledFile file(name, O_RDONLY);
  EXPECT_EQ(log.calls, (Calls{"write", "sync", "unlink"}));
}

TEST_F(JournaledFileTest, DoesNotWaitForTheDiskUnlessItIsAskedTo) {
  JournaledFile file(name, O_RDWR);
  write(file, 0, "1234");
  const systemCalls::Log log;
  file.commit();
  EXPECT_EQ(log.calls, (std::vector<std::string>{"write", "unlink"}));
}

// -- no room, no permission -----------------------------------------------------------------------

TEST_F(JournaledFileTest, StaysAsItWasWhereTheJournalFindsNoRoom) {
  JournaledFile file(name, O_RDWR);
  write(file, 0, std::string(before.size(), 'x'));
  {
    const support::FileSizeLimit limit(before.size());
    EXPECT_THROW(file.commit(), std::system_error);
  }
  expectSame(onDisk(), before);
  EXPECT_FALSE(hasJournal());
}

TEST_F(JournaledFileTest, AWriteThatFailsIsToldByTheCommit) {
  JournaledFile file(name, O_RDWR);
  {
    const systemCalls::Failure failure(0);
    write(file, before.size(), "lost");
  }
  write(file, 0, "1234");
  EXPECT_EQ(failures::textOf<std::system_error>([&] { file.commit(); }),
            "cannot write to file " + name + ": Input/output error");
  expectSame(onDisk(), before);
}

TEST_F(JournaledFileTest, StaysAsItWasAfterAFailure) {
  JournaledFile file(name, O_RDWR);
  write(file, 0, "1234");
  {
    const systemCalls::Failure failure(0);
    EXPECT_THROW(file.commit(), std::system_error);
  }
  EXPECT_THROW(file.commit(), std::system_error);
  expectSame(onDisk(), before);
}

TEST_F(JournaledFileTest, AsksForRoomOnceForEachByte) {
  const JournaledFile file(name, O_RDWR);
  const systemCalls::SmallDisk disk(120 * PAGE_SIZE);
  EXPECT_TRUE(file.reserve(100 * PAGE_SIZE, 0));
  EXPECT_TRUE(file.reserve(0, 100 * PAGE_SIZE));
  EXPECT_FALSE(file.reserve(0, 120 * PAGE_SIZE));
  EXPECT_FALSE(file.reserve(120 * PAGE_SIZE, 0));
}

TEST_F(JournaledFileTest, HoldsOneOfTheTwoStatesOnADiskThatFails) {
  bool hasFailed = true;
  for (int n = 0; hasFailed; ++n) {
    SCOPED_TRACE(n);
    support::writeFile(name, before);
    std::filesystem::remove(journal);
    {
      JournaledFile file(name, O_RDWR);
      write(file, 0, after);
      const systemCalls::Failure failure(n);
      try {
        file.commit();
      } catch (const std::system_error&) {
      }
      hasFailed = failure.hasOccurred();
      // What follows must not take the journal from a file that needs it.
      try {
        file.commit();
      } catch (const std::system_error&) {
      }
    }
    const std::string left = contents(JournaledFile(name, O_RDONLY));
    EXPECT_TRUE(left == after || left.substr(0, before.size()) == before);
    EXPECT_TRUE(hasFailed || left == after);
  }
}

TEST_F(JournaledFileTest, NeedsNoRoomInItsName) {
  const std::string longName = dir.file(std::string(255, 'n'));
  support::writeFile(longName, before);
  JournaledFile file(longName, O_RDWR);
  write(file, 0, "1234");
  file.commit();
  expectSame(support::readFile(longName), "1234" + before.substr(4));
}

TEST_F(JournaledFileTest, IsChangedWithoutAJournalWhereTheFolderTakesNone) {
  JournaledFile file(name, O_RDWR);
  write(file, 0, "1234");
  const systemCalls::Refusal refusal(".rheomark-journal");
  file.commit();
  expectSame(onDisk(), "1234" + before.substr(4));
}

// -- recovery -------------------------------------------------------------------------------------

TEST_F(JournaledFileTest, CompletesAChangeThatWasCutShort) {
  for (const int access : {O_RDONLY, O_RDWR}) {
    support::writeFile(name, before);
    leaveTorn();
    const JournaledFile file(name, access);
    expectSame(contents(file), after);
    expectSame(onDisk(), after);
    EXPECT_FALSE(hasJournal());
  }
}

TEST_F(JournaledFileTest, ReadsACompleteStateWhereNothingCanBeWritten) {
  leaveTorn();
  const std::string torn = onDisk();
  {
    const systemCalls::Refusal refusal("data");
    expectSame(contents(JournaledFile(name, O_RDONLY)), after);
  }
  expectSame(onDisk(), torn);
  EXPECT_TRUE(hasJournal());
  expectSame(contents(JournaledFile(name, O_RDONLY)), after);
}

TEST_F(JournaledFileTest, CanBeCompletedAgain) {
  leaveTorn();
  const auto open = [&] { const JournaledFile file(name, O_RDWR); };
  for (int n = 0; systemCalls::killedInCall(n, open) == systemCalls::End::InCall; ++n) {
    EXPECT_TRUE(hasJournal());
  }
  expectSame(onDisk(), after);
  EXPECT_FALSE(hasJournal());
}

TEST_F(JournaledFileTest, LeavesAJournalOfAnotherFileUnused) {
  leaveTorn();
  const std::string other(before.size(), 'o');
  support::writeFile(name, other);
  expectSame(contents(JournaledFile(name, O_RDONLY)), other);
  EXPECT_TRUE(hasJournal());
  expectSame(contents(JournaledFile(name, O_RDWR)), other);
  EXPECT_FALSE(hasJournal());
  expectSame(onDisk(), other);
}

TEST_F(JournaledFileTest, LeavesAnIncompleteJournalUnused) {
  leaveTorn();
  const std::string whole = support::readFile(journal);
  for (const std::size_t size : {std::size_t{0}, std::size_t{8}, whole.size() - 1}) {
    support::writeFile(name, before);
    support::writeFile(journal, whole.substr(0, size));
    expectSame(contents(JournaledFile(name, O_RDONLY)), before);
    EXPECT_TRUE(hasJournal());
    expectSame(contents(JournaledFile(name, O_RDWR)), before);
    EXPECT_FALSE(hasJournal());
  }
}

TEST_F(JournaledFileTest, SparesAnotherFileThatHasTheNameOfTheJournal) {
  support::writeFile(journal, "a user's own");
  expectSame(contents(JournaledFile(name, O_RDONLY)), before);
  for (const int flags : {O_RDWR, NEW_FILE}) EXPECT_THROW(JournaledFile(name, flags), Refused);
  EXPECT_EQ(support::readFile(journal), "a user's own");
  expectSame(onDisk(), before);
}

TEST_F(JournaledFileTest, SparesAnotherFileThatComesToHaveTheNameOfTheJournal) {
  JournaledFile file(name, O_RDWR);
  support::writeFile(journal, "a user's own");
  write(file, 0, "1234");
  EXPECT_THROW(file.commit(), std::system_error);
  EXPECT_EQ(support::readFile(journal), "a user's own");
  expectSame(onDisk(), before);
}

TEST_F(JournaledFileTest, TellsOfAJournalOfAnEarlierRelease) {
  const std::string earlier = dir.file("data.journal");
  support::writeFile(earlier, "a user's own");
  expectSame(contents(JournaledFile(name, O_RDWR)), before);
  EXPECT_EQ(support::readFile(earlier), "a user's own");
  support::writeFile(earlier, "\x89\x1aRHEOJ1 and so on");
  for (const int flags : {O_RDONLY, O_RDWR, NEW_FILE}) {
    EXPECT_THROW(JournaledFile(name, flags), Refused);
  }
  EXPECT_EQ(support::readFile(earlier), "\x89\x1aRHEOJ1 and so on");
  expectSame(onDisk(), before);
}

TEST_F(JournaledFileTest, DoesNotWaitForAPipe) {
  const std::string pipe = dir.file("pipe");
  ASSERT_EQ(::mkfifo(pipe.c_str(), 0666), 0);
  ASSERT_EQ(::mkfifo(journal.c_str(), 0666), 0);
  for (const int flags : {O_RDONLY, O_RDWR, NEW_FILE}) {
    EXPECT_THROW(JournaledFile(pipe, flags), Refused);
    EXPECT_THROW(JournaledFile(name, flags), Refused);
  }
}

// A journal that is locked belongs to a process at work, which will remove it.
TEST_F(JournaledFileTest, WaitsForACommitUnderWay) {
  leaveTorn();
  std::optional<h5::Descriptor> committing(std::in_place, journal, O_RDONLY);
  committing->lock(LOCK_EX);
  auto opened =
      std::async(std::launch::async, [&] { return contents(JournaledFile(name, O_RDONLY)); });
  EXPECT_EQ(opened.wait_for(std::chrono::milliseconds(50)), std::future_status::timeout);
  support::writeFile(name, "the commit is done");
  std::filesystem::remove(journal);
  committing.reset();
  EXPECT_EQ(opened.get(), "the commit is done");
}

// Nobody commits for so long.
TEST_F(JournaledFileTest, DoesNotWaitForEverForALockedJournal) {
  leaveTorn();
  const h5::Descriptor other(journal, O_RDONLY);
  other.lock(LOCK_EX);
  EXPECT_THROW(JournaledFile(name, O_RDONLY), Refused);
}

}  // namespace
