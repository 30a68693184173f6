#include "common/NewFile.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>

#include "dataio/failures.h"
#include "support/FileSizeLimit.h"
#include "support/Process.h"
#include "support/TempDir.h"

namespace {

using common::NewFile;
using common::writeText;
using failures::reportOf;

class NewFileTest : public ::testing::Test {
 protected:
  void SetUp() override { support::writeFile(source, "results"); }

  const support::TempDir dir;
  const std::string source = dir.file("run_results.h5");
  const std::string name = dir.file("gauges.csv");
  const common::Sources sources = {{"study document", dir.file("none")}, {"results file", source}};
};

TEST_F(NewFileTest, TakesItsNameAtTheEnd) {
  support::writeFile(name, "before");
  {
    NewFile file(name, sources);
    support::writeFile(file.unfinished(), "after");
    EXPECT_EQ(support::readFile(name), "before");
    file.finish();
  }
  EXPECT_EQ(support::readFile(name), "after");
}

TEST_F(NewFileTest, LeavesNothingBehindUnlessItIsFinished) {
  support::writeFile(name, "before");
  std::string part;
  {
    const NewFile file(name, sources);
    part = file.unfinished();
    support::writeFile(part, "half");
  }
  EXPECT_EQ(support::readFile(name), "before");
  EXPECT_FALSE(std::filesystem::exists(part));
}

TEST_F(NewFileTest, IsNeverWhatItIsMadeFrom) {
  std::filesystem::create_symlink(source, dir.file("link.csv"));
  for (const std::string& same : {source, dir.path() + "/./run_results.h5", dir.file("link.csv")}) {
    EXPECT_EQ(reportOf([&] { const NewFile file(same, sources); }),
              " -> file <" + same + "> is the results file itself: give another name\n");
  }
}

TEST_F(NewFileTest, IsWrittenUnderANameThatNobodyHas) {
  support::writeFile(name + ".part", "mine");
  support::writeFile(name + ".part2", "mine, too");
  writeText(name, "text", sources);
  EXPECT_EQ(support::readFile(name), "text");
  EXPECT_EQ(support::readFile(name + ".part"), "mine");
  EXPECT_EQ(support::readFile(name + ".part2"), "mine, too");
}

TEST_F(NewFileTest, ReplacesNoDevice) {
  ASSERT_EQ(::mkfifo(name.c_str(), 0600), 0);
  EXPECT_EQ(reportOf([&] { const NewFile file(name, sources); }),
            " -> file <" + name + "> cannot be written: it is a device or a pipe\n");
}

TEST_F(NewFileTest, TellsIfItsFolderTakesNoFile) {
  EXPECT_THAT(reportOf([&] { const NewFile file("/proc/a.csv", sources); }),
              ::testing::StartsWith(" -> file </proc/a.csv> cannot be written: "));
}

TEST_F(NewFileTest, NeedsAFolder) {
  EXPECT_EQ(reportOf([&] { const NewFile file(dir.file("none/a.csv"), sources); }),
            " -> file <" + dir.file("none/a.csv") + "> cannot be written: there is no folder <" +
                dir.file("none") + ">\n");
  EXPECT_EQ(reportOf([&] { const NewFile file(dir.path(), sources); }),
            " -> file <" + dir.path() + "> cannot be written: it is a folder\n");
}

TEST_F(NewFileTest, TextIsWrittenAsAWhole) {
  writeText(name, "a\nb\n", sources);
  EXPECT_EQ(support::readFile(name), "a\nb\n");
  EXPECT_FALSE(std::filesystem::exists(name + ".part"));
}

TEST_F(NewFileTest, TextThatDoesNotFitIsReportedAndTheOldOneKept) {
  support::writeFile(name, "before");
  const std::string text(100000, 'x');
  const support::FileSizeLimit limit(4096);
  EXPECT_EQ(
      reportOf([&] { writeText(name, text, sources); }),
      " -> file <" + name + "> cannot be written: is the disk full, or the folder not yours?\n");
  EXPECT_EQ(support::readFile(name), "before");
}

}  // namespace
