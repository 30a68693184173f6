#include "op/core/op_seq.h"

#include <cstdarg>
#include <cstddef>
#include <cstdio>
#include <cstring>
#include <string>
#include <string_view>

#include "op/core/op_arg.h"
#include "op/core/op_util.h"

namespace {

// Copies `count` elements of a dat from element `first` on.
void copy_elements(op_dat dat, char* destination, int first, int count) {
  const auto width = static_cast<std::size_t>(dat->size);
  const auto bytes = static_cast<std::size_t>(count) * width;
  if (bytes == 0) return;
  std::memcpy(destination, dat->data + static_cast<std::size_t>(first) * width, bytes);
}

// @param own the type string of T
template <class T>
op_dat declare_typed(op_set set, int dim, const char* type, const char* own, T* data,
                     const char* name) {
  const std::string_view wanted(type);
  if (wanted != own && wanted != std::string(own) + ":soa") {
    op_fail(2, "incorrect type specified for dataset \"%s\" \n", name);
  }
  return op_decl_dat_char(set, dim, type, sizeof(T), reinterpret_cast<char*>(data), name);
}

[[noreturn]] void fail_absent(const char* call) {
  op_fail(1, "%s is not available in a sequential build\n", call);
}

}  // namespace

void op_init(int argc, char** argv, int diags) {
  op_init_core(argc, argv, diags);
}

void op_init_soa(int argc, char** argv, int diags, int soa) {
  OP_auto_soa = soa;
  op_init_core(argc, argv, diags);
}

void op_mpi_init(int argc, char** argv, int diags) {
  op_init(argc, argv, diags);
}

void op_mpi_init_soa(int argc, char** argv, int diags, int soa) {
  op_init_soa(argc, argv, diags, soa);
}

void op_exit() {
  op_exit_core();
}

op_set op_decl_set(int size, const char* name) {
  return op_decl_set_core(size, name);
}

op_map op_decl_map(op_set from, op_set to, int dim, int* table, const char* name) {
  return op_decl_map_core(from, to, dim, table, name);
}

op_dat op_decl_dat_char(op_set set, int dim, const char* type, int size, char* data,
                        const char* name) {
  return op_decl_dat_core(set, dim, type, size, data, name);
}

op_dat op_decl_dat_temp_char(op_set set, int dim, const char* type, int size, const char* name) {
  return op_decl_dat_temp_core(set, dim, type, size, name);
}

int op_free_dat_temp_char(op_dat dat) {
  return op_free_dat_temp_core(dat);
}

op_dat op_decl_dat(op_set set, int dim, const char* type, int* data, const char* name) {
  return declare_typed(set, dim, type, "int", data, name);
}

op_dat op_decl_dat(op_set set, int dim, const char* type, double* data, const char* name) {
  return declare_typed(set, dim, type, "double", data, name);
}

void op_decl_const_char(int /*dim*/, const char* /*type*/, int /*size*/, char* /*data*/,
                        const char* /*name*/) {}

op_arg op_arg_dat(op_dat dat, int idx, op_map map, int dim, const char* type, op_access acc) {
  return op_arg_dat_core(dat, idx, map, dim, type, acc);
}

op_arg op_opt_arg_dat(int opt, op_dat dat, int idx, op_map map, int dim, const char* type,
                      op_access acc) {
  return op_opt_arg_dat_core(opt, dat, idx, map, dim, type, acc);
}

op_arg op_arg_gbl_char(char* data, int dim, const char* type, int size, op_access acc) {
  return op_arg_gbl_core(data, dim, type, size, acc);
}

op_arg op_arg_gbl(double* data, int dim, const char* type, op_access acc) {
  return op_arg_gbl_char(reinterpret_cast<char*>(data), dim, type, sizeof(double), acc);
}

op_arg op_arg_gbl(int* data, int dim, const char* type, op_access acc) {
  return op_arg_gbl_char(reinterpret_cast<char*>(data), dim, type, sizeof(int), acc);
}

void op_fetch_data_char(op_dat dat, char* destination) {
  copy_elements(dat, destination, 0, dat->set->size);
}

void op_fetch_data_idx_char(op_dat dat, char* destination, int low, int high) {
  const int last = dat->set->size - 1;
  // The copy begins at `low`: it must not run beyond the last element, nor backwards.
  const bool runsOut = high < -1 || (high >= 0 && low > last - high);
  if (low < 0 || high > last || runsOut) {
    op_fail(2, "op_fetch_data: Indices not within range of elements held in %s\n", dat->name);
  }
  copy_elements(dat, destination, low, high + 1);
}

int op_get_size(op_set set) {
  return set->size;
}

int op_size_of_set(const char* name) {
  for (int i = 0; i < OP_set_index; ++i) {
    const op_set set = OP_set_list[i];
    if (op_same_text(set->name, name)) return set->size + set->exec_size + set->nonexec_size;
  }
  op_fail(-1, "Error: set %s not found\n", name);
}

int getSetSizeFromOpArg(const op_arg* arg) {
  return arg->opt == 0 ? 0 : arg->dat->set->size;
}

void set_maps_base(int base) {
  if (base == 0 || base == 1) OP_maps_base_index = base;
}

const char* op_build() {
  return "sequential";
}

void op_printf(const char* format, ...) {
  va_list arguments;
  va_start(arguments, format);
  // NOLINTNEXTLINE(clang-analyzer-valist.Uninitialized): it is not, the line above fills it
  std::vprintf(format, arguments);
  va_end(arguments);
}

void op_print(const char* line) {
  std::puts(line);
}

int op_is_root() {
  return 1;
}

int op_mpi_halo_exchanges(op_set set, int /*nargs*/, op_arg* /*args*/) {
  return set->size;
}

int op_mpi_halo_exchanges_cuda(op_set set, int /*nargs*/, op_arg* /*args*/) {
  return set->size;
}

void op_mpi_wait_all(int /*nargs*/, op_arg* /*args*/) {}

void op_mpi_wait_all_cuda(int /*nargs*/, op_arg* /*args*/) {}

void op_mpi_set_dirtybit(int /*nargs*/, op_arg* /*args*/) {}

void op_mpi_set_dirtybit_cuda(int /*nargs*/, op_arg* /*args*/) {}

void op_mpi_reduce_double(op_arg* /*arg*/, double* /*data*/) {}

void op_mpi_reduce_float(op_arg* /*arg*/, float* /*data*/) {}

void op_mpi_reduce_int(op_arg* /*arg*/, int* /*data*/) {}

void op_mpi_reduce_bool(op_arg* /*arg*/, bool* /*data*/) {}

void op_mpi_reduce_combined(op_arg* /*args*/, int /*nargs*/) {}

void op_mpi_reset_halos(int /*nargs*/, op_arg* /*args*/) {}

void op_mpi_barrier() {}

void op_mpi_perf_time(const char* /*name*/, double /*time*/) {}

void op_partition() {}

void op_partition_reverse() {}

void op_renumber() {}

void op_upload_all() {}

void deviceSync() {}

void op_theta_init() {
  fail_absent("op_theta_init");
}

void op_inc_theta() {
  fail_absent("op_inc_theta");
}

void op_import_init_size() {
  fail_absent("op_import_init_size");
}

void op_import_init() {
  fail_absent("op_import_init");
}

void op_import_data() {
  fail_absent("op_import_data");
}

void op_export_init() {
  fail_absent("op_export_init");
}

void op_export_data() {
  fail_absent("op_export_data");
}
