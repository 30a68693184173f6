#include "h5/DataSet.h"

#include <gtest/gtest.h>

#include "dataio/failures.h"
#include "h5/File.h"
#include "h5/Handle.h"
#include "h5/group.h"
#include "support/TempDir.h"

namespace {

using failures::hdf5Words;
using failures::textOf;
using h5::DataSet;
using h5::Error;
using h5::File;
using h5::Handle;
using h5::Shape;
namespace h5 = h5;

using Doubles = std::vector<double>;
using Ints = std::vector<int>;
using IntRows = std::vector<std::vector<int>>;
using Strings = std::vector<std::string>;

class DataSetTest : public ::testing::Test {
 protected:
  template <class T>
  DataSet make(const Shape& shape) const {
    return DataSet::create<T>(file.handle(), "dat", shape);
  }

  const support::TempDir dir;
  const File file{dir.file("a.h5"), File::READ_WRITE | File::CREATE};
};

TEST_F(DataSetTest, MissingDatasetCannotBeOpened) {
  EXPECT_EQ(textOf<Error>([&] { DataSet::open(file.handle(), "nope"); }),
            "Unable to open the dataset \"nope\":" + hdf5Words(H5E_SYM, H5E_NOTFOUND));
}

TEST_F(DataSetTest, CannotBeCreatedTwice) {
  make<int>({1});
  const std::string text = textOf<Error>([&] { make<int>({1}); });
  EXPECT_EQ(text.rfind("Unable to create the dataset \"dat\": (", 0), 0U) << text;
}

TEST_F(DataSetTest, IsContiguous) {
  const DataSet dataset = make<double>({2, 3});
  const Handle properties(H5Dget_create_plist(dataset.handle().id()));
  EXPECT_EQ(H5Pget_layout(properties.id()), H5D_CONTIGUOUS);
}

TEST_F(DataSetTest, KnowsItsDimensions) {
  make<int>({2, 0, 3});
  EXPECT_EQ(DataSet::open(file.handle(), "dat").dimensions(), (Shape{2, 0, 3}));
  EXPECT_EQ(DataSet::create<int>(file.handle(), "rank0", {}).dimensions(), Shape());
}

TEST_F(DataSetTest, GroupHasNoDimensions) {
  h5::createGroup(file.handle(), "grp");
  const DataSet noDataset(h5::openGroup(file.handle(), "grp"));
  EXPECT_EQ(textOf<Error>([&] { noDataset.dimensions(); }),
            "Unable to get DataSpace out of DataSet" + hdf5Words(H5E_ARGS, H5E_BADTYPE));
}

TEST_F(DataSetTest, VectorsComeBack) {
  const DataSet dataset = make<double>({3});
  dataset.writeVector(Doubles{0.5, 1.5, -2.5});
  EXPECT_EQ(dataset.readVector<double>(), (Doubles{0.5, 1.5, -2.5}));
  EXPECT_EQ(dataset.readVector<int>(), (Ints{0, 1, -2}));
}

TEST_F(DataSetTest, StringsComeBack) {
  const DataSet dataset = make<std::string>({3});
  dataset.writeVector(Strings{"inflow", "", "Fluß"});
  EXPECT_EQ(dataset.readVector<std::string>(), (Strings{"inflow", "", "Fluß"}));
}

TEST_F(DataSetTest, StringsThatWereNeverWrittenAreEmpty) {
  EXPECT_EQ(make<std::string>({2}).readVector<std::string>(), Strings(2));
}

TEST_F(DataSetTest, RowsComeBack) {
  const DataSet dataset = make<int>({2, 3});
  dataset.writeRows(IntRows{{1, 2, 3}, {4, 5, 6}});
  EXPECT_EQ(dataset.readRows<int>(), (IntRows{{1, 2, 3}, {4, 5, 6}}));
}

TEST_F(DataSetTest, BlockIsAPartOfTheRows) {
  const DataSet dataset = make<int>({3, 3});
  dataset.writeRows(IntRows{{1, 2, 3}, {4, 5, 6}, {7, 8, 9}});
  EXPECT_EQ(dataset.readBlock<int>({1, 0}, {2, 2}), (IntRows{{4, 5}, {7, 8}}));
  EXPECT_EQ(dataset.readBlock<int>({0, 2}, {3, 1}), (IntRows{{3}, {6}, {9}}));
}

TEST_F(DataSetTest, BlockLiesInsideTheDataset) {
  const DataSet dataset = make<int>({3, 3});
  const std::string text = textOf<Error>([&] { dataset.readBlock<int>({2, 2}, {2, 2}); });
  EXPECT_EQ(text.rfind("Error during HDF5 Read:  (", 0), 0U) << text;
}

TEST_F(DataSetTest, BlockNeedsTwoDimensions) {
  EXPECT_EQ(textOf<Error>([&] {
              make<int>({3}).readBlock<int>({0, 0}, {1, 1});
            }),
            "Impossible to read DataSet of dimensions 1 into arrays of dimensions 2");
}

TEST_F(DataSetTest, DatasetsWithoutValuesCanBeReadAndWritten) {
  const DataSet dataset = make<int>({0});
  EXPECT_NO_THROW(dataset.writeVector(Ints{}));
  EXPECT_EQ(dataset.readVector<int>(), Ints());
  const DataSet columns = DataSet::create<int>(file.handle(), "columns", {2, 0});
  EXPECT_NO_THROW(columns.writeRows(IntRows{{}, {}}));
  EXPECT_EQ(columns.readRows<int>(), IntRows(2));
}

TEST_F(DataSetTest, VectorFitsOneRowAndOneColumn) {
  const DataSet row = make<int>({1, 3});
  row.writeVector(Ints{1, 2, 3});
  EXPECT_EQ(row.readVector<int>(), (Ints{1, 2, 3}));
  EXPECT_EQ(row.readRows<int>(), (IntRows{{1, 2, 3}}));
  const DataSet column = DataSet::create<int>(file.handle(), "column", {3, 1});
  column.writeVector(Ints{1, 2, 3});
  EXPECT_EQ(column.readVector<int>(), (Ints{1, 2, 3}));
  EXPECT_EQ(column.readRows<int>(), (IntRows{{1}, {2}, {3}}));
}

TEST_F(DataSetTest, RanksHaveToFit) {
  const DataSet block = make<int>({2, 3});
  EXPECT_EQ(textOf<Error>([&] { block.writeVector(Ints(6)); }),
            "Impossible to write buffer of dimensions 1 into dataset of dimensions 2");
  EXPECT_EQ(textOf<Error>([&] { block.readVector<int>(); }),
            "Impossible to read DataSet of dimensions 2 into arrays of dimensions 1");
  const DataSet vector = DataSet::create<int>(file.handle(), "vector", {3});
  EXPECT_EQ(textOf<Error>([&] {
              vector.writeRows(IntRows{{1, 2, 3}});
            }),
            "Impossible to write buffer of dimensions 2 into dataset of dimensions 1");
}

TEST_F(DataSetTest, ValueWithoutDimensionIsNoVector) {
  const DataSet value = make<int>({});
  EXPECT_EQ(textOf<Error>([&] { value.readVector<int>(); }),
            "Impossible to read DataSet of dimensions 0 into arrays of dimensions 1");
  EXPECT_EQ(textOf<Error>([&] { value.writeVector(Ints{1}); }),
            "Impossible to write buffer of dimensions 1 into dataset of dimensions 0");
}

TEST_F(DataSetTest, SizesHaveToBeEqual) {
  const DataSet vector = make<int>({3});
  EXPECT_EQ(textOf<Error>([&] {
              vector.writeVector(Ints{1, 2});
            }),
            "Mismatch between vector size (2) and dataset size (3) on dimension 0");
  const DataSet block = DataSet::create<int>(file.handle(), "block", {2, 3});
  EXPECT_EQ(textOf<Error>([&] {
              block.writeRows(IntRows{{1, 2, 3}, {4, 5}});
            }),
            "Mismatch between vector size (2) and dataset size (3) on dimension 1");
  EXPECT_EQ(textOf<Error>([&] {
              block.writeRows(IntRows{{1, 2, 3}});
            }),
            "Mismatch between vector size (1) and dataset size (2) on dimension 0");
  EXPECT_EQ(textOf<Error>([&] {
              block.writeBuffer(Ints(5), {2, 3});
            }),
            "Impossible to write 5 values as a buffer of 6");
}

TEST_F(DataSetTest, RowsAreNeeded) {
  const DataSet block = make<int>({0, 3});
  EXPECT_EQ(textOf<Error>([&] { block.writeRows(IntRows{}); }),
            "Impossible to write an empty vector of vectors: at least one row is needed");
}

TEST_F(DataSetTest, StringsAndNumbersAreNotConverted) {
  const DataSet numbers = make<int>({1});
  EXPECT_EQ(textOf<Error>([&] { numbers.readVector<std::string>(); }),
            "Error during HDF5 Read: " + hdf5Words(H5E_DATATYPE, H5E_CANTINIT));
  const DataSet strings = DataSet::create<std::string>(file.handle(), "strings", {1});
  EXPECT_EQ(textOf<Error>([&] { strings.readVector<int>(); }),
            "Error during HDF5 Read: " + hdf5Words(H5E_DATATYPE, H5E_CANTINIT));
}

}  // namespace
