// The frames of the 26 loops under their names: op_par_loop_kernel_<AREA>_<Name>.
//
// Each takes the name under which the timing table lists the loop, the set, and one argument per
// row of the loop's description.
#pragma once

#include "op/op_lib_core.h"
#include "simulation/Loops.h"

// clang-format off
void op_par_loop_kernel_HYDRAULICS_InitializeCellFeatures(   const char* name, op_set set, loops::InitCellHydFeatures::Arguments args);
void op_par_loop_kernel_MORPHOLOGY_InitializeCellFeatures(   const char* name, op_set set, loops::InitCellMorFeatures::Arguments args);
void op_par_loop_kernel_HYDRAULICS_InitializeFriction(       const char* name, op_set set, loops::InitFrictionFeatures::Arguments args);
void op_par_loop_kernel_HYDRAULICS_TimeStep(                 const char* name, op_set set, loops::TimeStepCalculation::Arguments args);
void op_par_loop_kernel_TOPOLOGY_NodeStringStates(           const char* name, op_set set, loops::NodeStringStateCalc::Arguments args);
void op_par_loop_kernel_DATA_EdgeInterpolation(              const char* name, op_set set, loops::EdgeDataInterpolation::Arguments args);
void op_par_loop_kernel_DATA_CellInterpolation(              const char* name, op_set set, loops::CellDataInterpolation::Arguments args);
void op_par_loop_kernel_DATA_EdgeModification(               const char* name, op_set set, loops::EdgeDataModification::Arguments args);
void op_par_loop_kernel_DATA_CellModification(               const char* name, op_set set, loops::CellDataModification::Arguments args);
void op_par_loop_kernel_HYDRAULICS_CalcCurvature(            const char* name, op_set set, loops::CalCCurvature::Arguments args);
void op_par_loop_kernel_MORPHOLOGY_CalcBedGradient(          const char* name, op_set set, loops::CalcBedGradient::Arguments args);
void op_par_loop_kernel_HYDRAULICS_Boundary(                 const char* name, op_set set, loops::HydBoundaryFluxes::Arguments args);
void op_par_loop_kernel_MORPHOLOGY_Boundary(                 const char* name, op_set set, loops::MorBoundaryFluxes::Arguments args);
void op_par_loop_kernel_HYDRAULICS_WallFluxes(               const char* name, op_set set, loops::HydWallBFluxes::Arguments args);
void op_par_loop_kernel_MORPHOLOGY_WallFluxes(               const char* name, op_set set, loops::MorWallBFluxes::Arguments args);
void op_par_loop_kernel_HYDRAULICS_InternalFluxes(           const char* name, op_set set, loops::HydInternalFluxes::Arguments args);
void op_par_loop_kernel_MORPHOLOGY_LocalBedSlope(            const char* name, op_set set, loops::LocalBedSlope::Arguments args);
void op_par_loop_kernel_MORPHOLOGY_CalcBedloadTransport(     const char* name, op_set set, loops::MorBedloadTransport::Arguments args);
void op_par_loop_kernel_MORPHOLOGY_InternalFluxes(           const char* name, op_set set, loops::MorInternalFluxes::Arguments args);
void op_par_loop_kernel_MORPHOLOGY_FixedBedCorrection(       const char* name, op_set set, loops::MorFixBedCorrection::Arguments args);
void op_par_loop_kernel_MORPHOLOGY_FixedBedCorrectionFindMax(const char* name, op_set set, loops::MorFixBedCorrectionMax::Arguments args);
void op_par_loop_kernel_GLOBAL_Update(                       const char* name, op_set set, loops::Update::Arguments args);
void op_par_loop_kernel_HYDRAULICS_Friction(                 const char* name, op_set set, loops::HydFriction::Arguments args);
void op_par_loop_kernel_HYDRAULICS_FloodTracking(            const char* name, op_set set, loops::HydFlood::Arguments args);
void op_par_loop_kernel_HYDRAULICS_Source(                   const char* name, op_set set, loops::HydSource::Arguments args);
void op_par_loop_kernel_MORPHOLOGY_Source(                   const char* name, op_set set, loops::MorSource::Arguments args);
// clang-format on
