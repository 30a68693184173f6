#include <hdf5.h>

#include <algorithm>
#include <climits>
#include <cstdio>
#include <string>

#include "h5/journal/driver.h"
#include "op/core/op_util.h"
#include "op/io/op_hdf5.h"
#include "op/io/op_hdf5_dataset.h"

namespace {

// A constant in a file, for messages.
struct Constant {
  const char* name;
  int dim;
  const char* type;
  const char* file;
};

// A full disk shows in any of the calls that write.
void require(bool done, const Constant& constant) {
  if (!done) op_hdf5_fail_write(constant.name, constant.file);
}

// 1 for a dataset of rank 0, negative if HDF5 fails.
hssize_t number_of_values(hid_t dataset) {
  const H5Handle space(H5Dget_space(dataset), H5Sclose);
  return H5Sget_simple_extent_npoints(space.get());
}

std::string type_of(hid_t dataset) {
  const H5Handle type(H5Dget_type(dataset), H5Tclose);
  return op_hdf5_type_to_string(type.get());
}

bool is_stored_as(hid_t dataset, hid_t memory_type) {
  const H5Handle type(H5Dget_type(dataset), H5Tclose);
  const H5Handle native(H5Tget_native_type(type.get(), H5T_DIR_ASCEND), H5Tclose);
  return native && H5Tequal(native.get(), memory_type) > 0;
}

// The file, which is made if there is none.
hid_t open_target(const Constant& constant) {
  if (file_exist(constant.file) == 0) {
    const hid_t created = H5Fcreate(constant.file, H5F_ACC_EXCL, H5P_DEFAULT, h5::accessList());
    require(created >= 0, constant);
    return created;
  }
  const hid_t opened = H5Fopen(constant.file, H5F_ACC_RDWR, h5::accessList());
  if (opened < 0) op_fail(2, "Could not obtain write access to file '%s'\n", constant.file);
  return opened;
}

hid_t open_existing(hid_t file, hid_t type, const Constant& constant) {
  const hid_t dataset = op_hdf5_open_dataset(file, constant.name);
  if (dataset < 0 || number_of_values(dataset) != constant.dim || !is_stored_as(dataset, type)) {
    op_fail(2, "'%s' in file '%s' is not a constant of %d values of type %s ... aborting\n",
            constant.name, constant.file, constant.dim, constant.type);
  }
  return dataset;
}

hid_t create_dataset(hid_t file, hid_t type, const Constant& constant) {
  require(create_path(constant.name, file), constant);
  const auto values = static_cast<hsize_t>(constant.dim);
  const H5Handle space(H5Screate_simple(1, &values, nullptr), H5Sclose);
  const hid_t dataset =
      H5Dcreate2(file, constant.name, type, space.get(), H5P_DEFAULT, H5P_DEFAULT, H5P_DEFAULT);
  require(dataset >= 0, constant);
  require(op_hdf5_attach(dataset, "dim", constant.dim), constant);
  require(op_hdf5_attach(dataset, "type", constant.type), constant);
  return dataset;
}

}  // namespace

void op_write_const_hdf5(const char* name, int dim, const char* type, const char* data,
                         const char* file) {
  std::printf("Writing '%s' to file '%s'\n", name, file);
  std::printf("Writing constant to %s\n", file);
  const hid_t values = op_hdf5_type_of(type).memory;
  if (values < 0) op_fail(2, "Unknown type for write_const\n");
  if (dim < 1) op_fail(2, "constant %s has %d values, must be 1 or more\n", name, dim);
  const Constant constant{name, dim, type, file};
  const H5Silence silence;
  const H5Handle target(open_target(constant), H5Fclose);
  const bool isUpdate = op_hdf5_holds(target.get(), name);
  const H5Handle dataset(isUpdate ? open_existing(target.get(), values, constant)
                                  : create_dataset(target.get(), values, constant),
                         H5Dclose);
  require(H5Dwrite(dataset.get(), values, H5S_ALL, H5S_ALL, H5P_DEFAULT, data) >= 0, constant);
  require(H5Fflush(target.get(), H5F_SCOPE_LOCAL) >= 0, constant);
}

void op_get_const_hdf5(const char* name, int dim, const char* type, char* buffer,
                       const char* file) {
  const H5Handle source(op_hdf5_open_source(file, "op_get_const_hdf5"), H5Fclose);
  const H5Silence silence;
  const H5Handle dataset(op_hdf5_open_dataset(source.get(), name), H5Dclose);
  if (!dataset) op_fail(2, "dataset '%s' not found in file '%s'\n", name, file);
  const hssize_t values = number_of_values(dataset.get());
  if (values != dim) {
    op_fail(2, "dim of constant %d in file %s and requested dim %d do not match\n",
            static_cast<int>(std::min(values, hssize_t{INT_MAX})), file, dim);
  }
  const std::string stored = type_of(dataset.get());
  const hid_t memory = op_hdf5_type_of(type).memory;
  if (memory < 0 || stored == "UNRECOGNISED") {
    op_fail(2, "Unknown type in file %s for constant %s\n", file, name);
  }
  if (!is_stored_as(dataset.get(), memory)) {
    std::printf(
        "type of constant %s in file %s and requested type %s do not match, performing automatic "
        "type conversion\n",
        stored.c_str(), file, type);
  }
  op_hdf5_require_storage(dataset.get(), name);
  if (H5Dread(dataset.get(), memory, H5S_ALL, H5S_ALL, H5P_DEFAULT, buffer) < 0) {
    op_fail(2, "Could not read dataset '%s' of file '%s'\n", name, file);
  }
}
