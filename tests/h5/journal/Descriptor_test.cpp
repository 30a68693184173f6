#include "h5/journal/Descriptor.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <limits>
#include <string>
#include <system_error>

#include "h5/SystemCalls.h"
#include "support/FileSizeLimit.h"
#include "support/Process.h"
#include "support/TempDir.h"

namespace {

using h5::Descriptor;
using ::testing::HasSubstr;

class DescriptorTest : public ::testing::Test {
 protected:
  DescriptorTest() { support::writeFile(name, "0123456789"); }

  const support::TempDir dir;
  const std::string name = dir.file("data");
};

TEST_F(DescriptorTest, ReadsAtAPlaceAndZerosBehindTheEnd) {
  const Descriptor file(name, O_RDONLY);
  std::string bytes(4, '#');
  file.readAt(8, bytes.data(), bytes.size());
  EXPECT_EQ(bytes, std::string("89\0\0", 4));
}

TEST_F(DescriptorTest, WritesAtAPlace) {
  const Descriptor file(name, O_RDWR);
  file.writeAt(8, "abcd", 4);
  EXPECT_EQ(support::readFile(name), "01234567abcd");
  EXPECT_EQ(file.size(), 12U);
}

TEST_F(DescriptorTest, CutsAndExtendsAFile) {
  const Descriptor file(name, O_RDWR);
  file.resize(3);
  EXPECT_EQ(support::readFile(name), "012");
  file.resize(5);
  EXPECT_EQ(support::readFile(name), std::string("012\0\0", 5));
}

TEST_F(DescriptorTest, KnowsAFileByAnyName) {
  const std::string other = dir.file("other");
  support::writeFile(other, "");
  std::filesystem::create_hard_link(name, dir.file("link"));
  const Descriptor file(name, O_RDONLY);
  EXPECT_EQ(file.identity(), Descriptor(dir.file("link"), O_RDONLY).identity());
  EXPECT_NE(file.identity(), Descriptor(other, O_RDONLY).identity());
}

TEST_F(DescriptorTest, SeesItsNameRemoved) {
  const Descriptor file(name, O_RDONLY);
  EXPECT_TRUE(file.hasName());
  ::unlink(name.c_str());
  EXPECT_FALSE(file.hasName());
}

// -- room -----------------------------------------------------------------------------------------

TEST_F(DescriptorTest, FindsRoomForALittleAndStaysAsItIs) {
  EXPECT_TRUE(Descriptor(name, O_RDWR).reserve(100000, 100000));
  EXPECT_EQ(support::readFile(name), "0123456789");
}

TEST_F(DescriptorTest, FindsNoRoomBeyondTheLimitOnTheSizeOfFiles) {
  const Descriptor file(name, O_RDWR);
  const support::FileSizeLimit limit(1000);
  EXPECT_TRUE(file.reserve(990, 1000));
  EXPECT_FALSE(file.reserve(991, 0));
  EXPECT_FALSE(file.reserve(0, 1001));
}

TEST_F(DescriptorTest, FindsRoomForWhatStandsInTheFileAndBesideItTogether) {
  const Descriptor file(name, O_RDWR);
  const systemCalls::SmallDisk disk(1000);
  EXPECT_TRUE(file.reserve(999, 0));
  EXPECT_TRUE(file.reserve(0, 999));
  EXPECT_TRUE(file.reserve(499, 500));
  EXPECT_FALSE(file.reserve(500, 500));
  EXPECT_FALSE(file.reserve(1000, 0));
  EXPECT_FALSE(file.reserve(0, 1000));
}

TEST_F(DescriptorTest, FindsNoRoomForMoreThanTheDiskSetsAside) {
  const Descriptor file(name, O_RDWR);
  const systemCalls::SmallDisk disk(std::numeric_limits<long>::max(), 1000);
  EXPECT_TRUE(file.reserve(1000, 0));
  EXPECT_FALSE(file.reserve(1001, 0));
}

// As file systems in memory that were given no size.
TEST_F(DescriptorTest, GoesOnWhereTheFileSystemCountsNoBlocks) {
  EXPECT_TRUE(Descriptor("/proc/self/status", O_RDONLY).reserve(1000, 1000));
}

TEST_F(DescriptorTest, FailuresNameTheFile) {
  try {
    const Descriptor file(dir.file("missing"), O_RDONLY);
    FAIL() << "opened";
  } catch (const std::system_error& error) {
    EXPECT_EQ(error.code(), std::errc::no_such_file_or_directory);
    EXPECT_THAT(error.what(), HasSubstr("cannot open file " + dir.file("missing")));
  }
  const Descriptor readOnly(name, O_RDONLY);
  EXPECT_THROW(readOnly.writeAt(0, "a", 1), std::system_error);
  EXPECT_THROW(readOnly.resize(1), std::system_error);
  EXPECT_EQ(support::readFile(name), "0123456789");
}

}  // namespace
