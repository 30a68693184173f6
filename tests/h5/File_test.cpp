#include "h5/File.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "dataio/failures.h"
#include "h5/DataSet.h"
#include "h5/Handle.h"
#include "support/FileSizeLimit.h"
#include "support/TempDir.h"

namespace {

using failures::hdf5Words;
using failures::textOf;
using h5::DataSet;
using h5::Error;
using h5::File;

constexpr unsigned NEW_FILE = File::READ_WRITE | File::CREATE | File::TRUNCATE;

class FileTest : public ::testing::Test {
 protected:
  const support::TempDir dir;
  const std::string name = dir.file("a.h5");
};

TEST_F(FileTest, MissingFileCannotBeOpened) {
  for (const unsigned access : {File::READ_ONLY, File::READ_WRITE}) {
    EXPECT_EQ(textOf<Error>([&] { const File file(name, access); }),
              "Unable to open file " + name + hdf5Words(H5E_FILE, H5E_CANTOPENFILE));
  }
}

TEST_F(FileTest, OtherFormatCannotBeOpened) {
  std::ofstream(name) << "this is no HDF5 file, but a text that is long enough\n";
  EXPECT_EQ(textOf<Error>([&] { const File file(name, File::READ_ONLY); }),
            "Unable to open file " + name + hdf5Words(H5E_FILE, H5E_NOTHDF5));
}

TEST_F(FileTest, TruncatedFileCannotBeOpened) {
  { const File file(name, NEW_FILE); }
  std::filesystem::resize_file(name, 200);
  EXPECT_EQ(textOf<Error>([&] { const File file(name, File::READ_ONLY); }),
            "Unable to open file " + name + hdf5Words(H5E_FILE, H5E_TRUNCATED));
}

TEST_F(FileTest, FileInAMissingFolderCannotBeCreated) {
  const std::string impossible = dir.file("nodir/x.h5");
  EXPECT_EQ(textOf<Error>([&] { const File file(impossible, NEW_FILE); }),
            "Unable to create file " + impossible + hdf5Words(H5E_FILE, H5E_CANTOPENFILE));
}

TEST_F(FileTest, CreatedFileIsEmptyAndCanBeOpened) {
  {
    const File file(name, NEW_FILE);
    DataSet::create<int>(file.handle(), "old", {1});
  }
  EXPECT_TRUE(File(name, File::READ_WRITE).exist("old"));
  { const File file(name, NEW_FILE); }
  const File file(name, File::READ_ONLY);
  EXPECT_FALSE(file.exist("old"));
  EXPECT_EQ(file.name(), name);
}

TEST_F(FileTest, FlushFailsIfTheDiskIsFull) {
  const File file(name, NEW_FILE);
  const std::vector<double> values(100000);
  DataSet::create<double>(file.handle(), "big", {values.size()}).writeVector(values);
  const DataSet pending = DataSet::create<double>(file.handle(), "pending", {10});
  std::string text;
  {
    const support::FileSizeLimit limit(400000);
    pending.writeVector(std::vector<double>(10));
    text = textOf<Error>([&] { file.flush(); });
  }
  const std::string expected =
      "Unable to flush file " + name + ": cannot write to file " + name + ": File too large";
  EXPECT_EQ(text, expected);
  EXPECT_EQ(textOf<Error>([&] { file.flush(); }), expected);
}

TEST_F(FileTest, FlushTellsOfAWriteThatFoundNoRoom) {
  const File file(name, NEW_FILE);
  const DataSet dataset = DataSet::create<double>(file.handle(), "big", {100000});
  {
    const support::FileSizeLimit limit(4096);
    dataset.writeVector(std::vector<double>(100000, 1.0));
  }
  EXPECT_EQ(textOf<Error>([&] { file.flush(); }),
            "Unable to flush file " + name + ": cannot write to file " + name + ": File too large");
}

}  // namespace
