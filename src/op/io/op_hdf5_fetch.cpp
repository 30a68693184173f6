#include <hdf5.h>

#include <array>
#include <cstddef>
#include <cstdio>
#include <cstring>
#include <string>

#include "h5/attributes/attribute_storage.h"
#include "h5/journal/driver.h"
#include "h5/type.h"
#include "op/core/op_arg.h"
#include "op/core/op_type.h"
#include "op/core/op_util.h"
#include "op/io/op_hdf5.h"
#include "op/io/op_hdf5_dataset.h"

namespace {

// Where a dat goes, for messages.
struct Target {
  op_dat dat;
  const char* file;
  const char* path;
};

[[noreturn]] void fail_write(const Target& target) {
  op_hdf5_fail_write(target.path, target.file);
}

// A full disk shows in any of the calls that write.
void require(bool done, const Target& target) {
  if (!done) fail_write(target);
}

// The HDF5 type by the dat's type.
hid_t file_type(const Target& target) {
  const hid_t type = op_hdf5_type_of(target.dat->type).memory;
  if (type < 0) op_fail(2, "Unknown type for data elements\n");
  return type;
}

// The HDF5 type of the dat's values, which for "long" can be of four or of eight bytes.
hid_t memory_type(const Target& target) {
  const hid_t type = file_type(target);
  const auto bytes = static_cast<std::size_t>(target.dat->size / target.dat->dim);
  if (bytes == H5Tget_size(type)) return type;
  if (type == H5T_NATIVE_LONG && bytes == sizeof(int)) return H5T_NATIVE_INT;
  op_fail(2, "dat %s has values of %zu bytes, which is not the size of its type %s\n",
          target.dat->name, bytes, target.dat->type);
}

std::array<hsize_t, 2> extents_of(op_dat dat) {
  return {static_cast<hsize_t>(dat->set->size), static_cast<hsize_t>(dat->dim)};
}

void write_values(hid_t dataset, hid_t memory_space, const Target& target) {
  if (target.dat->set->size == 0) return;
  require(H5Dwrite(dataset, memory_type(target), memory_space, H5S_ALL, H5P_DEFAULT,
                   target.dat->data) >= 0,
          target);
}

// Opens an attribute of the dataset that is to be updated.
hid_t open_attribute(hid_t dataset, const char* name, const Target& target) {
  const std::string fault = h5::attributeFault(dataset, name);
  if (!fault.empty()) {
    op_fail(2, "Dataset '%s' in file '%s' %s\n", target.path, target.file, fault.c_str());
  }
  const H5Silence silence;
  const hid_t attribute = H5Aopen(dataset, name, H5P_DEFAULT);
  if (attribute < 0) {
    std::printf("data set %s on file %s does not have attribute '%s'", target.path, target.file,
                name);
    op_fail(2, " -- cannot check %s ... aborting\n", name);
  }
  return attribute;
}

[[noreturn]] void fail_attribute(const char* name, const Target& target) {
  op_fail(2, "Could not read attribute '%s' of dataset '%s' in file '%s'\n", name, target.path,
          target.file);
}

int int_attribute(hid_t dataset, const char* name, const Target& target) {
  const H5Handle attribute(open_attribute(dataset, name, target), H5Aclose);
  const H5Handle space(H5Aget_space(attribute.get()), H5Sclose);
  const H5Handle type(H5Aget_type(attribute.get()), H5Tclose);
  int value = 0;
  if (!h5::isNumber(type.get()) || !h5::isSoundNumber(type.get()) ||
      H5Sget_simple_extent_npoints(space.get()) != 1 ||
      H5Aread(attribute.get(), H5T_NATIVE_INT, &value) < 0) {
    fail_attribute(name, target);
  }
  return value;
}

// Reads a text of fixed or of variable length.
std::string text_attribute(hid_t dataset, const char* name, const Target& target) {
  const H5Handle attribute(open_attribute(dataset, name, target), H5Aclose);
  const H5Handle space(H5Aget_space(attribute.get()), H5Sclose);
  const H5Handle type(H5Aget_type(attribute.get()), H5Tclose);
  const H5Handle memory(H5Tcopy(type.get()), H5Tclose);
  if (H5Tget_class(type.get()) != H5T_STRING || H5Sget_simple_extent_npoints(space.get()) != 1) {
    fail_attribute(name, target);
  }
  if (H5Tis_variable_str(type.get()) > 0) {
    char* shared = nullptr;
    if (H5Aread(attribute.get(), memory.get(), static_cast<void*>(&shared)) < 0 ||
        shared == nullptr) {
      fail_attribute(name, target);
    }
    std::string text(shared);
    H5free_memory(shared);
    return text;
  }
  // One more character, since a fixed length does not include the terminating zero.
  std::string text(H5Tget_size(type.get()) + 1, '\0');
  H5Tset_size(memory.get(), text.size());
  H5Tset_strpad(memory.get(), H5T_STR_NULLTERM);
  if (H5Aread(attribute.get(), memory.get(), text.data()) < 0) fail_attribute(name, target);
  text.resize(std::strlen(text.c_str()));
  return text;
}

// Ends the process unless the existing dataset holds a dat of the same shape and type.
void check_existing(hid_t dataset, const Target& target) {
  const op_dat dat = target.dat;
  const int size = int_attribute(dataset, "size", target);
  if (size != dat->size) {
    op_fail(2, "dat.size %zu in file %s and dim %d do not match ... aborting\n",
            static_cast<std::size_t>(size), target.file, dat->size);
  }
  const int dim = int_attribute(dataset, "dim", target);
  if (dim != dat->dim) {
    op_fail(2, "dat.dim %d in file %s and dim %d do not match ... aborting\n", dim, target.file,
            dat->dim);
  }
  const std::string type = text_attribute(dataset, "type", target);
  if (!op_type_equivalence(type.c_str(), dat->type)) {
    op_fail(2, "dat.type %s in file %s and type %s do not match\n", type.c_str(), target.file,
            dat->type);
  }
  op_hdf5_dataset_properties properties{};
  if (get_dataset_properties(dataset, &properties) != 0) fail_write(target);
  if (properties.size != dat->set->size || properties.dim != dat->dim) {
    op_fail(2, "dataset '%s' in file '%s' is %d by %d and dat %s is %d by %d ... aborting\n",
            target.path, target.file, properties.size, properties.dim, dat->name, dat->set->size,
            dat->dim);
  }
}

void update_dataset(hid_t file, const Target& target) {
  const H5Handle dataset(op_hdf5_open_dataset(file, target.path), H5Dclose);
  if (!dataset) {
    op_fail(2, "'%s' in file '%s' is not a dataset\n", target.path, target.file);
  }
  check_existing(dataset.get(), target);
  const auto extents = extents_of(target.dat);
  const H5Handle space(H5Screate_simple(2, extents.data(), nullptr), H5Sclose);
  write_values(dataset.get(), space.get(), target);
}

void write_attributes(hid_t dataset, const Target& target) {
  const op_dat dat = target.dat;
  require(op_hdf5_attach(dataset, "size", dat->size), target);
  require(op_hdf5_attach(dataset, "dim", dat->dim), target);
  require(op_hdf5_attach(dataset, "type", dat->type), target);
}

void create_dataset(hid_t file, const Target& target) {
  if (!op_type_is_stored(target.dat->type)) op_fail(2, "Unknown type for data elements\n");
  const hid_t type = file_type(target);
  require(create_path(target.path, file), target);
  const auto extents = extents_of(target.dat);
  const H5Handle space(H5Screate_simple(2, extents.data(), nullptr), H5Sclose);
  const H5Handle dataset(
      H5Dcreate2(file, target.path, type, space.get(), H5P_DEFAULT, H5P_DEFAULT, H5P_DEFAULT),
      H5Dclose);
  require(static_cast<bool>(dataset), target);
  write_values(dataset.get(), space.get(), target);
  write_attributes(dataset.get(), target);
}

// The file, or an invalid identifier if there is none yet.
hid_t open_if_there(const Target& target) {
  if (file_exist(target.file) == 0) return H5I_INVALID_HID;
  if (OP_diags > 3) {
    std::printf("File %s exists .... checking for dataset and path %s in file\n", target.file,
                target.path);
  }
  const hid_t file = H5Fopen(target.file, H5F_ACC_RDWR, h5::accessList());
  if (file < 0) op_fail(2, "Could not obtain write access to file '%s'\n", target.file);
  return file;
}

// What the library still keeps would be lost without a word when the file is closed on a full disk.
// Within the record of an application it reaches the file with the whole record.
void flush(hid_t file, const Target& target) {
  require(H5Fflush(file, H5F_SCOPE_LOCAL) >= 0, target);
}

}  // namespace

