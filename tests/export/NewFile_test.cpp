#include "export/NewFile.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "dataio/failures.h"
#include "support/FileSizeLimit.h"
#include "support/Process.h"
#include "support/TempDir.h"

namespace {

using exporter::NewFile;
using exporter::writeText;
using failures::reportOf;

class NewFileTest : public ::testing::Test {
 protected:
  void SetUp() override { support::writeFile(source, "results"); }

  const support::TempDir dir;
  const std::string source = dir.file("run_results.h5");
  const std::string name = dir.file("gauges.csv");
};

TEST_F(NewFileTest, TakesItsNameAtTheEnd) {
  support::writeFile(name, "before");
  {
    NewFile file(source, name);
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
    const NewFile file(source, name);
    part = file.unfinished();
    support::writeFile(part, "half");
  }
  EXPECT_EQ(support::readFile(name), "before");
  EXPECT_FALSE(std::filesystem::exists(part));
}

TEST_F(NewFileTest, IsNeverTheResultsFile) {
  std::filesystem::create_symlink(source, dir.file("link.csv"));
  for (const std::string& same : {source, dir.path() + "/./run_results.h5", dir.file("link.csv")}) {
    EXPECT_EQ(reportOf([&] { const NewFile file(source, same); }),
              " -> file <" + same + "> is the results file itself: give another name\n");
  }
}

TEST_F(NewFileTest, NeedsAFolder) {
  EXPECT_EQ(reportOf([&] { const NewFile file(source, dir.file("none/a.csv")); }),
            " -> file <" + dir.file("none/a.csv") + "> cannot be written: there is no folder <" +
                dir.file("none") + ">\n");
  EXPECT_EQ(reportOf([&] { const NewFile file(source, dir.path()); }),
            " -> file <" + dir.path() + "> cannot be written: it is a folder\n");
}

TEST_F(NewFileTest, TextIsWrittenAsAWhole) {
  writeText(source, name, "a\nb\n");
  EXPECT_EQ(support::readFile(name), "a\nb\n");
  EXPECT_FALSE(std::filesystem::exists(name + ".part"));
}

TEST_F(NewFileTest, TextThatDoesNotFitIsReportedAndTheOldOneKept) {
  support::writeFile(name, "before");
  const std::string text(100000, 'x');
  const support::FileSizeLimit limit(4096);
  EXPECT_EQ(
      reportOf([&] { writeText(source, name, text); }),
      " -> file <" + name + "> cannot be written: is the disk full, or the folder not yours?\n");
  EXPECT_EQ(support::readFile(name), "before");
}

}  // namespace
