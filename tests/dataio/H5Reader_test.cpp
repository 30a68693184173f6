#include "dataio/H5Reader.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <memory>

#include "dataio/H5Writer.h"
#include "dataio/failures.h"
#include "h5/Handle.h"
#include "support/TempDir.h"

namespace {

using dataio::H5Reader;
using dataio::H5Writer;
using failures::hdf5Words;
using failures::reportOf;
using failures::textOf;
namespace h5 = h5;

using IntRows = std::vector<std::vector<int>>;
using DoubleRows = std::vector<std::vector<double>>;

/// A file whose datasets have the shapes that a test wants, all values being 0.
class H5ReaderTest : public ::testing::Test {
 protected:
  template <class T>
  void make(const std::string& path, const h5::Shape& shape) const {
    const h5::File file(name, h5::File::READ_WRITE);
    h5::DataSet::create<T>(file.handle(), path, shape);
  }
  H5Reader open() const { return H5Reader(name); }

  const support::TempDir dir;
  const std::string name = dir.file("run.h5");

  void SetUp() override {
    H5Writer writer(name);
    writer.writeIntScalar("set", 7);
    writer.writeDoubleScalar("CFL", 0.9);
    writer.writeIntVecVec("map", {{1, 2}, {3, 4}, {5, 6}});
    writer.writeDoubleVecVec("dat", {{0.5, 1.5}, {2.5, 3.5}});
    writer.writeStringVec("names", 3, {"inflow", "", "Fluß"});
  }
};

TEST_F(H5ReaderTest, ReadsWhatAWriterWrote) {
  const H5Reader reader(name);
  EXPECT_EQ(reader.readIntScalar("set"), 7);
  EXPECT_EQ(reader.readDoubleScalar("CFL"), 0.9);
  EXPECT_EQ(reader.readIntVecVec("map"), (IntRows{{1, 2}, {3, 4}, {5, 6}}));
  EXPECT_EQ(reader.readDoubleVecVec("dat"), (DoubleRows{{0.5, 1.5}, {2.5, 3.5}}));
  EXPECT_EQ(reader.readStrVec("names"), (std::vector<std::string>{"inflow", "", "Fluß"}));
}

TEST_F(H5ReaderTest, NumbersAreConverted) {
  const H5Reader reader(name);
  EXPECT_EQ(reader.readDoubleScalar("set"), 7.0);
  EXPECT_EQ(reader.readIntScalar("CFL"), 0);
  EXPECT_EQ(reader.readIntVecVec("dat"), (IntRows{{0, 1}, {2, 3}}));
}

TEST_F(H5ReaderTest, MissingFileIsReported) {
  const std::string missing = dir.file("missing.h5");
  EXPECT_EQ(textOf<h5::Error>([&] { const H5Reader reader(missing); }),
            "Unable to open file " + missing + hdf5Words(H5E_FILE, H5E_CANTOPENFILE));
}

TEST_F(H5ReaderTest, MissingDatasetIsReported) {
  const H5Reader reader(name);
  const std::string text =
      "Unable to open the dataset \"nope\":" + hdf5Words(H5E_SYM, H5E_NOTFOUND);
  EXPECT_EQ(textOf<h5::Error>([&] { reader.readIntScalar("nope"); }), text);
  EXPECT_EQ(textOf<h5::Error>([&] { reader.readDoubleVecVec("nope"); }), text);
  EXPECT_EQ(textOf<h5::Error>([&] { reader.readStrVec("nope"); }), text);
}

TEST_F(H5ReaderTest, ScalarHasOneDimensionOfLengthOne) {
  make<double>("rank0", {});
  make<double>("pair", {2});
  make<double>("empty", {0});
  make<double>("oneByOne", {1, 1});
  make<double>("oneByNone", {1, 0});
  const H5Reader reader(name);
  for (const char* path : {"rank0", "pair", "empty", "oneByOne", "oneByNone"}) {
    const std::string report = std::string(" -> non-scalar dataset <") + path + ">!\n";
    EXPECT_EQ(reportOf([&] { reader.readDoubleScalar(path); }), report);
    EXPECT_EQ(reportOf([&] { reader.readIntScalar(path); }), report);
  }
}

TEST_F(H5ReaderTest, RowsNeedTwoExtents) {
  make<int>("rank0", {});
  make<int>("vector", {3});
  make<int>("noRow", {0, 3});
  make<int>("noColumn", {3, 0});
  const H5Reader reader(name);
  for (const char* path : {"rank0", "vector", "noRow", "noColumn"}) {
    const std::string report = std::string(" -> dataset <") + path + "> not 2-dimensional!\n";
    EXPECT_EQ(reportOf([&] { reader.readIntVecVec(path); }), report);
    EXPECT_EQ(reportOf([&] { reader.readDoubleVecVec(path); }), report);
  }
}

TEST_F(H5ReaderTest, RowsCannotBeReadFromThreeDimensions) {
  make<int>("cube", {2, 2, 2});
  const H5Reader reader(name);
  EXPECT_EQ(textOf<h5::Error>([&] { reader.readIntVecVec("cube"); }),
            "Impossible to read DataSet of dimensions 3 into arrays of dimensions 2");
}

TEST_F(H5ReaderTest, StringsNeedOneElement) {
  make<std::string>("rank0", {});
  make<std::string>("empty", {0});
  const H5Reader reader(name);
  EXPECT_EQ(reportOf([&] { reader.readStrVec("rank0"); }),
            " -> dataset <rank0> not a 1-d array!\n");
  EXPECT_EQ(reportOf([&] { reader.readStrVec("empty"); }),
            " -> dataset <empty> not a 1-d array!\n");
}

TEST_F(H5ReaderTest, StringsMayStandInOneRowOrOneColumn) {
  make<std::string>("row", {1, 2});
  make<std::string>("column", {2, 1});
  make<std::string>("block", {2, 2});
  const H5Reader reader(name);
  EXPECT_EQ(reader.readStrVec("row"), std::vector<std::string>(2));
  EXPECT_EQ(reader.readStrVec("column"), std::vector<std::string>(2));
  EXPECT_EQ(textOf<h5::Error>([&] { reader.readStrVec("block"); }),
            "Impossible to read DataSet of dimensions 2 into arrays of dimensions 1");
}

TEST_F(H5ReaderTest, NumbersAreNoStrings) {
  const H5Reader reader(name);
  EXPECT_EQ(textOf<h5::Error>([&] { reader.readStrVec("set"); }),
            "Error during HDF5 Read: " + hdf5Words(H5E_DATATYPE, H5E_CANTINIT));
}

TEST_F(H5ReaderTest, ColumnIsReadFromATwoDimensionalDataset) {
  const H5Reader reader(name);
  EXPECT_EQ(reader.readDoubleVecFrom2dDataset("dat", 0), (std::vector<double>{0.5, 2.5}));
  EXPECT_EQ(reader.readDoubleVecFrom2dDataset("dat", 1), (std::vector<double>{1.5, 3.5}));
  EXPECT_EQ(reader.readDoubleVecFrom2dDataset("map", 1), (std::vector<double>{2, 4, 6}));
}

TEST_F(H5ReaderTest, ColumnOfADatasetWithoutRowsIsEmpty) {
  make<double>("noRow", {0, 3});
  EXPECT_TRUE(H5Reader(name).readDoubleVecFrom2dDataset("noRow", 2).empty());
}

TEST_F(H5ReaderTest, ColumnMustExist) {
  const H5Reader reader(name);
  EXPECT_EQ(reportOf([&] { reader.readDoubleVecFrom2dDataset("dat", 2); }),
            " -> dataset <dat> does not contain column2\n");
  EXPECT_EQ(reportOf([&] { reader.readDoubleVecFrom2dDataset("dat", -1); }),
            " -> dataset <dat> does not contain column-1\n");
  EXPECT_EQ(reportOf([&] { reader.readDoubleVecFrom2dDataset("set", 0); }),
            " -> dataset <set> does not contain column0\n");
}

TEST_F(H5ReaderTest, ColumnCannotBeReadFromThreeDimensions) {
  make<double>("cube", {2, 2, 2});
  const H5Reader reader(name);
  EXPECT_EQ(textOf<h5::Error>([&] { reader.readDoubleVecFrom2dDataset("cube", 0); }),
            "Impossible to read DataSet of dimensions 3 into arrays of dimensions 2");
}

}  // namespace
