// Typed writing of datasets. Missing groups on the way are created; a dataset that exists is
// overwritten in place and must have the same shape.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "api/IH5Base.h"

namespace api {

/// All writes throw BaseException for a dataset of another shape and std::exception if HDF5 fails.
class IH5Writer : public virtual IH5Base {
 public:
  virtual void writeIntScalar(const std::string& path, const int& value) = 0;
  virtual void writeDoubleScalar(const std::string& path, const double& value) = 0;
  virtual void writeIntVecVec(const std::string& path,
                              const std::vector<std::vector<int>>& values) = 0;
  virtual void writeDoubleVecVec(const std::string& path,
                                 const std::vector<std::vector<double>>& values) = 0;
  /// `data` points to `rows` rows of `columns` values each.
  virtual void writeIntArray(const std::string& path, const int& rows, const int& columns,
                             const int* const* data) = 0;
  virtual void writeDoubleArray(const std::string& path, const int& rows, const int& columns,
                                const double* const* data) = 0;
  virtual void writeStringVec(const std::string& path, const int& length,
                              const std::vector<std::string>& values) = 0;
};

/// A writer of files that grow record by record.
class IH5RecordWriter : public IH5Writer {
 public:
  /// Brings everything written since the last flush into the file, as a whole, by whatever part of
  /// the program: a run that is killed leaves all of it or nothing, one that is killed afterwards
  /// all.
  virtual void flush() = 0;
  /// Makes sure, before anything is written, that there is room for it.
  /// @param appended,overwritten bytes of datasets that are new, and of those that exist
  /// @return false if there is not, as on a full disk
  virtual bool reserve(std::size_t appended, std::size_t overwritten) = 0;
};

}  // namespace api
