// Writes datasets; groups on the way are created.
//
//   dataio::H5Writer writer("run_results.h5");           // erases an earlier file
//   writer.writeDoubleVecVec("NodesAll/Coordnts", rows);
//
// A dataset that exists is overwritten in place. Each dataset gets the int attribute "size": the
// number of columns for the array forms, the number of values for all others.
#pragma once

#include <string>
#include <vector>

#include "api/IH5Writer.h"
#include "dataio/H5Base.h"

namespace dataio {

/// Writes throw h5::Error if HDF5 fails or the values have no regular shape, and BaseException if
/// the dataset exists in another shape.
class H5Writer : public H5Base, public api::IH5RecordWriter {
 public:
  /// @throws h5::Error if the file cannot be created.
  explicit H5Writer(const std::string& file);
  /// @param access as for getFileAccess; "rw" goes on writing to an existing file
  H5Writer(const std::string& file, const std::string& access);

  void writeIntScalar(const std::string& path, const int& value) override;
  void writeDoubleScalar(const std::string& path, const double& value) override;
  /// At least one row; all rows have the same length.
  void writeIntVecVec(const std::string& path,
                      const std::vector<std::vector<int>>& values) override;
  void writeDoubleVecVec(const std::string& path,
                         const std::vector<std::vector<double>>& values) override;
  void writeIntArray(const std::string& path, const int& rows, const int& columns,
                     const int* const* data) override;
  void writeDoubleArray(const std::string& path, const int& rows, const int& columns,
                        const double* const* data) override;
  /// @param length the number of `values`
  void writeStringVec(const std::string& path, const int& length,
                      const std::vector<std::string>& values) override;
  void flush() override;
  bool reserve(std::size_t appended, std::size_t overwritten) override;

 private:
  /// Opens the dataset at `path`, or creates it together with the groups above it.
  template <class T>
  h5::DataSet getDataset(const std::string& path, const h5::Shape& dims);

  template <class T>
  void writeScalar(const std::string& path, const T& value);
  template <class T>
  void writeVecVec(const std::string& path, const std::vector<std::vector<T>>& values);
  template <class T>
  void writeArray(const std::string& path, int rows, int columns, const T* const* data);
};

}  // namespace dataio
