// Records of the mesh-loop runtime: sets, maps, dats and loop arguments, and the calls that
// declare them. A set is a numbered collection of mesh objects, a map gives each element of a set
// a fixed number of elements of another one, a dat attaches a fixed number of values to every
// element, an argument tells one loop how it reaches one dat.
//
// The runtime reports on standard output in its own words and ends the process itself: status -1
// for declaration errors, 2 for data and file errors, 1 for absent features.
#pragma once

enum op_access { OP_READ = 0, OP_WRITE = 1, OP_RW = 2, OP_INC = 3, OP_MIN = 4, OP_MAX = 5 };

struct op_set_core {
  int index;         ///< position in OP_set_list
  int size;          ///< number of elements
  char const* name;  ///< private copy
  int core_size;     ///< elements that need no communication: all of them
  int exec_size;     ///< extra elements that are executed: none
  int nonexec_size;  ///< extra elements that are only read: none
};
using op_set = op_set_core*;

struct op_map_core {
  int index;          ///< position in OP_map_list
  op_set from;        ///< source set
  op_set to;          ///< target set
  int dim;            ///< entries per source element
  int* map;           ///< from->size * dim entries, row after row
  int* map_d;         ///< device copy, always null
  char const* name;   ///< private copy
  int user_managed;   ///< 0 if the runtime frees `map` at exit
};
using op_map = op_map_core*;

struct op_dat_core {
  int index;         ///< running number
  op_set set;        ///< owning set
  int dim;           ///< values per element
  int size;          ///< bytes per element
  char* data;        ///< values, element after element
  char* data_d;      ///< device copy, always null
  char const* type;  ///< type string, private copy
  char const* name;  ///< private copy
  char* buffer_d;    ///< device buffers, always null
  char* buffer_d_r;
  int dirtybit;      ///< reserved for halo exchange
  int dirty_hd;      ///< 0
  int user_managed;  ///< 0 if the runtime frees `data` at exit
  void* mpi_buffer;  ///< null
};
using op_dat = op_dat_core*;

struct op_arg {
  int index;         ///< always -1
  op_dat dat;        ///< null for a global
  op_map map;        ///< null for direct access
  int dim;           ///< values per element as the loop sees them
  int idx;           ///< column of the map, -1 for direct access, -k for k columns
  int size;          ///< bytes per element; -1 if there is no dat
  char* data;        ///< values of the dat, or address of the global
  char* data_d;
  int* map_data;     ///< table of the map, or null
  int* map_data_d;
  char const* type;  ///< type string
  op_access acc;
  int argtype;       ///< 1 for a dat, 0 for a global
  int sent;
  int opt;           ///< 1 if the argument is in use
};
