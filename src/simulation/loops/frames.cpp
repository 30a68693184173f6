// The frames of all loops. Each backend compiles this source once, into a library of its own:
// LOOP_BACKEND names the class that visits the elements, LOOP_BACKEND_HEADER its header.
#include LOOP_BACKEND_HEADER
#include "op/loop/op_frame.h"
#include "simulation/kernels/data/cell_interpolation.h"
#include "simulation/kernels/data/cell_modification.h"
#include "simulation/kernels/data/edge_interpolation.h"
#include "simulation/kernels/data/edge_modification.h"
#include "simulation/kernels/global/update.h"
#include "simulation/kernels/hydraulics/boundary.h"
#include "simulation/kernels/hydraulics/calc_curvature.h"
#include "simulation/kernels/hydraulics/flood_tracking.h"
#include "simulation/kernels/hydraulics/friction.h"
#include "simulation/kernels/hydraulics/initialize_cell_features.h"
#include "simulation/kernels/hydraulics/initialize_friction.h"
#include "simulation/kernels/hydraulics/internal_fluxes.h"
#include "simulation/kernels/hydraulics/source.h"
#include "simulation/kernels/hydraulics/time_step.h"
#include "simulation/kernels/hydraulics/wall_fluxes.h"
#include "simulation/kernels/morphology/boundary.h"
#include "simulation/kernels/morphology/calc_bed_gradient.h"
#include "simulation/kernels/morphology/calc_bedload_transport.h"
#include "simulation/kernels/morphology/fixed_bed_correction.h"
#include "simulation/kernels/morphology/fixed_bed_correction_find_max.h"
#include "simulation/kernels/morphology/initialize_cell_features.h"
#include "simulation/kernels/morphology/internal_fluxes.h"
#include "simulation/kernels/morphology/local_bed_slope.h"
#include "simulation/kernels/morphology/source.h"
#include "simulation/kernels/morphology/wall_fluxes.h"
#include "simulation/kernels/topology/node_string_states.h"
#include "simulation/loops/all_loops.h"

#define DEFINE_FRAME(DESCRIPTION, NAME, COUNT, BODY)                                               \
  void op_par_loop_##NAME(const char* name, op_set set, OP_ARGS_##COUNT(OP_ARG_PARAMETER)) {       \
    static_assert(loops::DESCRIPTION::rows == COUNT);                                              \
    op::par_loop<loops::DESCRIPTION, kernels::BODY, LOOP_BACKEND>(#NAME, name, set,                \
                                                                  {OP_ARGS_##COUNT(OP_ARG_NAME)}); \
  }
ALL_LOOPS(DEFINE_FRAME)
