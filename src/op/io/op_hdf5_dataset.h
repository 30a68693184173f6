// What the HDF5 calls of the runtime share: handles that close themselves, the properties of a
// dataset, the groups along a path. Works on the HDF5 C library directly.
//
//   const H5Handle file(H5Fopen(name, H5F_ACC_RDONLY, h5::accessList()), H5Fclose);
//   if (!file) ...
#pragma once

#include <hdf5.h>

#include <cstddef>
#include <string>

#include "op/core/op_lib_core.h"

/// An HDF5 identifier that is closed with its scope.
class H5Handle {
 public:
  using Close = herr_t (*)(hid_t);

  /// @param id an open identifier, or a negative value of a call that failed
  H5Handle(hid_t id, Close close) : id_(id), close_(close) {}
  H5Handle(const H5Handle&) = delete;
  H5Handle& operator=(const H5Handle&) = delete;
  H5Handle(H5Handle&&) = delete;
  H5Handle& operator=(H5Handle&&) = delete;
  ~H5Handle() {
    if (id_ >= 0) close_(id_);
  }

  explicit operator bool() const { return id_ >= 0; }
  hid_t get() const { return id_; }

 private:
  hid_t id_;
  Close close_;
};

/// Turns the automatic printing of HDF5 errors off for a scope.
class H5Silence {
 public:
  H5Silence() {
    H5Eget_auto2(H5E_DEFAULT, &function_, &data_);
    H5Eset_auto2(H5E_DEFAULT, nullptr, nullptr);
  }
  H5Silence(const H5Silence&) = delete;
  H5Silence& operator=(const H5Silence&) = delete;
  H5Silence(H5Silence&&) = delete;
  H5Silence& operator=(H5Silence&&) = delete;
  ~H5Silence() { H5Eset_auto2(H5E_DEFAULT, function_, data_); }

 private:
  H5E_auto2_t function_ = nullptr;
  void* data_ = nullptr;
};

/// Shape and type of a dataset.
struct op_hdf5_dataset_properties {
  std::string type;        ///< "int", "long", "long long", "float" or "double"
  int size;                ///< first extent; 0 for a dataset of rank 0
  int dim;                 ///< second extent; 1 for rank 1, 0 for rank 0
  std::size_t elem_bytes;  ///< `dim` times the bytes of one value
};

/// How the values of a dat of some type string are stored.
struct op_hdf5_value_type {
  hid_t memory;       ///< type of the values in memory, and of a new dataset; negative if unknown
  std::size_t bytes;  ///< bytes of one value in a dat
};

/// The storage that a type string of a dat stands for.
op_hdf5_value_type op_hdf5_type_of(const char* type);

/// Name of an HDF5 type, "UNRECOGNISED" if it has none here.
const char* op_hdf5_type_to_string(hid_t type);

/// Reads shape and type of a dataset. Ends the process with status 2 if the runtime knows no such
/// type, or if the dataset has more than two extents or an extent above the range of int.
/// @return 0, or -1 if `record` is null or HDF5 fails
int get_dataset_properties(hid_t dataset, op_hdf5_dataset_properties* record);

/// Opens a file to read from it. Ends the process with status 2 if that is not possible.
/// @param call the function that needs the file, for the message
/// @param reasons what may be the matter, behind the message
hid_t op_hdf5_open_source(const char* file, const char* call, const char* reasons = "");

/// Opens a dataset. Ends the process with status 2 if its values do not stand in the file.
/// @return negative if there is none of that name
hid_t op_hdf5_open_dataset(hid_t file, const char* name);

/// Ends the process with status 2 if reading the dataset could do harm (see h5/storage.h), which is
/// to be known before memory is reserved for its values.
void op_hdf5_require_storage(hid_t dataset, const char* name);

/// Attaches an attribute of one number, or a text of fixed length, to a dataset.
/// @return false if HDF5 fails
bool op_hdf5_attach(hid_t dataset, const char* name, int value);
bool op_hdf5_attach(hid_t dataset, const char* name, const char* text);

/// Writes a dat as op_fetch_data_hdf5 does, without an announcement.
void op_hdf5_write_dat(op_dat dat, const char* file, const char* path);

/// True if `path` leads to something in the file.
bool op_hdf5_holds(hid_t file, const char* path);

/// Ends the process with status 2 and a message that the dataset could not be written, without the
/// clean-up of the HDF5 library, which would try to write again.
[[noreturn]] void op_hdf5_fail_write(const char* path, const char* file);

/// Creates all groups that are missing on the way to the last component of `path`.
/// @return false if a group could not be made
bool create_path(const char* path, hid_t file);
