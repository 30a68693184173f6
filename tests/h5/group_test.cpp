#include "h5/group.h"

#include <gtest/gtest.h>

#include "dataio/failures.h"
#include "h5/File.h"
#include "h5/Handle.h"
#include "support/TempDir.h"

namespace {

using failures::hdf5Words;
using failures::textOf;
using h5::Error;
using h5::File;
namespace h5 = h5;

class GroupTest : public ::testing::Test {
 protected:
  const support::TempDir dir;
  const File file{dir.file("a.h5"), File::READ_WRITE | File::CREATE};
  const h5::Handle& root = file.handle();
};

TEST_F(GroupTest, LinkExistsOnceTheGroupIsCreated) {
  EXPECT_FALSE(h5::existLink(root, "grp"));
  h5::createGroup(root, "grp");
  EXPECT_TRUE(h5::existLink(root, "grp"));
  EXPECT_FALSE(h5::existLink(root, "grp/inner"));
}

TEST_F(GroupTest, LinkQuestionBelowAMissingGroupFails) {
  EXPECT_EQ(textOf<Error>([&] { h5::existLink(root, "nope/inner"); }),
            "Invalid link for exist() " + hdf5Words(H5E_SYM, H5E_NOTFOUND));
}

TEST_F(GroupTest, MissingGroupCannotBeOpened) {
  EXPECT_EQ(textOf<Error>([&] { h5::openGroup(root, "nope"); }),
            "Unable to open the group \"nope\":" + hdf5Words(H5E_SYM, H5E_NOTFOUND));
}

TEST_F(GroupTest, GroupCannotBeCreatedTwice) {
  h5::createGroup(root, "grp");
  EXPECT_EQ(textOf<Error>([&] { h5::createGroup(root, "grp"); }),
            "Unable to create the group \"grp\":" + hdf5Words(H5E_LINK, H5E_EXISTS));
}

TEST_F(GroupTest, CountsItsChildren) {
  h5::createGroup(root, "grp");
  h5::createGroup(root, "grp/a");
  h5::createGroup(root, "grp/b");
  EXPECT_EQ(h5::countObjects(h5::openGroup(root, "grp")), 2);
  EXPECT_EQ(h5::countObjects(h5::openGroup(root, "grp/a")), 0);
}

TEST_F(GroupTest, CannotCountInWhatIsNoGroup) {
  EXPECT_EQ(
      textOf<Error>([] { h5::countObjects(h5::Handle()); }),
      "Unable to count objects in existing group or file" + hdf5Words(H5E_ARGS, H5E_BADVALUE));
}

}  // namespace
