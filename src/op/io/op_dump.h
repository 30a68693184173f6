// The values of a dat, to look at: on standard output, as a text file, as a binary file.
//
//   op_print_dat_to_txtfile(bed, "bed.txt");
//
// The `_core` forms do the work; in a sequential build the others only call them.
#pragma once

#include "op/core/op_lib_core.h"

/// Prints all values of a dat of a type that begins with "real" or "integer", one a line. Does
/// nothing for null; ends the process with status 0 for any other type.
void op_dump_dat(op_dat dat);

/// Writes set size and dim as ints of four bytes, then the values as they are in memory. Ends the
/// process with status 2 if the file cannot be written.
void op_print_dat_to_binfile(op_dat dat, const char* path);
void op_print_dat_to_binfile_core(op_dat dat, const char* path);

/// Writes a line with set size and dim, then a line for each element. Ends the process with status
/// 2 if the file cannot be written or the type is none of the double, float, int or long ones.
void op_print_dat_to_txtfile(op_dat dat, const char* path);
void op_print_dat_to_txtfile_core(op_dat dat, const char* path);
