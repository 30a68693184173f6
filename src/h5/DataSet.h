// A dataset and the transfer of its values. The library converts between int and double.
//
//   const h5::DataSet dataset = h5::DataSet::open(file.handle(), "NodesAll/Coordnts");
//   const auto rows = dataset.readRows<double>();
//
// Ranks have to fit (see shape.h) and sizes to be equal.
#pragma once

#include <string>
#include <vector>

#include "h5/Handle.h"
#include "h5/shape.h"

namespace h5 {

class DataSet {
 public:
  /// Takes over an open dataset.
  explicit DataSet(Handle handle) noexcept : dataset(std::move(handle)) {}

  /// @throws Error if there is no dataset at `path`, or none that can be read (see storage.h).
  static DataSet open(const Handle& location, const std::string& path);
  /// A contiguous dataset. The group above it has to exist. `T` is int, double or std::string.
  /// @throws Error if the library refuses, as in a file that is open for reading only.
  template <class T>
  static DataSet create(const Handle& location, const std::string& path, const Shape& shape);

  const Handle& handle() const noexcept { return dataset; }
  Shape dimensions() const;

  /// All values of a dataset that a vector fits. `T` is int, double or std::string.
  /// @throws Error if the rank does not fit or the type cannot be converted; so do all transfers.
  template <class T>
  std::vector<T> readVector() const;

  /// All values, row by row. `T` is int or double; so for all transfers below.
  template <class T>
  std::vector<std::vector<T>> readRows() const;

  /// The rows of a block of a two-dimensional dataset.
  /// @param offset row and column of its first value
  /// @param count rows and columns
  template <class T>
  std::vector<std::vector<T>> readBlock(const Shape& offset, const Shape& count) const;

  /// `T` is int, double or std::string.
  template <class T>
  void writeVector(const std::vector<T>& values) const;

  template <class T>
  void writeRows(const std::vector<std::vector<T>>& rows) const;

  /// @param values as many as `shape` says, the last dimension running fastest
  template <class T>
  void writeBuffer(const std::vector<T>& values, const Shape& shape) const;

 private:
  Shape fitForRead(std::size_t rank) const;
  Shape fitForWrite(std::size_t rank) const;

  Handle dataset;
};

}  // namespace h5
