#include "op/op_hdf5_dataset.h"

#include <algorithm>
#include <array>
#include <climits>
#include <string_view>

#include "op/op_util.h"

namespace {

std::string name_of(hid_t object) {
  ssize_t const length = H5Iget_name(object, nullptr, 0);
  if (length <= 0) return {};
  std::string name(static_cast<std::size_t>(length) + 1, '\0');
  H5Iget_name(object, name.data(), name.size());
  name.pop_back();
  return name;
}

std::size_t value_bytes(std::string_view type) {
  return type == "double" || type == "long long" ? 8 : 4;
}

template <std::size_t N>
bool is_one_of(std::array<std::string_view, N> const& names, std::string_view type) {
  return std::find(names.begin(), names.end(), type) != names.end();
}

}  // namespace

op_hdf5_value_type op_hdf5_type_of(char const* type) {
  using namespace std::string_view_literals;
  constexpr std::array DOUBLES{"double"sv, "double:soa"sv, "double precision"sv, "real(8)"sv};
  constexpr std::array FLOATS{"float"sv, "float:soa"sv, "real(4)"sv, "real"sv};
  constexpr std::array INTS{"int"sv, "int:soa"sv, "int(4)"sv, "integer"sv, "integer(4)"sv};
  constexpr std::array LONGS{"long"sv, "long:soa"sv};
  constexpr std::array LONG_LONGS{"long long"sv, "long long:soa"sv};
  if (is_one_of(DOUBLES, type)) return {H5T_NATIVE_DOUBLE, 8};
  if (is_one_of(FLOATS, type)) return {H5T_NATIVE_FLOAT, 4};
  if (is_one_of(INTS, type)) return {H5T_NATIVE_INT, 4};
  if (is_one_of(LONGS, type)) return {H5T_NATIVE_LONG, 4};
  if (is_one_of(LONG_LONGS, type)) return {H5T_NATIVE_LLONG, 8};
  return {H5I_INVALID_HID, 0};
}

char const* op_hdf5_type_to_string(hid_t type) {
  // Files of another byte order have the same native type.
  H5Handle const native(H5Tget_native_type(type, H5T_DIR_ASCEND), H5Tclose);
  if (!native) return "UNRECOGNISED";
  auto const is = [&](hid_t known) { return H5Tequal(native.get(), known) > 0; };
  if (is(H5T_NATIVE_INT)) return "int";
  if (is(H5T_NATIVE_LONG)) return "long";
  if (is(H5T_NATIVE_LLONG)) return "long long";
  if (is(H5T_NATIVE_FLOAT)) return "float";
  if (is(H5T_NATIVE_DOUBLE)) return "double";
  return "UNRECOGNISED";
}

int get_dataset_properties(hid_t dataset, op_hdf5_dataset_properties* record) {
  if (record == nullptr) return -1;
  H5Handle const space(H5Dget_space(dataset), H5Sclose);
  H5Handle const type(H5Dget_type(dataset), H5Tclose);
  if (!space || !type) return -1;
  int const rank = H5Sget_simple_extent_ndims(space.get());
  if (rank < 0) return -1;
  std::string const name = name_of(dataset);
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

bool create_path(char const* path, hid_t file) {
  std::string_view const whole(path);
  for (std::size_t slash = whole.find('/'); slash != std::string_view::npos;
       slash = whole.find('/', slash + 1)) {
    if (slash == 0 || whole[slash - 1] == '/') continue;
    std::string const prefix(whole.substr(0, slash));
    if (H5Lexists(file, prefix.c_str(), H5P_DEFAULT) > 0) continue;
    H5Handle const group(H5Gcreate2(file, prefix.c_str(), H5P_DEFAULT, H5P_DEFAULT, H5P_DEFAULT),
                         H5Gclose);
    if (!group) return false;
  }
  return true;
}
