// Sets, maps and dats straight from the datasets of an HDF5 file, and dats back into one. Each call
// opens and closes the file itself.
//
//   op_set cells = op_decl_set_hdf5("run.h5", "CellsAll/set");
//   op_dat bed = op_decl_dat_hdf5(cells, 1, "double", "run.h5", "CellsAll/BottomEl");
//   op_fetch_data_hdf5_file_path(bed, "results.h5", "/RESULTS/CellsAll/BottomEl/0000000");
//
// What does not fit ends the process with status 2, after a message on standard output. The
// declarations turn the automatic error printing of the HDF5 library off and leave it off.
#pragma once

#include "op/core/op_lib_core.h"

/// Set whose size is the one value of the dataset `name`; the set takes the dataset's name.
op_set op_decl_set_hdf5(const char* file, const char* name);

/// Set whose size is the number of rows of a dataset; null, after a message, if `dataset` is
/// something else in the file.
op_set op_decl_set_hdf5_infer_size(const char* file, const char* name, const char* dataset);

/// Map from a dataset of from->size by `dim` ints; null, after a message, if there is no dataset
/// `name`. Rows may be padded with anything: entries are left to op_check_map_entry.
op_map op_decl_map_hdf5(op_set from, op_set to, int dim, const char* file, const char* name);

/// Dat from a dataset of set->size by `dim` values, converted to `type` if the file has another
/// one; null, after a message, if there is no dataset `name`.
op_dat op_decl_dat_hdf5(op_set set, int dim, const char* type, const char* file, const char* name);

/// Writes all values of a dat to the dataset `path`, with the attributes "size" (bytes per
/// element), "dim" and "type". A new dataset gets the groups on its way; an existing one has to be
/// of the same shape and type and is updated in place. On return the file is up to date.
void op_fetch_data_hdf5(op_dat dat, const char* file, const char* path);
void op_fetch_data_hdf5_file_path(op_dat dat, const char* file, const char* path);

/// The same with the dat's name as path.
void op_fetch_data_hdf5_file(op_dat dat, const char* file);

/// Writes all dats into one file, each under its name; see op_fetch_data_hdf5.
void op_dump_to_hdf5(const char* file);

/// Writes `dim` values to the dataset `name`, with the attributes "dim" and "type". An existing
/// dataset has to be of the same shape and type and is updated in place.
/// @param type type string of the values; "long" are those of C
void op_write_const_hdf5(const char* name, int dim, const char* type, const char* data,
                         const char* file);

/// Reads `dim` values of a dataset into `buffer`, converted to `type` if the file has another one.
void op_get_const_hdf5(const char* name, int dim, const char* type, char* buffer, const char* file);
