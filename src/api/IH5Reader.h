// Typed reading of datasets. A scalar is a one-dimensional dataset of length 1.
#pragma once

#include <string>
#include <vector>

#include "api/IH5Base.h"

namespace api {

/// All reads throw BaseException for a dataset of another shape and std::exception if HDF5 fails.
class IH5Reader : public virtual IH5Base {
 public:
  virtual int readIntScalar(const std::string& path) const = 0;
  virtual double readDoubleScalar(const std::string& path) const = 0;
  virtual std::vector<std::vector<int>> readIntVecVec(const std::string& path) const = 0;
  /// One column of a two-dimensional dataset.
  virtual std::vector<double> readDoubleVecFrom2dDataset(const std::string& path,
                                                         int column) const = 0;
  virtual std::vector<std::vector<double>> readDoubleVecVec(const std::string& path) const = 0;
  virtual std::vector<std::string> readStrVec(const std::string& path) const = 0;
};

}  // namespace api
