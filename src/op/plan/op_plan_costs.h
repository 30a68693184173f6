// What a plan costs: shared memory and bytes moved, by estimate, and the report of a new plan.
//
// Include this inside the runtime only; applications need op_plan.h.
#pragma once

#include "op/plan/op_plan_loop.h"

/// Sums over all blocks that the report alone needs.
struct op_plan_costs {
  float shared = 0.0F;     ///< shared memory [bytes]
  float transfer3 = 0.0F;  ///< as transfer2, with the dats stored component by component [bytes]
};

/// Shared memory of each colour and of the largest block, and the bytes that the loop moves.
op_plan_costs op_plan_estimate(const op_plan_loop& loop, op_plan& plan);

/// Prints blocks, colours and costs.
void op_plan_report(const op_plan_loop& loop, const op_plan& plan, const op_plan_costs& costs);
