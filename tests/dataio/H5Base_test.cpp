#include "dataio/H5Base.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <memory>

#include "dataio/H5Writer.h"
#include "dataio/failures.h"
#include "h5/group.h"
#include "support/FileSizeLimit.h"
#include "support/TempDir.h"

namespace {

using dataio::H5Base;
using dataio::H5Writer;
using failures::hdf5Words;
using failures::reportOf;
using failures::textOf;
namespace h5 = h5;

using DoubleRows = std::vector<std::vector<double>>;

class H5BaseTest : public ::testing::Test {
 protected:
  const support::TempDir dir;
  const std::string name = dir.file("run.h5");
  H5Writer file{name};
};

TEST(GetFileAccess, MapsTextsToFlags) {
  EXPECT_EQ(dataio::getFileAccess("w"), 19U);
  EXPECT_EQ(dataio::getFileAccess("rw"), 1U);
  EXPECT_EQ(dataio::getFileAccess("r"), 0U);
  EXPECT_EQ(dataio::getFileAccess("append"), 0U);
}

TEST(H5BasePaths, AreSplitAtTheLastSlash) {
  EXPECT_EQ(H5Base::getGroup("a/b/c"), "a/b");
  EXPECT_EQ(H5Base::getDataset("a/b/c"), "c");
  EXPECT_EQ(H5Base::getGroup("c"), "");
  EXPECT_EQ(H5Base::getDataset("c"), "c");
  EXPECT_EQ(H5Base::getGroup("/c"), "");
  EXPECT_EQ(H5Base::getDataset("/c"), "c");
}

TEST_F(H5BaseTest, KnowsItsFileName) {
  EXPECT_EQ(file.getFilename(), name);
}

TEST_F(H5BaseTest, GroupOfABareNameExists) {
  EXPECT_TRUE(file.existGroup("nothing"));
  EXPECT_TRUE(file.existGroup("/nothing"));
}

TEST_F(H5BaseTest, GroupExistsOnceItIsCreated) {
  EXPECT_FALSE(file.existGroup("CellsAll/set"));
  file.createGroup("CellsAll/set");
  EXPECT_TRUE(file.existGroup("CellsAll/set"));
}

TEST_F(H5BaseTest, QuestionForAGroupInAMissingGroupFails) {
  EXPECT_EQ(textOf<h5::Error>([&] { file.existGroup("no/group/name"); }),
            "Invalid link for exist() " + hdf5Words(H5E_SYM, H5E_NOTFOUND));
}

TEST_F(H5BaseTest, DatasetInAMissingGroupDoesNotExist) {
  EXPECT_EQ(failures::standardErrorOf([&] { EXPECT_FALSE(file.existDataset("nogroup/name")); }),
            "");
}

TEST_F(H5BaseTest, DatasetExistsOnceItIsWritten) {
  EXPECT_FALSE(file.existDataset("set"));
  file.writeIntScalar("set", 1);
  EXPECT_TRUE(file.existDataset("set"));
  EXPECT_TRUE(file.existDataset("/set"));

  file.writeIntScalar("CellsAll/deep/set", 1);
  EXPECT_TRUE(file.existDataset("CellsAll/deep/set"));
  EXPECT_FALSE(file.existDataset("CellsAll/deep/other"));
}

TEST_F(H5BaseTest, DatasetIsNoGroupForOthers) {
  file.writeIntScalar("set", 1);
  const std::string text = textOf<h5::Error>([&] { file.existDataset("set/name"); });
  EXPECT_EQ(text.rfind("Unable to open the group \"set\": (", 0), 0U) << text;
}

TEST_F(H5BaseTest, CreatesAllGroupsButNotTheDataset) {
  file.createGroup("/RESULTS/CellsAll/HydState/0000000");
  EXPECT_EQ(file.getNumberObjs("RESULTS"), 1);
  EXPECT_EQ(file.getNumberObjs("RESULTS/CellsAll"), 1);
  EXPECT_EQ(file.getNumberObjs("RESULTS/CellsAll/HydState"), 0);
}

TEST_F(H5BaseTest, CreatesOnlyTheGroupsThatAreMissing) {
  file.createGroup("CellsAll/first");
  file.createGroup("CellsAll/inner/second");
  EXPECT_EQ(file.getNumberObjs("CellsAll"), 1);
}

TEST_F(H5BaseTest, CannotCreateAGroupInReadOnlyAccess) {
  const std::string other = dir.file("other.h5");
  { const H5Writer empty(other); }
  H5Base readOnly(other, "r");
  const std::string text = textOf<h5::Error>([&] { readOnly.createGroup("grp/name"); });
  EXPECT_EQ(text.rfind("Unable to create the group \"grp\": (", 0), 0U) << text;
}

TEST_F(H5BaseTest, CountsTheChildrenOfAGroup) {
  file.writeIntScalar("grp/a", 1);
  file.writeIntScalar("grp/b", 1);
  EXPECT_EQ(file.getNumberObjs("grp"), 2);
  EXPECT_EQ(file.getNumberObjs("/grp"), 2);
}

TEST_F(H5BaseTest, CannotCountInAMissingGroup) {
  EXPECT_EQ(textOf<h5::Error>([&] { file.getNumberObjs("nope"); }),
            "Unable to open the group \"nope\":" + hdf5Words(H5E_SYM, H5E_NOTFOUND));
}

TEST_F(H5BaseTest, AttributesComeBack) {
  file.writeIntScalar("grp/a", 1);
  file.attachAttributeInt("grp/a", "dim", 3);
  file.attachAttributeDouble("grp/a", "t", 0.1);
  EXPECT_EQ(file.readAttributeInt("grp/a", "dim"), 3);
  EXPECT_EQ(file.readAttributeDouble("grp/a", "t"), 0.1);
}

TEST_F(H5BaseTest, AttributeThatExistsIsOverwritten) {
  file.writeIntScalar("a", 1);
  file.attachAttributeDouble("a", "t", 0.5);
  file.attachAttributeDouble("a", "t", -1.0);
  EXPECT_EQ(file.readAttributeDouble("a", "t"), -1.0);
}

TEST_F(H5BaseTest, AttributesNeedTheDataset) {
  const std::string attach = reportOf([&] { file.attachAttributeInt("nope", "t", 1); });
  EXPECT_EQ(attach.rfind(" -> cannot attach attribute to dataset <nope> in file <" + name +
                             ">, in file: src/dataio/H5Base on line ",
                         0),
            0U)
      << attach;
  const std::string read = reportOf([&] { file.readAttributeDouble("nope", "t"); });
  EXPECT_EQ(read.rfind(" -> cannot read attribute to dataset <nope> in file <" + name +
                           ">, in file: src/dataio/H5Base on line ",
                       0),
            0U)
      << read;
}

TEST_F(H5BaseTest, MissingAttributeIsReported) {
  file.writeIntScalar("a", 1);
  EXPECT_EQ(textOf<h5::Error>([&] { file.readAttributeInt("a", "nope"); }),
            "Unable to open the attribute \"nope\":" + hdf5Words(H5E_ATTR, H5E_NOTFOUND));
}

TEST_F(H5BaseTest, ContentsAreThereAfterClosing) {
  const std::string other = dir.file("other.h5");
  {
    H5Writer writer(other);
    writer.writeIntScalar("CellsAll/set", 5);
  }
  EXPECT_TRUE(H5Base(other, "r").existDataset("CellsAll/set"));
}

TEST(H5BaseDeathTest, FailureToFlushAtTheEndIsReported) {
  const support::TempDir dir;
  const std::string name = dir.file("big2.h5");
  EXPECT_EXIT(
      {
        auto file = std::make_unique<H5Writer>(name);
        // Standard error goes to a file here, too: the limit has to leave room for it.
        file->writeDoubleVecVec("big", DoubleRows(1000, std::vector<double>(100)));
        const support::FileSizeLimit limit(400000);
        file->writeDoubleVecVec("pending", DoubleRows(10, std::vector<double>(10)));
        file.reset();
        std::_Exit(0);
      },
      ::testing::ExitedWithCode(0),
      " -> Unable to flush file " + name + ": cannot write to file " + name + ": File too large\n");
}

}  // namespace
