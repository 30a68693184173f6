#include "h5/journal/driver.h"

#include <gtest/gtest.h>
#include <hdf5.h>

#include <filesystem>
#include <string>
#include <vector>

#include "h5/HdfFile.h"
#include "h5/SystemCalls.h"
#include "support/FileSizeLimit.h"
#include "support/H5Compare.h"
#include "support/Process.h"

namespace {

class Driver : public hdfFile::Test {
 protected:
  /// What a file holds as the library's own driver sees it.
  void expectRecords(int count) const {
    EXPECT_EQ(support::datasetPaths(name).size(), 2U * static_cast<unsigned>(count));
    for (int i = 0; i < count; ++i) {
      EXPECT_EQ(support::readNumbers(name, hdfFile::record("A", i)), std::vector<double>(600, i));
      EXPECT_EQ(support::readTime(name, hdfFile::record("B", i)), i);
    }
  }
};

TEST_F(Driver, WritesFilesThatAnyProgramReads) {
  expectRecords(8);
}

TEST_F(Driver, WritesTheSameBytesAsTheDriverOfTheLibrary) {
  const auto bytesOf = [&](hid_t list) {
    const std::string made = dir.file("made.h5");
    const hid_t file = H5Fcreate(made.c_str(), H5F_ACC_TRUNC, H5P_DEFAULT, list);
    for (const char* path : {"one", "two"}) {
      const hsize_t extent = 3;
      const hid_t space = H5Screate_simple(1, &extent, nullptr);
      const hid_t dataset =
          H5Dcreate2(file, path, H5T_NATIVE_DOUBLE, space, H5P_DEFAULT, H5P_DEFAULT, H5P_DEFAULT);
      H5Dclose(dataset);
      H5Sclose(space);
      H5Fflush(file, H5F_SCOPE_GLOBAL);
    }
    H5Fclose(file);
    return support::readFile(made);
  };
  EXPECT_TRUE(bytesOf(h5::accessList()) == bytesOf(H5P_DEFAULT));
}

TEST_F(Driver, ReadsFilesOfAnyProgram) {
  support::overwrite(name, "A/0000003", 0, 30.0);
  const hid_t file = hdfFile::open(name, H5F_ACC_RDONLY);
  const hid_t dataset = H5Dopen2(file, "A/0000003", H5P_DEFAULT);
  std::vector<double> values(600);
  H5Dread(dataset, H5T_NATIVE_DOUBLE, H5S_ALL, H5S_ALL, H5P_DEFAULT, values.data());
  EXPECT_EQ(values[0], 30.0);
  EXPECT_EQ(values[1], 3.0);
  H5Dclose(dataset);
  H5Fclose(file);
}

TEST_F(Driver, CommitsWithEachFlush) {
  const hid_t file = hdfFile::open(name);
  hdfFile::writeRecord(file, 8, 8);
  expectRecords(8);
  H5Fflush(file, H5F_SCOPE_GLOBAL);
  expectRecords(9);
  EXPECT_FALSE(std::filesystem::exists(journal));
  H5Fclose(file);
}

TEST_F(Driver, CommitsWhenTheFileIsClosed) {
  const hid_t file = hdfFile::open(name);
  hdfFile::writeRecord(file, 8, 8);
  EXPECT_GE(H5Fclose(file), 0);
  expectRecords(9);
}

TEST_F(Driver, IsTheSameFileForEachThatOpensIt) {
  const hid_t first = hdfFile::open(name);
  hdfFile::writeRecord(first, 8, 8);
  std::filesystem::create_symlink("results.h5", dir.file("link"));
  const hid_t second = hdfFile::open(dir.file("link"));
  EXPECT_GT(H5Lexists(second, "/A/0000008", H5P_DEFAULT), 0);
  H5Fclose(second);
  H5Fclose(first);
  expectRecords(9);
}

TEST_F(Driver, OpensAFileThatItHasAlreadyWithoutTheOperatingSystem) {
  const hid_t first = hdfFile::open(name);
  const systemCalls::Refusal refusal("results.h5");
  const hid_t second = hdfFile::open(name);
  EXPECT_GE(second, 0);
  H5Fclose(second);
  hdfFile::writeRecord(first, 8, 8);
  H5Fclose(first);
  expectRecords(9);
}

TEST_F(Driver, AFlushThatFindsNoRoomFailsAndLeavesTheFile) {
  const hid_t file = hdfFile::open(name);
  for (int i = 0; i < 8; ++i) hdfFile::writeRecord(file, i, -1.0);
  {
    const support::FileSizeLimit limit(std::filesystem::file_size(name));
    EXPECT_LT(H5Fflush(file, H5F_SCOPE_GLOBAL), 0);
  }
  EXPECT_LT(H5Fflush(file, H5F_SCOPE_GLOBAL), 0);
  EXPECT_GE(H5Fclose(file), 0);
  expectRecords(8);
}

// The library keeps small values back until their dataset is closed, and does not write them again.
TEST_F(Driver, ValuesThatCouldNotBeWrittenFailTheFlush) {
  const hid_t file = hdfFile::open(name);
  {
    const support::FileSizeLimit limit(std::filesystem::file_size(name));
    hdfFile::writeRecord(file, 8, 8);
  }
  EXPECT_LT(H5Fflush(file, H5F_SCOPE_GLOBAL), 0);
  EXPECT_GE(H5Fclose(file), 0);
  expectRecords(8);
}

TEST_F(Driver, AClosingThatFindsNoRoomLeavesWhatWasFlushed) {
  const hid_t file = hdfFile::open(name);
  hdfFile::writeRecord(file, 8, 8);
  H5Fflush(file, H5F_SCOPE_GLOBAL);
  for (int i = 0; i < 8; ++i) hdfFile::writeRecord(file, i, -1.0);
  {
    const support::FileSizeLimit limit(8192);
    EXPECT_GE(H5Fclose(file), 0);
  }
  expectRecords(9);
}

TEST_F(Driver, ANewFileReplacesAnEarlierOneWithItsFirstFlush) {
  const std::string before = support::readFile(name);
  const hid_t file = h5::createFile(name.c_str());
  EXPECT_TRUE(support::readFile(name) == before);
  // Whoever opens it in this process means the new one.
  const hid_t same = hdfFile::open(name);
  EXPECT_FALSE(H5Lexists(same, "A", H5P_DEFAULT) > 0);
  H5Fflush(same, H5F_SCOPE_GLOBAL);
  EXPECT_TRUE(support::datasetPaths(name).empty());
  H5Fclose(same);
  H5Fclose(file);
}

TEST_F(Driver, DoesNotOpenWhatIsMissing) {
  const std::string missing = dir.file("missing.h5");
  EXPECT_LT(H5Fopen(missing.c_str(), H5F_ACC_RDWR, h5::accessList()), 0);
  EXPECT_LT(H5Fopen(missing.c_str(), H5F_ACC_RDONLY, h5::accessList()), 0);
  EXPECT_FALSE(std::filesystem::exists(missing));
}

}  // namespace
