// Reads datasets of an existing file.
//
//   const dataio::H5Reader reader("run.h5");
//   const int cells = reader.readIntScalar("CellsAll/set");
//
// A dataset of another type is converted where HDF5 can do so, as between int and double.
#pragma once

#include <string>
#include <vector>

#include "api/IH5Reader.h"
#include "dataio/H5Base.h"

namespace dataio {

/// Reads throw h5::Error if HDF5 fails, as for a missing dataset, and report other faults of the
/// dataset on standard error before they throw BaseException.
class H5Reader : public H5Base, public virtual api::IH5Reader {
 public:
  /// @throws h5::Error if there is no such file or it is not HDF5.
  explicit H5Reader(const std::string& file);

  /// The dataset has one dimension and length 1; one without dimensions is refused.
  int readIntScalar(const std::string& path) const override;
  double readDoubleScalar(const std::string& path) const override;
  /// The dataset has at least one row and one column.
  std::vector<std::vector<int>> readIntVecVec(const std::string& path) const override;
  std::vector<std::vector<double>> readDoubleVecVec(const std::string& path) const override;
  /// @param column from 0
  std::vector<double> readDoubleVecFrom2dDataset(const std::string& path,
                                                 int column) const override;
  /// The dataset has one dimension, or is one row or one column, and holds variable-length strings.
  std::vector<std::string> readStrVec(const std::string& path) const override;

 protected:
  H5Reader(const std::string& file, const std::string& access);

 private:
  template <class T>
  T readScalar(const std::string& path) const;
  template <class T>
  std::vector<std::vector<T>> readVecVec(const std::string& path) const;
};

}  // namespace dataio
