// What readers and writers of HDF5 files have in common. Paths are relative to the file's root.
#pragma once

#include <string>

namespace api {

class IH5Base {
 public:
  virtual ~IH5Base() = default;

  virtual std::string getFilename() const = 0;
  /// @throws BaseException if the dataset does not exist; so do all attribute operations.
  virtual void attachAttributeInt(const std::string& path, const std::string& name,
                                  const int& value) = 0;
  virtual void attachAttributeDouble(const std::string& path, const std::string& name,
                                     const double& value) = 0;
  virtual int readAttributeInt(const std::string& path, const std::string& name) const = 0;
  virtual double readAttributeDouble(const std::string& path, const std::string& name) const = 0;
  /// Number of objects in a group.
  virtual int getNumberObjs(const std::string& path) const = 0;
  virtual bool existDataset(const std::string& path) const = 0;
};

}  // namespace api
