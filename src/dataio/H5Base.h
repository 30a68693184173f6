// What H5Reader and H5Writer share: the open file, questions about its contents, attributes.
//
// Paths are of the form group/group/name, relative to the file's root. Failures inside HDF5 travel
// as h5::Error; checks of this layer report on standard error and throw BaseException.
#pragma once

#include <cstddef>
#include <string>

#include "api/IH5Base.h"
#include "h5/DataSet.h"
#include "h5/File.h"

namespace dataio {

/// Flags of h5::File: "w" creates a file or empties it, "rw" opens one for reading and writing,
/// anything else opens for reading only.
unsigned getFileAccess(const std::string& access);

/// The file is open from construction to destruction.
class H5Base : public virtual api::IH5Base {
 public:
  /// @throws h5::Error if the file cannot be opened or created; BaseException if another process
  ///   writes to a file that is to be written, or something else is in the way.
  H5Base(const std::string& file, const std::string& access);
  /// Flushes and closes. A failure to flush is reported on standard error, as data are lost.
  ~H5Base() override;
  H5Base(const H5Base&) = delete;
  H5Base& operator=(const H5Base&) = delete;
  H5Base(H5Base&&) = delete;
  H5Base& operator=(H5Base&&) = delete;

  std::string getFilename() const override { return filename; }
  void attachAttributeInt(const std::string& path, const std::string& name,
                          const int& value) override;
  void attachAttributeDouble(const std::string& path, const std::string& name,
                             const double& value) override;
  int readAttributeInt(const std::string& path, const std::string& name) const override;
  double readAttributeDouble(const std::string& path, const std::string& name) const override;
  int getNumberObjs(const std::string& path) const override;
  /// Whether there is a link at `path`; false if the group right above it is missing.
  /// @throws h5::Error if a group further above is missing.
  bool existDataset(const std::string& path) const override;

  /// The part before the last "/", or nothing.
  static std::string getGroup(const std::string& path);
  /// The part behind the last "/", or the whole path.
  static std::string getDataset(const std::string& path);

  /// Whether the group exists that `path` lies in; true for a path without one.
  /// @throws h5::Error if a group further above is missing.
  bool existGroup(const std::string& path) const;
  /// Creates all missing groups that `path` lies in.
  void createGroup(const std::string& path);

 protected:
  /// Opens a dataset to be read.
  /// @param[out] rows,columns its first and second extent, 0 where it has none
  h5::DataSet readDataset(const std::string& path, std::size_t& rows, std::size_t& columns) const;

  std::string filename;
  h5::File f5;

 private:
  template <class T>
  void attachAttribute(const std::string& path, const std::string& name, const T& value);
  template <class T>
  T readAttribute(const std::string& path, const std::string& name) const;
};

}  // namespace dataio
