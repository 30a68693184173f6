#include "h5/journal/Hold.h"

#include <gtest/gtest.h>
#include <hdf5.h>

#include <cstdlib>
#include <memory>
#include <string>

#include "h5/HdfFile.h"
#include "h5/SystemCalls.h"
#include "support/H5Compare.h"

namespace {

using h5::Hold;

class HoldTest : public hdfFile::Test {
 protected:
  std::size_t records() const { return support::datasetPaths(name).size() / 2; }

  /// As a part of the program does that opens the file for itself.
  void writeElsewhere(int number) const {
    const hid_t file = hdfFile::open(name);
    hdfFile::writeRecord(file, number, number);
    EXPECT_GE(H5Fflush(file, H5F_SCOPE_LOCAL), 0);
    H5Fclose(file);
  }
};

TEST_F(HoldTest, KeepsChangesTogetherUntilTheCommit) {
  const hid_t file = hdfFile::open(name);
  {
    const Hold together(file);
    writeElsewhere(8);
    writeElsewhere(9);
    EXPECT_EQ(records(), 8U);
    EXPECT_GE(together.commit(), 0);
    EXPECT_EQ(records(), 10U);
    writeElsewhere(10);
    EXPECT_EQ(records(), 10U);
  }
  writeElsewhere(11);
  EXPECT_EQ(records(), 12U);
  H5Fclose(file);
}

TEST_F(HoldTest, LeavesTheCommitToTheLastHolder) {
  const hid_t file = hdfFile::open(name);
  auto first = std::make_unique<Hold>(file);
  const auto second = std::make_unique<Hold>(file);
  writeElsewhere(8);
  EXPECT_GE(first->commit(), 0);
  EXPECT_EQ(records(), 8U);
  first.reset();
  EXPECT_GE(second->commit(), 0);
  EXPECT_EQ(records(), 9U);
}

TEST_F(HoldTest, EndsBeforeTheFileIsClosed) {
  const hid_t file = hdfFile::open(name);
  {
    const Hold together(file);
    writeElsewhere(8);
  }
  H5Fclose(file);
  EXPECT_EQ(records(), 9U);
}

// The library closes all files when the process ends.
TEST_F(HoldTest, DropsWhatIsNotCommittedWhenTheProcessEnds) {
  const auto fail = [&] {
    const hid_t file = hdfFile::open(name);
    static const Hold* const together = new Hold(file);
    writeElsewhere(8);
    together->commit();
    writeElsewhere(9);
    std::exit(0);
  };
  EXPECT_EQ(systemCalls::killedInCall(-1, fail), systemCalls::End::AfterWork);
  EXPECT_EQ(records(), 9U);
}

TEST_F(HoldTest, OfNoFileCommitsNothing) {
  EXPECT_LT(Hold(H5I_INVALID_HID).commit(), 0);
}

}  // namespace
