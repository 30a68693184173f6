// The runtime as an application sees it in a sequential build: start and end, declarations, loop
// arguments, access to values. The calls of the parallel interface are here too, without effect,
// so that loops are written as for a parallel build.
//
//   op_init(0, nullptr, logLevel);
//   op_set cells = op_decl_set(3, "cells");
//   op_dat depth = op_decl_dat_char(cells, 1, "double", 8, data, "depth");
//   op_arg arg = op_arg_dat(depth, -1, nullptr, 1, "double", OP_READ);
//   op_exit();
//
// Declarations check what they get and end the process, after a message on standard output, with
// status -1.
#pragma once

#include "op/core/op_lib_core.h"

/// Start the runtime. The soa forms set OP_auto_soa from their last argument first.
/// @param argv arguments of the runtime from the second one on, see op_set_args
/// @param diags diagnostic level, 0 is silent
void op_init(int argc, char** argv, int diags);
void op_init_soa(int argc, char** argv, int diags, int soa);
void op_mpi_init(int argc, char** argv, int diags);
void op_mpi_init_soa(int argc, char** argv, int diags, int soa);

/// Ends the runtime and frees its records.
void op_exit();

op_set op_decl_set(int size, const char* name);

/// @param table from->size * dim entries, row after row; stays the caller's
op_map op_decl_map(op_set from, op_set to, int dim, int* table, const char* name);

/// @param size bytes of one value
/// @param data set->size * dim values, element after element; stays the caller's
op_dat op_decl_dat_char(op_set set, int dim, const char* type, int size, char* data,
                        const char* name);

/// The same for values whose type the compiler knows. Ends the process with status 2 if `type` is
/// neither the string of that type nor the one with ":soa" behind it.
op_dat op_decl_dat(op_set set, int dim, const char* type, int* data, const char* name);
op_dat op_decl_dat(op_set set, int dim, const char* type, double* data, const char* name);

/// A dat with storage of its own, all zero. Ends the process with status 2 if an equal one exists.
op_dat op_decl_dat_temp_char(op_set set, int dim, const char* type, int size, const char* name);

/// @return 1, or -1 if there is no dat of that name, dim, set and type
int op_free_dat_temp_char(op_dat dat);

/// Does nothing: kernels read constants as plain global arrays.
void op_decl_const_char(int dim, const char* type, int size, char* data, const char* name);

/// @param idx column of the map, -1 for direct access, -k for k columns
/// @param map null for direct access
op_arg op_arg_dat(op_dat dat, int idx, op_map map, int dim, const char* type, op_access acc);

/// @param opt 1 if the argument is in use
op_arg op_opt_arg_dat(int opt, op_dat dat, int idx, op_map map, int dim, const char* type,
                      op_access acc);

/// @param size bytes of one value
op_arg op_arg_gbl_char(char* data, int dim, const char* type, int size, op_access acc);
op_arg op_arg_gbl(double* data, int dim, const char* type, op_access acc);
op_arg op_arg_gbl(int* data, int dim, const char* type, op_access acc);

/// Copies all values of a dat, set->size * dat->size bytes.
void op_fetch_data_char(op_dat dat, char* destination);

/// Copies (high + 1) elements from element `low` on; none for -1. Ends the process with status 2 if
/// the dat does not hold the elements `low` and `high`, or not all that are to be copied.
void op_fetch_data_idx_char(op_dat dat, char* destination, int low, int high);

int op_get_size(op_set set);

/// Elements of the set of that name, with the extra ones. Ends the process with status -1 if there
/// is none.
int op_size_of_set(const char* name);

/// Elements that a loop over this argument's set runs over; 0 for an argument not in use.
int getSetSizeFromOpArg(const op_arg* arg);

/// Sets OP_maps_base_index, if `base` is 0 or 1.
void set_maps_base(int base);

/// What kind of build this runtime is, in one word.
const char* op_build();

/// As printf and puts, once for all processes.
[[gnu::format(printf, 1, 2)]] void op_printf(const char* format, ...);
void op_print(const char* line);

/// 1 on the process that prints: the only one.
int op_is_root();

/// Nothing to exchange: all elements are here. @return the number of elements to run over
int op_mpi_halo_exchanges(op_set set, int nargs, op_arg* args);
int op_mpi_halo_exchanges_cuda(op_set set, int nargs, op_arg* args);

/// Nothing to wait for, to mark, to reduce or to measure.
void op_mpi_wait_all(int nargs, op_arg* args);
void op_mpi_wait_all_cuda(int nargs, op_arg* args);
void op_mpi_set_dirtybit(int nargs, op_arg* args);
void op_mpi_set_dirtybit_cuda(int nargs, op_arg* args);
void op_mpi_reduce_double(op_arg* arg, double* data);
void op_mpi_reduce_float(op_arg* arg, float* data);
void op_mpi_reduce_int(op_arg* arg, int* data);
void op_mpi_reduce_bool(op_arg* arg, bool* data);
void op_mpi_reduce_combined(op_arg* args, int nargs);
void op_mpi_reset_halos(int nargs, op_arg* args);
void op_mpi_barrier();
void op_mpi_perf_time(const char* name, double time);

/// Nothing to partition, to renumber or to upload, no device to wait for.
void op_partition();
void op_partition_reverse();
void op_renumber();
void op_upload_all();
void deviceSync();

/// Features of the parallel build. They end the process with status 1.
[[noreturn]] void op_theta_init();
[[noreturn]] void op_inc_theta();
[[noreturn]] void op_import_init_size();
[[noreturn]] void op_import_init();
[[noreturn]] void op_import_data();
[[noreturn]] void op_export_init();
[[noreturn]] void op_export_data();
