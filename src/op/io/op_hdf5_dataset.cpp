#include "op/io/op_hdf5_dataset.h"

#include <algorithm>
#include <array>
#include <climits>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string_view>

#include "h5/journal/driver.h"
#include "h5/storage.h"
#include "op/core/op_type.h"
#include "op/core/op_util.h"

namespace {

std::string name_of(hid_t object) {
  const ssize_t length = H5Iget_name(object, nullptr, 0);
  if (length <= 0) return {};
  std::string name(static_cast<std::size_t>(length) + 1, '\0');
  H5Iget_name(object, name.data(), name.size());
  name.pop_back();
  return name;
}

std::size_t value_bytes(std::string_view type) {
  return type == "double" || type == "long long" ? 8 : 4;
}

bool attach(hid_t dataset, const char* name, hid_t type, hid_t space, const void* value) {
  const H5Handle attribute(H5Acreate2(dataset, name, type, space, H5P_DEFAULT, H5P_DEFAULT),
                           H5Aclose);
  return attribute && H5Awrite(attribute.get(), type, value) >= 0;
}

}  // namespace

op_hdf5_value_type op_hdf5_type_of(const char* type) {
  switch (op_type_of(type)) {
    case op_type::Double:
      return {H5T_NATIVE_DOUBLE, 8};
    case op_type::Float:
      return {H5T_NATIVE_FLOAT, 4};
    case op_type::Int:
      return {H5T_NATIVE_INT, 4};
    case op_type::Long:
      return {H5T_NATIVE_LONG, 4};
    case op_type::LongLong:
      return {H5T_NATIVE_LLONG, 8};
    case op_type::Unknown:
      break;
  }
  return {H5I_INVALID_HID, 0};
}

const char* op_hdf5_type_to_string(hid_t type) {
  // Files of another byte order have the same native type.
  const H5Handle native(H5Tget_native_type(type, H5T_DIR_ASCEND), H5Tclose);
  if (!native) return "UNRECOGNISED";
  const auto is = [&](hid_t known) { return H5Tequal(native.get(), known) > 0; };
  if (is(H5T_NATIVE_INT)) return "int";
  if (is(H5T_NATIVE_LONG)) return "long";
  if (is(H5T_NATIVE_LLONG)) return "long long";
  if (is(H5T_NATIVE_FLOAT)) return "float";
  if (is(H5T_NATIVE_DOUBLE)) return "double";
  return "UNRECOGNISED";
}

int get_dataset_properties(hid_t dataset, op_hdf5_dataset_properties* record) {
  if (record == nullptr) return -1;
  const H5Handle space(H5Dget_space(dataset), H5Sclose);
  const H5Handle type(H5Dget_type(dataset), H5Tclose);
  if (!space || !type) return -1;
  const int rank = H5Sget_simple_extent_ndims(space.get());
  if (rank < 0) return -1;
  const std::string name = name_of(dataset);
  if (rank > 2) {
    op_fail(2, "Error: dataset '%s' has %d extents, at most 2 are possible\n", name.c_str(), rank);
  }
  std::array<hsize_t, 2> extents{0, rank == 0 ? hsize_t{0} : hsize_t{1}};
  if (H5Sget_simple_extent_dims(space.get(), extents.data(), nullptr) < 0) return -1;
  if (std::max(extents[0], extents[1]) > hsize_t{INT_MAX}) {
    op_fail(2, "Error: dataset '%s' has an extent of %llu, at most %d is possible\n", name.c_str(),
            static_cast<unsigned long long>(std::max(extents[0], extents[1])), INT_MAX);
  }
  record->type = op_hdf5_type_to_string(type.get());
  if (record->type == "UNRECOGNISED") {
    op_fail(2, "Error: Do not recognise type of dataset '%s'\n", name.c_str());
  }
  record->size = static_cast<int>(extents[0]);
  record->dim = static_cast<int>(extents[1]);
  record->elem_bytes = value_bytes(record->type) * static_cast<std::size_t>(extents[1]);
  return 0;
}

hid_t op_hdf5_open_source(const char* file, const char* call, const char* reasons) {
  if (file_exist(file) == 0) op_fail(2, "File %s does not exist .... aborting %s()\n", file, call);
  const H5Silence silence;
  const hid_t id = H5Fopen(file, H5F_ACC_RDONLY, h5::accessList());
  if (id < 0) op_fail(2, "Could not obtain read access to file '%s'%s\n", file, reasons);
  return id;
}

hid_t op_hdf5_open_dataset(hid_t file, const char* name) {
  const hid_t dataset = H5Dopen2(file, name, H5P_DEFAULT);
  if (dataset < 0) return dataset;
  const std::string fault = h5::foreignFault(dataset);
  if (!fault.empty()) op_fail(2, "Dataset '%s' %s\n", name, fault.c_str());
  return dataset;
}

void op_hdf5_require_storage(hid_t dataset, const char* name) {
  const std::string fault = h5::storageFault(dataset);
  if (!fault.empty()) op_fail(2, "Dataset '%s' %s\n", name, fault.c_str());
}

bool op_hdf5_attach(hid_t dataset, const char* name, int value) {
  const hsize_t one = 1;
  const H5Handle single(H5Screate_simple(1, &one, nullptr), H5Sclose);
  return attach(dataset, name, H5T_NATIVE_INT, single.get(), &value);
}

bool op_hdf5_attach(hid_t dataset, const char* name, const char* text) {
  const H5Handle scalar(H5Screate(H5S_SCALAR), H5Sclose);
  const H5Handle type(H5Tcopy(H5T_C_S1), H5Tclose);
  H5Tset_size(type.get(), std::strlen(text));
  return attach(dataset, name, type.get(), scalar.get(), text);
}

bool op_hdf5_holds(hid_t file, const char* path) {
  // Missing groups on the way are an error for the library.
  const H5Silence silence;
  return H5Oexists_by_name(file, path, H5P_DEFAULT) > 0;
}

void op_hdf5_fail_write(const char* path, const char* file) {
  std::printf("Could not write dataset '%s' to file '%s'\n", path, file);
  std::fflush(nullptr);
  // The library's clean-up at exit can crash after a failed write.
  std::_Exit(2);
}

bool create_path(const char* path, hid_t file) {
  const std::string_view whole(path);
  for (std::size_t slash = whole.find('/'); slash != std::string_view::npos;
       slash = whole.find('/', slash + 1)) {
    if (slash == 0 || whole[slash - 1] == '/') continue;
    const std::string prefix(whole.substr(0, slash));
    if (H5Lexists(file, prefix.c_str(), H5P_DEFAULT) > 0) continue;
    const H5Handle group(H5Gcreate2(file, prefix.c_str(), H5P_DEFAULT, H5P_DEFAULT, H5P_DEFAULT),
                         H5Gclose);
    if (!group) return false;
  }
  return true;
}
