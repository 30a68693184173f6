// The blocks of a plan, and the lists of the indirect data that each block touches.
//
// Include this inside the runtime only; applications need op_plan.h.
#pragma once

#include "op/plan/op_plan_loop.h"

/// Cuts the set into blocks. No block straddles the end of the core or, in a loop with a reduction,
/// the end of the set's own elements; the single block of OP_ONE_BLOCK covers everything.
void op_plan_cut_blocks(const op_plan_loop& loop, op_plan& plan);

/// For each block and staged indirection: the distinct elements that the block reaches, ascending;
/// for each staged argument and element: its place in that list. Ends the process with status -1 if
/// a list is longer than the 16 bits of a place can tell.
void op_plan_list_targets(const op_plan_loop& loop, op_plan& plan);
