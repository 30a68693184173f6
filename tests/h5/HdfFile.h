// An HDF5 file with a few records in two groups, and the changes that a run makes to one.
#pragma once

#include <gtest/gtest.h>
#include <hdf5.h>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <stdexcept>
#include <string>
#include <vector>

#include "h5/journal/driver.h"
#include "support/TempDir.h"

namespace hdfFile {

inline hid_t checked(hid_t id) {
  if (id < 0) throw std::runtime_error("HDF5 has refused");
  return id;
}

inline hid_t create(const std::string& name) {
  return checked(H5Fcreate(name.c_str(), H5F_ACC_TRUNC, H5P_DEFAULT, h5::accessList()));
}

inline hid_t open(const std::string& name, unsigned access = H5F_ACC_RDWR) {
  return checked(H5Fopen(name.c_str(), access, h5::accessList()));
}

/// "/A/0000007"
inline std::string record(const char* group, int number) {
  std::array<char, 32> path{};
  std::snprintf(path.data(), path.size(), "/%s/%07d", group, number);
  return path.data();
}

inline void setTime(hid_t dataset, double time) {
  hid_t attribute = H5Aopen(dataset, "t", H5P_DEFAULT);
  if (attribute < 0) {
    const hid_t space = H5Screate(H5S_SCALAR);
    attribute = H5Acreate2(dataset, "t", H5T_NATIVE_DOUBLE, space, H5P_DEFAULT, H5P_DEFAULT);
    H5Sclose(space);
  }
  checked(H5Awrite(attribute, H5T_NATIVE_DOUBLE, &time));
  H5Aclose(attribute);
}

/// Writes 600 values, which are more than a page, as a new dataset or over an earlier one.
inline void write(hid_t file, const std::string& path, double value) {
  const hsize_t extent = 600;
  const std::vector<double> values(extent, value);
  hid_t dataset = H5Dopen2(file, path.c_str(), H5P_DEFAULT);
  if (dataset < 0) {
    const hid_t space = H5Screate_simple(1, &extent, nullptr);
    dataset = checked(H5Dcreate2(file, path.c_str(), H5T_NATIVE_DOUBLE, space, H5P_DEFAULT,
                                 H5P_DEFAULT, H5P_DEFAULT));
    H5Sclose(space);
  }
  checked(H5Dwrite(dataset, H5T_NATIVE_DOUBLE, H5S_ALL, H5S_ALL, H5P_DEFAULT, values.data()));
  setTime(dataset, value);
  H5Dclose(dataset);
}

/// One record in each group.
inline void writeRecord(hid_t file, int number, double value) {
  for (const char* group : {"A", "B"}) write(file, record(group, number), value);
}

/// A closed file with records 0 to 7, which is what a node of a group holds before it is split.
inline void make(const std::string& name) {
  const hid_t file = create(name);
  for (const char* group : {"A", "B"}) {
    H5Gclose(H5Gcreate2(file, group, H5P_DEFAULT, H5P_DEFAULT, H5P_DEFAULT));
  }
  for (int i = 0; i < 8; ++i) writeRecord(file, i, i);
  checked(H5Fclose(file));
}

class Test : public ::testing::Test {
 protected:
  Test() {
    H5Eset_auto2(H5E_DEFAULT, nullptr, nullptr);
    // Files are looked at while they are open.
    ::setenv("HDF5_USE_FILE_LOCKING", "FALSE", 1);
    make(name);
  }

  const support::TempDir dir;
  const std::string name = dir.file("results.h5");
  const std::string journal = dir.file("results.h5.rheomark-journal");
};

}  // namespace hdfFile
