// Loop arguments: how one loop reaches one dat or one global value, and the checks on them.
//
// Applications build arguments with the calls of op_seq.h, which forward to the ones here.
#pragma once

#include "op/core/op_lib_core.h"

/// Argument for a dat. The table of the map is taken only if there is a dat and `idx` is not -1;
/// with `idx` -1 the map is ignored.
op_arg op_arg_dat_core(op_dat dat, int idx, op_map map, int dim, const char* type, op_access acc);

/// The same with `opt` from the caller; the table of the map is taken whatever `idx`.
op_arg op_opt_arg_dat_core(int opt, op_dat dat, int idx, op_map map, int dim, const char* type,
                           op_access acc);

/// Argument for a global of `dim` values; not in use if `data` is null.
/// @param type "double", "float", "int" or "bool"; any other leaves the argument without a type
/// @param size bytes of one value
op_arg op_arg_gbl_core(char* data, int dim, const char* type, int size, op_access acc);

/// Reports on standard output what does not fit in argument `m` of a loop over `set`; an argument
/// that is not in use is passed over.
/// @param ninds raised by one for an argument that goes through one column of a map
void op_arg_check(op_set set, int m, op_arg arg, int* ninds, const char* name);

/// True if both type strings stand for the same of the types double, float and int.
bool op_type_equivalence(const char* a, const char* b);
