// The type strings of dats and what they stand for. Each family has names for C, for storage by
// component (":soa", which has no effect here) and for Fortran.
//
// Include this inside the runtime only; whether two strings stand for the same type is told by
// op_type_equivalence of op_arg.h.
#pragma once

enum class op_type { Double, Float, Int, Long, LongLong, Unknown };

op_type op_type_of(const char* name);

/// Whether a new dataset can be made for dats of this type: of the names of C only, which are those
/// that a dataset's own type is given when it is read.
bool op_type_is_stored(const char* name);
