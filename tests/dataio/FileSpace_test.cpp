#include "dataio/FileSpace.h"

#include <gtest/gtest.h>
#include <sys/resource.h>

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <string>

#include "support/TempDir.h"

namespace {

class FileSpace : public ::testing::Test {
 protected:
  FileSpace() : name(dir.file("data")) { std::ofstream(name) << "1234567890"; }

  support::TempDir dir;
  std::string name;
};

TEST_F(FileSpace, isThereForASmallFile) {
  EXPECT_TRUE(dataio::reserveFileSpace(name, 1000));
}

TEST_F(FileSpace, doesNotChangeTheSizeOfTheFile) {
  dataio::reserveFileSpace(name, 100000);
  EXPECT_EQ(std::filesystem::file_size(name), 10U);
}

TEST_F(FileSpace, isNotThereBeyondTheLimitOnTheSizeOfFiles) {
  rlimit before{};
  getrlimit(RLIMIT_FSIZE, &before);
  rlimit limited = before;
  limited.rlim_cur = 1000;
  setrlimit(RLIMIT_FSIZE, &limited);
  const bool upToTheLimit = dataio::reserveFileSpace(name, 990);
  const bool beyond = dataio::reserveFileSpace(name, 991);
  setrlimit(RLIMIT_FSIZE, &before);
  EXPECT_TRUE(upToTheLimit);
  EXPECT_FALSE(beyond);
}

TEST_F(FileSpace, isNotThereForMoreThanTheDiskHolds) {
  const auto free = std::filesystem::space(dir.path()).capacity;
  EXPECT_FALSE(dataio::reserveFileSpace(name, 2 * free));
}

TEST_F(FileSpace, ofAFileThatCannotBeOpenedIsLeftToTheWriter) {
  EXPECT_TRUE(dataio::reserveFileSpace(dir.file("missing"), 1));
}

TEST_F(FileSpace, onTheDiskOfAFileIsNotThereForMoreThanItHolds) {
  EXPECT_TRUE(dataio::isRoomOnDiskOf(name, 1));
  EXPECT_FALSE(dataio::isRoomOnDiskOf(name, std::filesystem::space(dir.path()).capacity));
  EXPECT_FALSE(dataio::isRoomOnDiskOf(name, SIZE_MAX));
}

TEST_F(FileSpace, besideAMissingFileIsLeftToTheWriter) {
  EXPECT_TRUE(dataio::isRoomOnDiskOf(dir.file("missing"), SIZE_MAX));
}

}  // namespace
