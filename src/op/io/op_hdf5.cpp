#include "op/io/op_hdf5.h"

#include <hdf5.h>

#include <climits>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <memory>
#include <string_view>

#include "op/core/op_arg.h"
#include "op/core/op_seq.h"
#include "op/core/op_util.h"
#include "op/io/op_hdf5_dataset.h"

namespace {

struct OpFree {
  void operator()(void* memory) const { op_free(memory); }
};

// Storage that goes over to a map or a dat; null for no values at all.
using Storage = std::unique_ptr<char, OpFree>;

// A dataset of a file, for messages.
struct Place {
  const char* file;
  const char* name;
};

// Errors of the library are told in words of ours from here on.
hid_t open_file(const char* file, const char* call) {
  H5Eset_auto2(H5E_DEFAULT, nullptr, nullptr);
  return op_hdf5_open_source(file, call, ": it is no HDF5 file, incomplete or locked");
}

op_hdf5_dataset_properties properties_of(hid_t dataset, Place place) {
  op_hdf5_dataset_properties properties{};
  if (get_dataset_properties(dataset, &properties) != 0) {
    op_fail(2, "Could not get properties of dataset '%s' in file '%s'\n", place.name, place.file);
  }
  return properties;
}

Storage allocate(std::size_t rows, std::size_t row_values, std::size_t value_bytes, Place place) {
  // No product overflows: both factors of the values are ints.
  const std::size_t values = rows * row_values;
  Storage storage(values > SIZE_MAX / value_bytes
                      ? nullptr
                      : static_cast<char*>(xmalloc(values * value_bytes)));
  if (storage == nullptr && values > 0) {
    op_fail(2, "\nNo memory for the %zu values of dataset '%s' in file '%s'\n", values, place.name,
            place.file);
  }
  return storage;
}

void read(hid_t dataset, hid_t memory_type, void* values, Place place) {
  if (H5Dread(dataset, memory_type, H5S_ALL, H5S_ALL, H5P_DEFAULT, values) < 0) {
    op_fail(2, "Could not read dataset '%s' of file '%s'\n", place.name, place.file);
  }
}

// Reads values that are wider in the file than the four bytes that they get in memory.
Storage read_narrowed(hid_t dataset, std::size_t rows, std::size_t row_values, Place place) {
  const Storage wide = allocate(rows, row_values, sizeof(long long), place);
  Storage narrow = allocate(rows, row_values, sizeof(int), place);
  read(dataset, H5T_NATIVE_LLONG, wide.get(), place);
  const auto* const source = reinterpret_cast<const long long*>(wide.get());
  auto* const target = reinterpret_cast<int*>(narrow.get());
  for (std::size_t i = 0; i < rows * row_values; ++i) {
    if (source[i] < INT_MIN || source[i] > INT_MAX) {
      op_fail(
          2,
          "dataset '%s' of file '%s': row %zu, column %zu holds %lld, not in the range %d to %d\n",
          place.name, place.file, i / row_values, i % row_values, source[i], INT_MIN, INT_MAX);
    }
    target[i] = static_cast<int>(source[i]);
  }
  return narrow;
}

Storage read_plain(hid_t dataset, op_hdf5_value_type type, std::size_t rows, std::size_t row_values,
                   Place place) {
  Storage values = allocate(rows, row_values, type.bytes, place);
  if (values != nullptr) read(dataset, type.memory, values.get(), place);
  return values;
}

Storage read_table(hid_t dataset, const op_hdf5_dataset_properties& properties, Place place) {
  op_hdf5_require_storage(dataset, place.name);
  const auto rows = static_cast<std::size_t>(properties.size);
  const auto columns = static_cast<std::size_t>(properties.dim);
  if (properties.type == "int") {
    return read_plain(dataset, op_hdf5_type_of("int"), rows, columns, place);
  }
  if (properties.type == "long" || properties.type == "long long") {
    return read_narrowed(dataset, rows, columns, place);
  }
  op_fail(2, "Unknown type in file %s for map %s\n", place.file, place.name);
}

Storage read_values(hid_t dataset, op_hdf5_value_type type,
                    const op_hdf5_dataset_properties& properties, Place place) {
  op_hdf5_require_storage(dataset, place.name);
  const auto rows = static_cast<std::size_t>(properties.size);
  const auto columns = static_cast<std::size_t>(properties.dim);
  if (H5Tget_size(type.memory) > type.bytes) return read_narrowed(dataset, rows, columns, place);
  return read_plain(dataset, type, rows, columns, place);
}

}  // namespace

