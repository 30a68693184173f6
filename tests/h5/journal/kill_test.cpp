// Kills a process in each of its system calls that change a file: what it leaves is the state
// before or the state after the commit, whole.
#include <gtest/gtest.h>
#include <hdf5.h>

#include <cstdlib>
#include <filesystem>
#include <functional>
#include <string>

#include "h5/HdfFile.h"
#include "h5/SystemCalls.h"
#include "h5/journal/Hold.h"
#include "support/H5Compare.h"

namespace {

using systemCalls::End;
using systemCalls::killedInCall;

class Kill : public hdfFile::Test {
 protected:
  /// Kills `change` in its n-th call, for each n, on a fresh copy of the file.
  void killInEachCall(const std::function<void()>& change) {
    const std::string before = dir.file("before.h5");
    const std::string after = dir.file("after.h5");
    std::filesystem::copy_file(name, before);
    ASSERT_EQ(killedInCall(-1, change), End::AfterWork);
    std::filesystem::copy_file(name, after);
    ASSERT_FALSE(support::differences(before, after).empty());
    int killsBefore = 0;
    int killsAfter = 0;
    End end = End::InCall;
    for (int n = 0; end == End::InCall; ++n) {
      SCOPED_TRACE(n);
      std::filesystem::copy_file(before, name, std::filesystem::copy_options::overwrite_existing);
      end = killedInCall(n, change);
      ASSERT_NE(end, End::Failed);
      H5Fclose(hdfFile::open(name, n % 2 == 0 ? H5F_ACC_RDONLY : H5F_ACC_RDWR));
      const bool isAfter = support::differences(after, name).empty();
      EXPECT_TRUE(isAfter || support::differences(before, name).empty());
      EXPECT_TRUE(isAfter || killsAfter == 0);
      ++(isAfter ? killsAfter : killsBefore);
    }
    // The new state stands from the last byte of the journal on, and is written page by page.
    EXPECT_GT(killsBefore, 5);
    EXPECT_GE(killsAfter, 3);
  }
};

TEST_F(Kill, WithinANewRecord) {
  killInEachCall([&] {
    const hid_t file = hdfFile::open(name);
    hdfFile::writeRecord(file, 8, 8.0);
    H5Fflush(file, H5F_SCOPE_GLOBAL);
    std::_Exit(0);
  });
}

TEST_F(Kill, WithinARecordThatReplacesOne) {
  killInEachCall([&] {
    const hid_t file = hdfFile::open(name);
    hdfFile::writeRecord(file, 3, -3.0);
    H5Fflush(file, H5F_SCOPE_GLOBAL);
    std::_Exit(0);
  });
}

TEST_F(Kill, WithinTheClosingOfAFile) {
  killInEachCall([&] {
    const hid_t file = hdfFile::open(name);
    hdfFile::writeRecord(file, 8, 8.0);
    H5Ldelete(file, "/A/0000002", H5P_DEFAULT);
    H5Fclose(file);
  });
}

TEST_F(Kill, WithinARecordOfTwoPartsThatAreHeldTogether) {
  killInEachCall([&] {
    const hid_t file = hdfFile::open(name);
    const h5::Hold together(file);
    for (const char* group : {"A", "B"}) {
      const hid_t part = hdfFile::open(name);
      hdfFile::write(part, hdfFile::record(group, 8), 8.0);
      H5Fflush(part, H5F_SCOPE_LOCAL);
      H5Fclose(part);
    }
    together.commit();
    std::_Exit(0);
  });
}

}  // namespace
