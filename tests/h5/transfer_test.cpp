#include "h5/transfer.h"

#include <gtest/gtest.h>

#include "h5/DataSet.h"
#include "h5/File.h"
#include "support/TempDir.h"

namespace {

using h5::DataSet;
using h5::File;
using h5::Handle;
namespace h5 = h5;

class TransferTest : public ::testing::Test {
 protected:
  const support::TempDir dir;
  const File file{dir.file("a.h5"), File::READ_WRITE | File::CREATE};
};

TEST_F(TransferTest, ValuesComeBack) {
  const DataSet dataset = DataSet::create<int>(file.handle(), "dat", {2, 2});
  h5::writeValues(dataset.handle(), std::vector<int>{1, 2, 3, 4});
  std::vector<double> values(4);
  h5::readValues(dataset.handle(), values);
  EXPECT_EQ(values, (std::vector<double>{1, 2, 3, 4}));
}

TEST_F(TransferTest, SelectedValuesAreRead) {
  const DataSet dataset = DataSet::create<int>(file.handle(), "dat", {3});
  h5::writeValues(dataset.handle(), std::vector<int>{1, 2, 3});
  const Handle part(H5Dget_space(dataset.handle().id()));
  const hsize_t start = 1;
  const hsize_t count = 2;
  ASSERT_GE(H5Sselect_hyperslab(part.id(), H5S_SELECT_SET, &start, nullptr, &count, nullptr), 0);
  const Handle memory(H5Screate_simple(1, &count, nullptr));
  std::vector<int> values(2);
  h5::readSelected(dataset.handle(), part, memory, values);
  EXPECT_EQ(values, (std::vector<int>{2, 3}));
}

TEST_F(TransferTest, StringEndsAtItsFirstZero) {
  const DataSet dataset = DataSet::create<std::string>(file.handle(), "dat", {1});
  h5::writeValues(dataset.handle(), std::vector<std::string>{std::string("ab\0cd", 5)});
  std::vector<std::string> values(1);
  h5::readValues(dataset.handle(), values);
  EXPECT_EQ(values, std::vector<std::string>{"ab"});
}

}  // namespace
