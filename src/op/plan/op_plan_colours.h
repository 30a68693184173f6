// The colours of a plan: units of one colour change no element that another unit of that colour
// changes. Looked at are indirect arguments in use of access OP_RW and OP_INC.
//
// Include this inside the runtime only; applications need op_plan.h.
#pragma once

#include "op/plan/op_plan_loop.h"

/// Colours of the elements of each block; the order by colours if the staging asks for it.
void op_plan_colour_elements(const op_plan_loop& loop, op_plan& plan);

/// Colours of the blocks, and the blocks in the order of their colours. Blocks behind the core, and
/// in a loop with a reduction those behind the set's own elements, share no colour with the blocks
/// before them.
void op_plan_colour_blocks(const op_plan_loop& loop, op_plan& plan);