op_set op_decl_set_hdf5(const char* file, const char* name) {
  const H5Handle source(open_file(file, "op_decl_set_hdf5"), H5Fclose);
  const H5Handle dataset(op_hdf5_open_dataset(source.get(), name), H5Dclose);
  if (!dataset) op_fail(2, "Dataset '%s' not found in file '%s'\n", name, file);
  const H5Handle space(H5Dget_space(dataset.get()), H5Sclose);
  const hssize_t values = H5Sget_simple_extent_npoints(space.get());
  if (values != 1) {
    op_fail(2, "Dataset '%s' in file '%s' holds %lld values, the size of a set must be one\n", name,
            file, static_cast<long long>(values));
  }
  op_hdf5_require_storage(dataset.get(), name);
  long long size = 0;
  read(dataset.get(), H5T_NATIVE_LLONG, &size, {file, name});
  if (size < INT_MIN || size > INT_MAX) {
    op_fail(2, "Dataset '%s' in file '%s' holds %lld, the size of a set must be at most %d\n", name,
            file, size, INT_MAX);
  }
  return op_decl_set(static_cast<int>(size), name);
}

op_map op_decl_map_hdf5(op_set from, op_set to, int dim, const char* file, const char* name) {
  const H5Handle source(open_file(file, "op_decl_map_hdf5"), H5Fclose);
  const H5Handle dataset(op_hdf5_open_dataset(source.get(), name), H5Dclose);
  if (!dataset) {
    std::printf("op_map with name : %s not found in file : %s \n", name, file);
    return nullptr;
  }
  const Place place{file, name};
  const op_hdf5_dataset_properties properties = properties_of(dataset.get(), place);
  op_require_map(from, to, dim, name);
  if (properties.size != from->size) {
    op_fail(2, "map from set size %d in file %s and size %d do not match \n", properties.size, file,
            from->size);
  }
  if (properties.dim != dim) {
    op_fail(2, "map.dim %d in file %s and dim %d do not match\n", properties.dim, file, dim);
  }
  Storage table = read_table(dataset.get(), properties, place);
  const op_map map = op_decl_map(from, to, dim, reinterpret_cast<int*>(table.release()), name);
  map->user_managed = 0;
  return map;
}

op_dat op_decl_dat_hdf5(op_set set, int dim, const char* type, const char* file, const char* name) {
  const H5Handle source(open_file(file, "op_decl_dat_hdf5"), H5Fclose);
  const H5Handle dataset(op_hdf5_open_dataset(source.get(), name), H5Dclose);
  if (!dataset) {
    std::printf("op_dat with name : %s not found in file : %s \n", name, file);
    return nullptr;
  }
  const Place place{file, name};
  const op_hdf5_dataset_properties properties = properties_of(dataset.get(), place);
  op_require_dat(set, dim, name);
  if (properties.dim != dim) {
    op_fail(2, "dat.dim %d in file %s and dim %d do not match\n", properties.dim, file, dim);
  }
  if (!op_type_equivalence(properties.type.c_str(), type)) {
    std::printf(
        "dat.type %s in file %s and type %s do not match, performing automatic conversion\n",
        properties.type.c_str(), file, type);
  }
  const op_hdf5_value_type value = op_hdf5_type_of(type);
  if (value.memory < 0) op_fail(2, "unknown type for dat\n");
  if (properties.size != set->size) {
    op_fail(2, "dat %s has %d rows in file %s, but its set %s has %d elements\n", name,
            properties.size, file, set->name, set->size);
  }
  Storage values = read_values(dataset.get(), value, properties, place);
  const op_dat dat =
      op_decl_dat_char(set, dim, type, static_cast<int>(value.bytes), values.release(), name);
  dat->user_managed = 0;
  return dat;
}
