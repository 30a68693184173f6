// The list of all loops, in KernelID order: what ties a description to its frame and its body.
//
//   loops::FrameOf<loops::HydFriction>::run(name, set, arg1, arg2, arg3, arg4, arg5);
//   loops::forEach([]<class L>() { std::puts(loops::FrameOf<L>::name); });
//
// The frames are functions op_par_loop_kernel_<AREA>_<Name>. Each takes the name under which the
// timing table lists the loop, the set, and one op_arg per row of the description that has one.
#pragma once

#include "op/core/op_lib_core.h"
#include "simulation/loops/descriptions.h"

namespace loops {

/// The frame of loop L: `run` and its `name`. A loop that is not in the list has none.
template <class L>
struct FrameOf;

}  // namespace loops

// Description, name of the frame behind op_par_loop_, number of its arguments, body.
// clang-format off
#define ALL_LOOPS(LOOP) \
  LOOP(InitCellHydFeatures,    kernel_HYDRAULICS_InitializeCellFeatures,     3, hydraulics::initialize_cell_features)      \
  LOOP(InitCellMorFeatures,    kernel_MORPHOLOGY_InitializeCellFeatures,     3, morphology::initialize_cell_features)      \
  LOOP(InitFrictionFeatures,   kernel_HYDRAULICS_InitializeFriction,         4, hydraulics::initialize_friction)           \
  LOOP(TimeStepCalculation,    kernel_HYDRAULICS_TimeStep,                   9, hydraulics::time_step)                     \
  LOOP(NodeStringStateCalc,    kernel_TOPOLOGY_NodeStringStates,            14, topology::node_string_states)              \
  LOOP(EdgeDataInterpolation,  kernel_DATA_EdgeInterpolation,                6, data::edge_interpolation)                  \
  LOOP(CellDataInterpolation,  kernel_DATA_CellInterpolation,                5, data::cell_interpolation)                  \
  LOOP(EdgeDataModification,   kernel_DATA_EdgeModification,                 8, data::edge_modification)                   \
  LOOP(CellDataModification,   kernel_DATA_CellModification,                 4, data::cell_modification)                   \
  LOOP(CalCCurvature,          kernel_HYDRAULICS_CalcCurvature,              8, hydraulics::calc_curvature)                \
  LOOP(CalcBedGradient,        kernel_MORPHOLOGY_CalcBedGradient,            4, morphology::calc_bed_gradient)             \
  LOOP(HydBoundaryFluxes,      kernel_HYDRAULICS_Boundary,                  10, hydraulics::boundary)                      \
  LOOP(MorBoundaryFluxes,      kernel_MORPHOLOGY_Boundary,                  13, morphology::boundary)                      \
  LOOP(HydWallBFluxes,         kernel_HYDRAULICS_WallFluxes,                 4, hydraulics::wall_fluxes)                   \
  LOOP(MorWallBFluxes,         kernel_MORPHOLOGY_WallFluxes,                 1, morphology::wall_fluxes)                   \
  LOOP(HydInternalFluxes,      kernel_HYDRAULICS_InternalFluxes,             8, hydraulics::internal_fluxes)               \
  LOOP(LocalBedSlope,          kernel_MORPHOLOGY_LocalBedSlope,              4, morphology::local_bed_slope)               \
  LOOP(MorBedloadTransport,    kernel_MORPHOLOGY_CalcBedloadTransport,      10, morphology::calc_bedload_transport)        \
  LOOP(MorInternalFluxes,      kernel_MORPHOLOGY_InternalFluxes,            12, morphology::internal_fluxes)               \
  LOOP(MorFixBedCorrection,    kernel_MORPHOLOGY_FixedBedCorrection,         9, morphology::fixed_bed_correction)          \
  LOOP(MorFixBedCorrectionMax, kernel_MORPHOLOGY_FixedBedCorrectionFindMax,  3, morphology::fixed_bed_correction_find_max) \
  LOOP(Update,                 kernel_GLOBAL_Update,                        12, global::update)                            \
  LOOP(HydFriction,            kernel_HYDRAULICS_Friction,                   5, hydraulics::friction)                      \
  LOOP(HydFlood,               kernel_HYDRAULICS_FloodTracking,              5, hydraulics::flood_tracking)                \
  LOOP(HydSource,              kernel_HYDRAULICS_Source,                     7, hydraulics::source)                        \
  LOOP(MorSource,              kernel_MORPHOLOGY_Source,                     7, morphology::source)
// clang-format on

#define DECLARE_FRAME(DESCRIPTION, NAME, COUNT, BODY)                     \
  loops::DESCRIPTION::Frame op_par_loop_##NAME;                           \
  template <>                                                             \
  struct loops::FrameOf<loops::DESCRIPTION> {                             \
    static constexpr const char* name = #NAME;                            \
    static constexpr loops::DESCRIPTION::Frame* run = op_par_loop_##NAME; \
  };
ALL_LOOPS(DECLARE_FRAME)
#undef DECLARE_FRAME

namespace loops {

/// Calls visit.template operator()<L>() for each loop L.
template <class Visit>
void forEach(Visit&& visit) {
#define VISIT(DESCRIPTION, NAME, COUNT, BODY) visit.template operator()<DESCRIPTION>();
  ALL_LOOPS(VISIT)
#undef VISIT
}

}  // namespace loops
