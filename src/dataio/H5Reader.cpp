#include "dataio/H5Reader.h"

#include "common/check.h"
#include "common/console.h"

namespace console = common::console;

namespace dataio {

H5Reader::H5Reader(const std::string& file) : H5Reader(file, "r") {}

H5Reader::H5Reader(const std::string& file, const std::string& access) : H5Base(file, access) {}

template <class T>
T H5Reader::readScalar(const std::string& path) const {
  std::size_t rows = 0;
  std::size_t columns = 0;
  const h5::DataSet dataset = readDataset(path, rows, columns);
  if (dataset.dimensions() != h5::Shape{1}) console::fail("non-scalar dataset <", path, ">!");
  return dataset.readVector<T>().front();
}

int H5Reader::readIntScalar(const std::string& path) const {
  return readScalar<int>(path);
}

double H5Reader::readDoubleScalar(const std::string& path) const {
  return readScalar<double>(path);
}

template <class T>
std::vector<std::vector<T>> H5Reader::readVecVec(const std::string& path) const {
  std::size_t rows = 0;
  std::size_t columns = 0;
  const h5::DataSet dataset = readDataset(path, rows, columns);
  if (rows < 1 || columns < 1) console::fail("dataset <", path, "> not 2-dimensional!");
  return dataset.readRows<T>();
}

std::vector<std::vector<int>> H5Reader::readIntVecVec(const std::string& path) const {
  return readVecVec<int>(path);
}

std::vector<std::vector<double>> H5Reader::readDoubleVecVec(const std::string& path) const {
  return readVecVec<double>(path);
}

std::vector<double> H5Reader::readDoubleVecFrom2dDataset(const std::string& path,
                                                         int column) const {
  std::size_t rows = 0;
  std::size_t columns = 0;
  const h5::DataSet dataset = readDataset(path, rows, columns);
  if (column < 0 || static_cast<std::size_t>(column) >= columns) {
    console::fail("dataset <", path, "> does not contain column", column);
  }
  const int n = static_cast<int>(rows);
  const auto slice = dataset.readBlock<double>({0, static_cast<hsize_t>(column)}, {rows, 1});
  CHECK_THAT(static_cast<int>(slice.size()) == n, "the number of slice rows is incorrect");
  std::vector<double> values;
  values.reserve(slice.size());
  for (const std::vector<double>& x : slice) {
    CHECK_THAT(static_cast<int>(x.size()) == 1, "the number of slice columns is incorrect");
    values.push_back(x.front());
  }
  return values;
}

std::vector<std::string> H5Reader::readStrVec(const std::string& path) const {
  std::size_t rows = 0;
  std::size_t columns = 0;
  const h5::DataSet dataset = readDataset(path, rows, columns);
  if (rows + columns < 1) console::fail("dataset <", path, "> not a 1-d array!");
  return dataset.readVector<std::string>();
}

}  // namespace dataio
