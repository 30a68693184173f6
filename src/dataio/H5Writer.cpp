#include "dataio/H5Writer.h"

#include "common/check.h"

namespace dataio {

namespace {

/// @throws h5::Error for a negative extent.
hsize_t extent(const std::string& path, int value) {
  if (value < 0) {
    throw h5::Error("Impossible to write dataset \"" + path + "\" of extent " +
                    std::to_string(value) + ": an extent is at least 0");
  }
  return static_cast<hsize_t>(value);
}

}  // namespace

H5Writer::H5Writer(const std::string& file) : H5Writer(file, "w") {}

H5Writer::H5Writer(const std::string& file, const std::string& access) : H5Base(file, access) {}

template <class T>
h5::DataSet H5Writer::getDataset(const std::string& path, const h5::Shape& dims) {
  if (!existDataset(path)) return h5::DataSet::create<T>(f5.handle(), path, dims);

  h5::DataSet dataset = h5::DataSet::open(f5.handle(), path);
  const h5::Shape d = dataset.dimensions();
  CHECK_THAT(d.size() == dims.size(), "dimensions do not match");
  for (std::size_t ii = 0; ii < d.size(); ++ii) {
    CHECK_THAT(d.at(ii) == dims.at(ii), "dimensions do not match");
  }
  return dataset;
}

template <class T>
void H5Writer::writeScalar(const std::string& path, const T& value) {
  createGroup(path);
  getDataset<T>(path, {1}).writeVector(std::vector<T>{value});
  attachAttributeInt(path, "size", 1);
}

template <class T>
void H5Writer::writeVecVec(const std::string& path, const std::vector<std::vector<T>>& values) {
  const h5::Shape dims = h5::shapeOf(values);
  createGroup(path);
  getDataset<T>(path, dims).writeRows(values);
  attachAttributeInt(path, "size", static_cast<int>(dims[0] * dims[1]));
}

template <class T>
void H5Writer::writeArray(const std::string& path, int rows, int columns, const T* const* data) {
  const h5::Shape dims{extent(path, rows), extent(path, columns)};
  createGroup(path);
  std::vector<T> values;
  values.reserve(h5::elementCount(dims));
  for (int row = 0; row < rows; ++row) {
    values.insert(values.end(), data[row], data[row] + columns);
  }
  getDataset<T>(path, dims).writeBuffer(values, dims);
  attachAttributeInt(path, "size", columns);
}

void H5Writer::writeIntScalar(const std::string& path, const int& value) {
  writeScalar(path, value);
}

void H5Writer::writeDoubleScalar(const std::string& path, const double& value) {
  writeScalar(path, value);
}

void H5Writer::writeIntVecVec(const std::string& path,
                              const std::vector<std::vector<int>>& values) {
  writeVecVec(path, values);
}

void H5Writer::writeDoubleVecVec(const std::string& path,
                                 const std::vector<std::vector<double>>& values) {
  writeVecVec(path, values);
}

void H5Writer::writeIntArray(const std::string& path, const int& rows, const int& columns,
                             const int* const* data) {
  writeArray(path, rows, columns, data);
}

void H5Writer::writeDoubleArray(const std::string& path, const int& rows, const int& columns,
                                const double* const* data) {
  writeArray(path, rows, columns, data);
}

void H5Writer::writeStringVec(const std::string& path, const int& length,
                              const std::vector<std::string>& values) {
  const h5::Shape dims{extent(path, length)};
  createGroup(path);
  getDataset<std::string>(path, dims).writeVector(values);
  attachAttributeInt(path, "size", length);
}

void H5Writer::flush() {
  f5.flush();
}

bool H5Writer::reserve(std::size_t appended, std::size_t overwritten) {
  return f5.reserve(appended, overwritten);
}

}  // namespace dataio
