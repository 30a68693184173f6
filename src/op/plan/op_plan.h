// Execution plans: how a loop is prepared for block-wise parallel execution. A plan cuts the set
// into blocks, lists the indirect data that each block touches, and gives colours to blocks and to
// the elements of a block: units of one colour never change the same data (OP_RW and OP_INC), so
// that they can run at the same time.
//
//   std::array<int, 3> inds{0, 0, -1};  // two columns of a map lead to one dat, one row is direct
//   op_plan* plan = op_plan_get("fluxes", edges, 256, 3, args.data(), 1, inds.data());
//   for (int b = 0; b < plan->nblocks; ++b) ...  // plan->blkmap holds them colour after colour
//   op_rt_exit();
//
// Sequential loops need no plan. A plan is built once for each distinct loop and lives until
// op_rt_exit, which belongs before op_exit: plans refer to sets and maps. A pointer to a plan is
// valid until the next one is built.
#pragma once

#include <cstdint>

#include "op/core/op_lib_core.h"

/// Which indirect arguments read and write through the lists of a block ("staged"), and how the
/// elements of a block are ordered. Any other value stages nothing.
enum op_staging {
  OP_STAGED_INCREMENTS = 1,  ///< arguments that are incremented
  OP_STAGED = 2,             ///< all indirect arguments
  OP_STAGED_BY_COLOUR = 3,   ///< all, and the elements of a block are sorted by colour
  OP_ONE_BLOCK = 4           ///< none: one single block, its elements sorted by colour
};

/// A plan. Arrays over arguments have `nargs` entries, those over blocks `nblocks`, those over
/// colours `ncolors`. Staged indirections are numbered in order of first appearance; entry
/// s + b * nargs_staged of `ind_offs` and `ind_sizes` is that of indirection s in block b.
struct op_plan {
  const char* name;  ///< of the loop, not copied
  op_set set;        ///< that the loop runs over
  int nargs;
  int ninds;         ///< indirect dats of the loop
  int nargs_staged;  ///< staged indirections
  int part_size;     ///< block size that the caller asked for
  op_map* maps;      ///< per argument
  op_dat* dats;
  int* idxs;
  int* optflags;
  int* accs;
  int* inds_staged;       ///< staged indirection of the argument, or -1
  int* nthrcol;           ///< element colours of each block
  int* thrcol;            ///< colour of each element; in the order of col_reord if there is one
  int* col_reord;         ///< elements of each block sorted by colour and 16 zeros, or null
  int** col_offsets;      ///< per block, where each colour begins in its part of col_reord, or null
  int* color2_offsets;    ///< the same for the single block of OP_ONE_BLOCK, else null
  int* offset;            ///< first element of each block
  int* ind_map;           ///< lists of the distinct elements that a block reaches, ascending
  int** ind_maps;         ///< where the lists of each staged indirection start in ind_map
  int* ind_offs;          ///< start of the block's list behind ind_maps
  int* ind_sizes;         ///< length of the block's list
  int* nindirect;         ///< entries of each staged indirection over all blocks
  std::int16_t* loc_map;  ///< per staged argument and element, its place in the block's list
  std::int16_t** loc_maps;  ///< start per argument, null if it is not staged
  int nblocks;
  int* nelems;        ///< elements of each block
  int ncolors_core;   ///< block colours of the core: blocks that need no communication
  int ncolors_owned;  ///< block colours up to the end of the set's own elements
  int ncolors;        ///< block colours in all; of OP_ONE_BLOCK the element colours of its block
  int* ncolblk;       ///< blocks per colour
  int* blkmap;        ///< blocks in the order of their colours
  int* nsharedCol;    ///< shared memory per colour [bytes]
  int nshared;        ///< largest shared memory of a block [bytes]
  float transfer;     ///< estimate of the bytes that the loop needs
  float transfer2;    ///< the same in whole cache lines
  int count;          ///< uses of the plan
  int* dims;          ///< shape of the dats, which may be gone when the next loop is compared
  int* sizes;
};

/// The plan of a loop: an earlier one if one was built for the same name, set, part size, maps,
/// columns and accesses, over dats of the same shape, else a new one. Neither the staging nor the
/// dats themselves are compared, nor which optional arguments are in use: loops that differ in one
/// of these need names of their own. Arguments that contradict each other are taken as they are;
/// the process ends with status -1 if something is missing that the plan is made from.
/// @param part_size elements of a block; 0 for as many as suit 24 KB of shared memory
/// @param inds for each argument the number of its indirect dat; negative if the argument is direct
///        or global. Arguments of one number share lists and colours.
/// @param staging see op_staging
op_plan* op_plan_core(const char* name, op_set set, int part_size, int nargs, op_arg* args,
                      int ninds, int* inds, int staging);

/// The same with all indirect arguments staged.
op_plan* op_plan_get(const char* name, op_set set, int part_size, int nargs, op_arg* args,
                     int ninds, int* inds);
op_plan* op_plan_get_stage(const char* name, op_set set, int part_size, int nargs, op_arg* args,
                           int ninds, int* inds, int staging);
/// @param upload whether a device gets a copy: there is none
op_plan* op_plan_get_stage_upload(const char* name, op_set set, int part_size, int nargs,
                                  op_arg* args, int ninds, int* inds, int staging, int upload);

/// Prints what is inconsistent in a plan and, if the diagnostic level is above 6, what is not.
/// @param nargs_staged staged indirections
/// @param inds_staged for each argument its staged indirection, or -1
void op_plan_check(op_plan plan, int nargs_staged, const int* inds_staged);

/// Frees all plans.
void op_rt_exit();