void op_fetch_data_hdf5(op_dat dat, const char* file, const char* path) {
  std::printf("Writing '%s' to file '%s'\n", path, file);
  if (dat == nullptr) op_fail(2, "There is no dat to write to '%s' in file '%s'\n", path, file);
  op_hdf5_write_dat(dat, file, path);
}

void op_hdf5_write_dat(op_dat dat, const char* file, const char* path) {
  const Target target{dat, file, path};
  const H5Handle existing(open_if_there(target), H5Fclose);
  if (existing && op_hdf5_holds(existing.get(), path)) {
    if (OP_diags > 3) {
      std::printf("dataset '%s' exists in the file ... updating data\n", path);
    }
    update_dataset(existing.get(), target);
    flush(existing.get(), target);
    return;
  }
  if (OP_diags > 3) {
    std::printf("op_dat %s does not exists in the file ... creating data set\n", dat->name);
  }
  if (existing) {
    create_dataset(existing.get(), target);
    flush(existing.get(), target);
    return;
  }
  if (OP_diags > 3) std::printf("File %s does not exist .... creating file\n", file);
  const H5Handle created(h5::createFile(file), H5Fclose);
  require(static_cast<bool>(created), target);
  create_dataset(created.get(), target);
  flush(created.get(), target);
}

void op_fetch_data_hdf5_file_path(op_dat dat, const char* file, const char* path) {
  op_fetch_data_hdf5(dat, file, path);
}
