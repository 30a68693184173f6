// Records of the mesh-loop runtime: sets, maps, dats and loop arguments, and the calls that
// declare them. A set is a numbered collection of mesh objects, a map gives each element of a set
// a fixed number of elements of another one, a dat attaches a fixed number of values to every
// element, an argument tells one loop how it reaches one dat.
//
// Loops and applications declare through the calls of op_seq.h, which forward to the `_core` forms
// here. All records live in the globals below, from op_init to op_exit.
//
// The runtime reports on standard output in its own words and ends the process itself: status -1
// for declaration errors, 2 for data and file errors, 1 for absent features.
#pragma once

enum op_access { OP_READ = 0, OP_WRITE = 1, OP_RW = 2, OP_INC = 3, OP_MIN = 4, OP_MAX = 5 };

struct op_set_core {
  int index;         ///< position in OP_set_list
  int size;          ///< number of elements
  const char* name;  ///< private copy
  int core_size;     ///< elements that need no communication: all of them
  int exec_size;     ///< extra elements that are executed: none
  int nonexec_size;  ///< extra elements that are only read: none
};
using op_set = op_set_core*;

struct op_map_core {
  int index;         ///< position in OP_map_list
  op_set from;       ///< source set
  op_set to;         ///< target set
  int dim;           ///< entries per source element
  int* map;          ///< from->size * dim entries, row after row
  int* map_d;        ///< device copy, always null
  const char* name;  ///< private copy
  int user_managed;  ///< 0 if the runtime frees `map` at exit
};
using op_map = op_map_core*;

struct op_dat_core {
  int index;         ///< running number
  op_set set;        ///< owning set
  int dim;           ///< values per element
  int size;          ///< bytes per element
  char* data;        ///< values, element after element
  char* data_d;      ///< device copy, always null
  const char* type;  ///< type string, private copy
  const char* name;  ///< private copy
  char* buffer_d;    ///< device buffers, always null
  char* buffer_d_r;
  int dirtybit;      ///< reserved for halo exchange
  int dirty_hd;      ///< 0
  int user_managed;  ///< 0 if the runtime frees `data` at exit
  void* mpi_buffer;  ///< null
};
using op_dat = op_dat_core*;

struct op_arg {
  int index;   ///< always -1
  op_dat dat;  ///< null for a global
  op_map map;  ///< null for direct access
  int dim;     ///< values per element as the loop sees them
  int idx;     ///< column of the map, -1 for direct access, -k for k columns
  int size;    ///< bytes per element; -1 if there is no dat
  char* data;  ///< values of the dat, or address of the global
  char* data_d;
  int* map_data;  ///< table of the map, or null
  int* map_data_d;
  const char* type;  ///< type string
  op_access acc;
  int argtype;  ///< 1 for a dat, 0 for a global
  int sent;
  int opt;  ///< 1 if the argument is in use
};

/// Timing record of one loop.
struct op_kernel {
  const char* name;  ///< loop name, not copied; "unused" until the loop has run
  int count;         ///< calls of the loop
  double time;       ///< wall time of all calls [s]
  double* times;     ///< wall time per thread [s], `ntimes` entries
  int ntimes;
  float plan_time;  ///< time spent on execution plans [s]
  float transfer;   ///< estimate of the bytes moved
  float transfer2;  ///< estimate of the bytes moved in whole cache lines
  double mpi_time;  ///< time spent on communication [s]
};

/// Entry of the list of dats.
struct op_dat_entry_core {
  op_dat dat;
  op_dat_entry_core* next;   ///< null at the tail
  op_dat_entry_core** prev;  ///< the link that leads here
};
using op_dat_entry = op_dat_entry_core;

/// Doubly linked tail queue of the dats, in the order of their declaration.
struct op_dat_queue {
  op_dat_entry* first;
  op_dat_entry** last;  ///< the link that ends the queue
};

struct op_plan;  // execution plan of a parallel loop, see op_plan.h

extern int OP_diags;  ///< diagnostic level, 0 is silent
extern int OP_part_size, OP_block_size, OP_cache_line_size;
extern double OP_hybrid_balance;
extern int OP_auto_soa, OP_gpu_direct, OP_hybrid_gpu;
extern int OP_maps_base_index;  ///< index of the first element in the tables of maps, 0 or 1

extern op_set* OP_set_list;
extern int OP_set_index, OP_set_max;  ///< number of sets, capacity of the list
extern op_map* OP_map_list;
extern int OP_map_index, OP_map_max;  ///< number of maps, capacity of the list
extern op_dat_queue OP_dat_list;
extern int OP_dat_index;  ///< number of dats declared so far
extern op_kernel* OP_kernels;
extern int OP_kern_max, OP_kern_curr;  ///< number of timing records, the last requested one
extern op_plan* OP_plans;
extern int OP_plan_index, OP_plan_max;
extern double OP_plan_time;  ///< time spent on all plans [s]

/// Starts the runtime: stores the diagnostic level, takes the settings of the environment and of
/// the arguments behind the first one, and empties the list of dats.
void op_init_core(int argc, char** argv, int diags);

/// Takes the settings that stand in one argument, anywhere inside it, such as "OP_BLOCK_SIZE=128".
/// @param argc not looked at
void op_set_args(int argc, const char* arg);

/// New set of `size` elements. Ends the process if the size is negative.
op_set op_decl_set_core(int size, const char* name);

/// Ends the process unless a map could be declared between these sets: both there, dim positive.
void op_require_map(op_set from, op_set to, int dim, const char* name);

/// New map over the caller's table of from->size * dim entries, which stays the caller's. Entries
/// that count from 1 (see OP_maps_base_index) are changed in place to count from 0.
op_map op_decl_map_core(op_set from, op_set to, int dim, int* table, const char* name);

/// Ends the process with the first entry of the table that is no element of the target set.
void check_map(const char* name, op_set from, op_set to, int dim, const int* table);

/// Ends the process with status 2 if an entry of a map is no element of its target set.
void op_check_map_entry(op_map map, int row, int column);

/// Ends the process unless a dat could be declared: the set there, dim positive.
void op_require_dat(op_set set, int dim, const char* name);

/// New dat over the caller's values, which stay the caller's.
/// @param size bytes of one value
op_dat op_decl_dat_core(op_set set, int dim, const char* type, int size, char* data,
                        const char* name);

/// New dat with storage of its own, all zero. Ends the process if there is an equal one already.
op_dat op_decl_dat_temp_core(op_set set, int dim, const char* type, int size, const char* name);

/// Removes a dat from the list and frees it, and its values unless they are the caller's.
/// @return 1, or -1 if the list holds no dat of that name, dim, set and type
int op_free_dat_temp_core(op_dat dat);

/// True if both have the same index and the same name.
bool compare_sets(op_set a, op_set b);

/// The entry of the dat of that set, dim, value size, type and name, or null.
op_dat_entry* search_dat(op_set set, int dim, int size, const char* type, const char* name);

/// Ends the runtime: frees all sets, maps, dats and timing records.
void op_exit_core();
