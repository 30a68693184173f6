#include "h5/DataSet.h"

#include <cstddef>

#include "h5/Handle.h"
#include "h5/storage.h"
#include "h5/transfer.h"
#include "h5/type.h"

namespace h5 {

namespace {

Handle spaceOf(const Handle& dataset) {
  return checked(H5Dget_space(dataset.id()), "Unable to get DataSpace out of DataSet");
}

Handle simpleSpace(const Shape& shape) {
  return checked(H5Screate_simple(static_cast<int>(shape.size()), shape.data(), nullptr),
                 "Unable to create simple dataspace");
}

template <class T>
std::vector<std::vector<T>> splitRows(const std::vector<T>& values, const Shape& shape) {
  std::vector<std::vector<T>> rows;
  rows.reserve(shape.at(0));
  const auto columns = static_cast<std::ptrdiff_t>(shape.at(1));
  auto next = values.begin();
  for (hsize_t row = 0; row < shape.at(0); ++row, next += columns) {
    rows.emplace_back(next, next + columns);
  }
  return rows;
}

}  // namespace

DataSet DataSet::open(const Handle& location, const std::string& path) {
  Handle opened = checked(H5Dopen2(location.id(), path.c_str(), H5P_DEFAULT),
                          "Unable to open the dataset \"" + path + "\":");
  const std::string fault = storageFault(opened.id());
  if (!fault.empty()) throw Error("The dataset \"" + path + "\" " + fault);
  return DataSet(std::move(opened));
}

template <class T>
DataSet DataSet::create(const Handle& location, const std::string& path, const Shape& shape) {
  const Handle space = simpleSpace(shape);
  const Handle type = typeOf<T>();
  return DataSet(checked(H5Dcreate2(location.id(), path.c_str(), type.id(), space.id(), H5P_DEFAULT,
                                    H5P_DEFAULT, H5P_DEFAULT),
                         "Unable to create the dataset \"" + path + "\":"));
}

Shape DataSet::dimensions() const {
  const Handle space = spaceOf(dataset);
  const int rank = H5Sget_simple_extent_ndims(space.id());
  if (rank < 0) fail("Unable to get dataspace number of dimensions");
  Shape dims(static_cast<std::size_t>(rank));
  check(H5Sget_simple_extent_dims(space.id(), dims.data(), nullptr),
        "Unable to get dataspace dimensions");
  return dims;
}

Shape DataSet::fitForRead(std::size_t rank) const {
  const Shape dims = dimensions();
  if (auto fitted = fit(dims, rank)) return *fitted;
  throw Error("Impossible to read DataSet of dimensions " + std::to_string(dims.size()) +
              " into arrays of dimensions " + std::to_string(rank));
}

Shape DataSet::fitForWrite(std::size_t rank) const {
  const Shape dims = dimensions();
  if (auto fitted = fit(dims, rank)) return *fitted;
  throw Error("Impossible to write buffer of dimensions " + std::to_string(rank) +
              " into dataset of dimensions " + std::to_string(dims.size()));
}

template <class T>
std::vector<T> DataSet::readVector() const {
  std::vector<T> values(elementCount(fitForRead(1)));
  readValues(dataset, values);
  return values;
}

template <class T>
std::vector<std::vector<T>> DataSet::readRows() const {
  const Shape shape = fitForRead(2);
  std::vector<T> values(elementCount(shape));
  readValues(dataset, values);
  return splitRows(values, shape);
}

template <class T>
std::vector<std::vector<T>> DataSet::readBlock(const Shape& offset, const Shape& count) const {
  const std::size_t rank = dimensions().size();
  if (rank != 2 || offset.size() != 2 || count.size() != 2) {
    throw Error("Impossible to read DataSet of dimensions " + std::to_string(rank) +
                " into arrays of dimensions 2");
  }
  const Handle part = spaceOf(dataset);
  check(
      H5Sselect_hyperslab(part.id(), H5S_SELECT_SET, offset.data(), nullptr, count.data(), nullptr),
      "Unable to select hyperslab");
  const Handle memory = simpleSpace(count);
  std::vector<T> values(elementCount(count));
  readSelected(dataset, part, memory, values);
  return splitRows(values, count);
}

template <class T>
void DataSet::writeVector(const std::vector<T>& values) const {
  writeBuffer(values, {values.size()});
}

template <class T>
void DataSet::writeRows(const std::vector<std::vector<T>>& rows) const {
  const Shape shape = shapeOf(rows);
  const Shape fitted = fitForWrite(2);
  std::vector<T> values;
  values.reserve(elementCount(shape));
  for (const std::vector<T>& row : rows) {
    requireSize(row.size(), fitted.at(1), 1);
    values.insert(values.end(), row.begin(), row.end());
  }
  writeBuffer(values, shape);
}

template <class T>
void DataSet::writeBuffer(const std::vector<T>& values, const Shape& shape) const {
  const Shape fitted = fitForWrite(shape.size());
  for (std::size_t ii = 0; ii < shape.size(); ++ii) requireSize(shape[ii], fitted[ii], ii);
  if (values.size() != elementCount(shape)) {
    throw Error("Impossible to write " + std::to_string(values.size()) + " values as a buffer of " +
                std::to_string(elementCount(shape)));
  }
  writeValues(dataset, values);
}

template DataSet DataSet::create<int>(const Handle&, const std::string&, const Shape&);
template DataSet DataSet::create<double>(const Handle&, const std::string&, const Shape&);
template DataSet DataSet::create<std::string>(const Handle&, const std::string&, const Shape&);
template std::vector<int> DataSet::readVector() const;
template std::vector<double> DataSet::readVector() const;
template std::vector<std::string> DataSet::readVector() const;
template std::vector<std::vector<int>> DataSet::readRows() const;
template std::vector<std::vector<double>> DataSet::readRows() const;
template std::vector<std::vector<int>> DataSet::readBlock(const Shape&, const Shape&) const;
template std::vector<std::vector<double>> DataSet::readBlock(const Shape&, const Shape&) const;
template void DataSet::writeVector(const std::vector<int>&) const;
template void DataSet::writeVector(const std::vector<double>&) const;
template void DataSet::writeVector(const std::vector<std::string>&) const;
template void DataSet::writeRows(const std::vector<std::vector<int>>&) const;
template void DataSet::writeRows(const std::vector<std::vector<double>>&) const;
template void DataSet::writeBuffer(const std::vector<int>&, const Shape&) const;
template void DataSet::writeBuffer(const std::vector<double>&, const Shape&) const;

}  // namespace h5
