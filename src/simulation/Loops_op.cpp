#include "simulation/Loops_op.h"

#include "op/op_frame.h"
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

// One line per loop ties a description to its kernel body and gives the frame its name.
#define LOOP_FRAME(NAME, DESCRIPTION, BODY)                                                   \
  void op_par_loop_##NAME(const char* name, op_set set, loops::DESCRIPTION::Arguments args) { \
    op::par_loop<loops::DESCRIPTION, kernels::BODY>(name, set, args);                         \
  }

// clang-format off
LOOP_FRAME(kernel_HYDRAULICS_InitializeCellFeatures,    InitCellHydFeatures,    hydraulics::initialize_cell_features)
LOOP_FRAME(kernel_MORPHOLOGY_InitializeCellFeatures,    InitCellMorFeatures,    morphology::initialize_cell_features)
LOOP_FRAME(kernel_HYDRAULICS_InitializeFriction,        InitFrictionFeatures,   hydraulics::initialize_friction)
LOOP_FRAME(kernel_HYDRAULICS_TimeStep,                  TimeStepCalculation,    hydraulics::time_step)
LOOP_FRAME(kernel_TOPOLOGY_NodeStringStates,            NodeStringStateCalc,    topology::node_string_states)
LOOP_FRAME(kernel_DATA_EdgeInterpolation,               EdgeDataInterpolation,  data::edge_interpolation)
LOOP_FRAME(kernel_DATA_CellInterpolation,               CellDataInterpolation,  data::cell_interpolation)
LOOP_FRAME(kernel_DATA_EdgeModification,                EdgeDataModification,   data::edge_modification)
LOOP_FRAME(kernel_DATA_CellModification,                CellDataModification,   data::cell_modification)
LOOP_FRAME(kernel_HYDRAULICS_CalcCurvature,             CalCCurvature,          hydraulics::calc_curvature)
LOOP_FRAME(kernel_MORPHOLOGY_CalcBedGradient,           CalcBedGradient,        morphology::calc_bed_gradient)
LOOP_FRAME(kernel_HYDRAULICS_Boundary,                  HydBoundaryFluxes,      hydraulics::boundary)
LOOP_FRAME(kernel_MORPHOLOGY_Boundary,                  MorBoundaryFluxes,      morphology::boundary)
LOOP_FRAME(kernel_HYDRAULICS_WallFluxes,                HydWallBFluxes,         hydraulics::wall_fluxes)
LOOP_FRAME(kernel_MORPHOLOGY_WallFluxes,                MorWallBFluxes,         morphology::wall_fluxes)
LOOP_FRAME(kernel_HYDRAULICS_InternalFluxes,            HydInternalFluxes,      hydraulics::internal_fluxes)
LOOP_FRAME(kernel_MORPHOLOGY_LocalBedSlope,             LocalBedSlope,          morphology::local_bed_slope)
LOOP_FRAME(kernel_MORPHOLOGY_CalcBedloadTransport,      MorBedloadTransport,    morphology::calc_bedload_transport)
LOOP_FRAME(kernel_MORPHOLOGY_InternalFluxes,            MorInternalFluxes,      morphology::internal_fluxes)
LOOP_FRAME(kernel_MORPHOLOGY_FixedBedCorrection,        MorFixBedCorrection,    morphology::fixed_bed_correction)
LOOP_FRAME(kernel_MORPHOLOGY_FixedBedCorrectionFindMax, MorFixBedCorrectionMax, morphology::fixed_bed_correction_find_max)
LOOP_FRAME(kernel_GLOBAL_Update,                        Update,                 global::update)
LOOP_FRAME(kernel_HYDRAULICS_Friction,                  HydFriction,            hydraulics::friction)
LOOP_FRAME(kernel_HYDRAULICS_FloodTracking,             HydFlood,               hydraulics::flood_tracking)
LOOP_FRAME(kernel_HYDRAULICS_Source,                    HydSource,              hydraulics::source)
LOOP_FRAME(kernel_MORPHOLOGY_Source,                    MorSource,              morphology::source)
// clang-format on
