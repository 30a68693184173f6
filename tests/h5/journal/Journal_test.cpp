#include "h5/journal/Journal.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/file.h>

#include <filesystem>
#include <string>
#include <system_error>
#include <vector>

#include "h5/journal/Refused.h"
#include "support/FileSizeLimit.h"
#include "support/Process.h"
#include "support/TempDir.h"

namespace {

using h5::Descriptor;
using h5::hash;
using h5::Journal;
using h5::PAGE_SIZE;

const std::string OLD = std::string(PAGE_SIZE, 'a') + std::string(PAGE_SIZE, 'b') + "cccc";
const std::string NEW = std::string(PAGE_SIZE, 'A') + std::string(PAGE_SIZE, 'b') + "CCCC";

class JournalTest : public ::testing::Test {
 protected:
  JournalTest() { support::writeFile(name, OLD); }

  /// The change from OLD to NEW, and so many bytes more or less at the end.
  static Journal change(int growth = 0) {
    Journal journal;
    for (const std::size_t offset : {std::size_t{0}, 2 * PAGE_SIZE}) {
      const std::string bytes = NEW.substr(offset, PAGE_SIZE);
      const std::string before = OLD.substr(offset, PAGE_SIZE);
      journal.pages[offset] = {{bytes.begin(), bytes.end()}, hash(before.data(), before.size())};
    }
    journal.end = NEW.size() + static_cast<std::size_t>(growth);
    return journal;
  }
  std::optional<Journal> read() const { return Journal::read(Descriptor(journal, O_RDONLY)); }
  bool belongsToFile() const { return change().belongsTo(Descriptor(name, O_RDONLY)); }

  const support::TempDir dir;
  const std::string name = dir.file("data");
  const std::string journal = dir.file("data.rheomark-journal");
};

TEST_F(JournalTest, LiesBesideTheFileItself) {
  EXPECT_EQ(h5::journalOf(name), journal);
}

TEST_F(JournalTest, ReadsWhatWasWritten) {
  change(7).write(journal);
  const std::optional<Journal> back = read();
  ASSERT_TRUE(back);
  EXPECT_EQ(back->end, NEW.size() + 7);
  ASSERT_EQ(back->pages.size(), 2U);
  EXPECT_TRUE(back->pages.at(0).bytes == std::vector<char>(PAGE_SIZE, 'A'));
  EXPECT_EQ(back->pages.at(0).before, hash(OLD.data(), PAGE_SIZE));
  EXPECT_EQ(back->pages.at(2 * PAGE_SIZE).bytes, std::vector<char>(4, 'C'));
}

TEST_F(JournalTest, IsNothingUntilItIsComplete) {
  change().write(journal);
  const std::string whole = support::readFile(journal);
  for (std::size_t size = 0; size < whole.size(); size += 101) {
    support::writeFile(journal, whole.substr(0, size));
    EXPECT_FALSE(read()) << size;
  }
  support::writeFile(journal, whole.substr(0, whole.size() - 1));
  EXPECT_FALSE(read());
  support::writeFile(journal, whole + "#");
  EXPECT_FALSE(read());
  support::writeFile(journal, whole);
  EXPECT_TRUE(read());
}

TEST_F(JournalTest, IsNothingIfAByteIsWrong) {
  change().write(journal);
  const std::string whole = support::readFile(journal);
  for (std::size_t place = 0; place < whole.size(); place += place < 80 ? 1 : 101) {
    std::string wrong = whole;
    wrong[place] = static_cast<char>(wrong[place] ^ 0x40);
    support::writeFile(journal, wrong);
    EXPECT_FALSE(read()) << place;
  }
}

TEST_F(JournalTest, IsNotLongerThanForetold) {
  change().write(journal);
  EXPECT_GT(Journal::sizeFor(PAGE_SIZE + 4), std::filesystem::file_size(journal));
  EXPECT_LT(Journal::sizeFor(1000 * PAGE_SIZE), 1010 * PAGE_SIZE);
}

TEST_F(JournalTest, MakesTheChange) {
  change().apply(Descriptor(name, O_RDWR));
  EXPECT_TRUE(support::readFile(name) == NEW);
  change(3).apply(Descriptor(name, O_RDWR));
  EXPECT_TRUE(support::readFile(name) == NEW + std::string(3, '\0'));
  change(-2).apply(Descriptor(name, O_RDWR));
  EXPECT_TRUE(support::readFile(name) == NEW.substr(0, NEW.size() - 2));
}

TEST_F(JournalTest, BelongsToAFileBeforeWithinAndAfterTheChange) {
  EXPECT_TRUE(belongsToFile());
  support::writeFile(name, NEW.substr(0, PAGE_SIZE) + OLD.substr(PAGE_SIZE));
  EXPECT_TRUE(belongsToFile());
  support::writeFile(name, NEW + "more");
  EXPECT_TRUE(belongsToFile());
}

TEST_F(JournalTest, DoesNotBelongToAnotherFile) {
  std::string other = OLD;
  other[100] = '#';
  support::writeFile(name, other);
  EXPECT_FALSE(belongsToFile());
  support::writeFile(name, OLD.substr(0, PAGE_SIZE));
  EXPECT_FALSE(belongsToFile());
}

// Others wait until the change is made.
TEST_F(JournalTest, IsLockedFromTheFirstByteOn) {
  const Descriptor reader = [&] {
    change().write(journal);
    return Descriptor(journal, O_RDONLY);
  }();
  const auto isLocked = [&] {
    try {
      reader.lock(LOCK_SH | LOCK_NB);
    } catch (const std::system_error&) {
      return true;
    }
    reader.lock(LOCK_UN);
    return false;
  };
  EXPECT_FALSE(isLocked());
  const Descriptor written = change().write(journal);
  EXPECT_TRUE(isLocked());
}

TEST_F(JournalTest, IsNotWrittenOverAnotherFile) {
  support::writeFile(journal, "a user's own");
  EXPECT_THROW(change().write(journal), h5::Refused);
  EXPECT_EQ(support::readFile(journal), "a user's own");
}

TEST_F(JournalTest, IsNotLeftWhereItFindsNoRoom) {
  {
    const support::FileSizeLimit limit(PAGE_SIZE);
    EXPECT_THROW(change().write(journal), std::system_error);
  }
  EXPECT_FALSE(std::filesystem::exists(journal));
}

}  // namespace
