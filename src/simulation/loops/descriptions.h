// The 26 loops of the numerics: who reads and writes what, and how.
//
// One table per loop, in KernelID order. A row fixes one parameter of the kernel body; the compiler
// checks the body against it. See op/op_loop.h for the rows, kernels/ for the bodies, all_loops.h
// for the body and the frame of each loop.
#pragma once

#include "catalogue/IDs.h"
#include "catalogue/Limits.h"
#include "op/loop/op_loop.h"
#include "simulation/kernels/Diagnostics.h"
#include "simulation/kernels/Parameters.h"
#include "simulation/loops/notices.h"

namespace loops {

/// When an optional row is in use.
enum class Flag {
  debug,               ///< --debug
  friction,            ///< FrictionOn
  morphology,          ///< the current time has reached MorphStart
  morphologyFriction,  ///< both of the above
};

using model::DataID;
using model::KernelID;
using model::MapID;
using model::SERIES_VALUES;
using model::SetID;
using model::STRING_EDGES;
using op::all;
using op::at;
using op::change;
using op::given;
using op::highest;
using op::Loop;
using op::lowest;
using op::read;
using op::read_if;
using op::write;
using op::Order::any;
using op::Order::ascending;

// Rows without an argument: what the body gets beside its data.
using parameters = op::constants<kernels::Parameters>;
using diagnostics = op::notices<kernels::Diagnostics, simulation::printNotices>;

// Descriptions are types of their own, so that compilers, profilers and debuggers show short names.

// A row that names a set instead of a datum reads the numbers of the set's elements.

// clang-format off
struct InitCellHydFeatures : Loop<0, KernelID::InitCellHydFeatures, SetID::CellsAll, any,
    parameters,
    read <DataID::HydState, double[3]>,
    read <DataID::BottomEl, double>,
    write<DataID::IsWetted, int>> {};

struct InitCellMorFeatures : Loop<2, KernelID::InitCellMorFeatures, SetID::CellsAll, any,
    read <DataID::BottomEl, double>,
    write<DataID::FlowCurv, double>,
    write<DataID::BedGrdnt, double[2]>> {};

struct InitFrictionFeatures : Loop<1, KernelID::InitFrictionFeatures, SetID::CellsAll, any,
    parameters,
    read <DataID::HydState, double[3]>,
    read <DataID::BottomEl, double>,
    read <DataID::Friction, double>,
    write<DataID::ChezyCoe, double>> {};

struct TimeStepCalculation : Loop<8, KernelID::TimeStepCalculation, SetID::EdgesAll, any,
    parameters,
    read  <DataID::NormVect, double[2]>,
    read  <DataID::CharSize, double[2]>,
    read  <DataID::IsWetted, int,       at<MapID::EdgesAll_CellsAll, 0>>,
    read  <DataID::IsWetted, int,       at<MapID::EdgesAll_CellsAll, 1>>,
    read  <DataID::HydState, double[3], at<MapID::EdgesAll_CellsAll, 0>>,
    read  <DataID::HydState, double[3], at<MapID::EdgesAll_CellsAll, 1>>,
    read  <DataID::BottomEl, double,    at<MapID::EdgesAll_CellsAll, 0>>,
    read  <DataID::BottomEl, double,    at<MapID::EdgesAll_CellsAll, 1>>,
    lowest<double>> {};                    // the stable time step

struct NodeStringStateCalc : Loop<3, KernelID::NodeStringStateCalc, SetID::NodeStrg, any,
    parameters,
    given<int>,                         // morphology flag
    given<int>,                         // friction-in-morphology flag
    read   <DataID::NodeStrg_ListSize, int>,
    read   <DataID::NodeStrg_EdgeSign, int[STRING_EDGES]>,
    read   <DataID::GeomLeng, double,    all<MapID::NodeStrg_EdgesAll, STRING_EDGES>>,
    read   <DataID::FluxesHy, double[5], all<MapID::NodeStrg_EdgesAll, STRING_EDGES>>,
    read_if<Flag::morphology,
            DataID::FluxesMo, double,    all<MapID::NodeStrg_EdgesAll, STRING_EDGES>>,
    read_if<Flag::morphologyFriction,
            DataID::ChezyCoe, double,    all<MapID::NodeStrg_CellsAll, STRING_EDGES>>,
    read_if<Flag::morphology,
            DataID::ThetaCrt, double,    all<MapID::NodeStrg_CellsAll, STRING_EDGES>>,
    read_if<Flag::morphology,
            DataID::MSedSize, double,    all<MapID::NodeStrg_CellsAll, STRING_EDGES>>,
    read   <DataID::HydState, double[3], all<MapID::NodeStrg_CellsAll, STRING_EDGES>>,
    read   <DataID::BottomEl, double,    all<MapID::NodeStrg_CellsAll, STRING_EDGES>>,
    read   <DataID::CellsAll_GeomArea, double, all<MapID::NodeStrg_CellsAll, STRING_EDGES>>,
    write  <DataID::StateVar, double[10]>> {};

struct EdgeDataInterpolation : Loop<4, KernelID::EdgeDataInterpolation, SetID::EdInterp, any,
    read <DataID::InSeries_NumValue, double[SERIES_VALUES], at<MapID::EdInterp_InSeries, 0>>,
    read <DataID::InSeries_ListSize, int,           at<MapID::EdInterp_InSeries, 0>>,
    read <DataID::EdInterp_KeyPostn, int[2]>,
    read <DataID::StateVar,          double[10],    at<MapID::EdInterp_NodeStrg, 0>>,
    given<double>,                      // current time
    write<DataID::EdgeData_NumValue, double[7],     at<MapID::EdInterp_EdgeData, 0>>> {};

struct CellDataInterpolation : Loop<5, KernelID::CellDataInterpolation, SetID::ClInterp, any,
    read <DataID::InSeries_NumValue, double[SERIES_VALUES], at<MapID::ClInterp_InSeries, 0>>,
    read <DataID::InSeries_ListSize, int,           at<MapID::ClInterp_InSeries, 0>>,
    read <DataID::ClInterp_KeyPostn, int[2]>,
    given<double>,                      // current time
    write<DataID::CellData_NumValue, double[2],     at<MapID::ClInterp_CellData, 0>>> {};

struct EdgeDataModification : Loop<6, KernelID::EdgeDataModification, SetID::EdModDat, ascending,
    parameters,
    read  <DataID::EdModDat_ModfInfo, int[7]>,
    read  <DataID::StateVar,          double[10], at<MapID::EdModDat_NodeStrg, 0>>,
    read  <DataID::StateVar,          double[10], at<MapID::EdModDat_NodeStrg, 1>>,
    read  <DataID::TotalLen,          double,     at<MapID::EdModDat_NodeStrg, 0>>,
    read  <DataID::TotalLen,          double,     at<MapID::EdModDat_NodeStrg, 1>>,
    given <double>,                     // current time
    change<DataID::LocalDat,          double[2]>,
    change<DataID::EdgeData_NumValue, double[7],  at<MapID::EdModDat_EdgeData, 0>>> {};

struct CellDataModification : Loop<7, KernelID::CellDataModification, SetID::ClModDat, ascending,
    read  <DataID::ClModDat_ModfInfo, int[7]>,
    read  <DataID::MatIDRgn_GeomArea, double,    at<MapID::ClModDat_MatIDRgn, 0>>,
    given <double>,                     // current time
    change<DataID::CellData_NumValue, double[2], at<MapID::ClModDat_CellData, 0>>> {};

struct CalCCurvature : Loop<17, KernelID::CalCCurvature, SetID::CellsAll, any,
    parameters,
    read <DataID::UnitCent, double[2], all<MapID::CellsAll_EdgesAll, 3>>,
    read <DataID::DistCent, double,    all<MapID::CellsAll_EdgesAll, 3>>,
    read <DataID::HydState, double[3]>,
    read <DataID::BottomEl, double>,
    read <DataID::HydState, double[3], all<MapID::CellsAll_NbrCells, 3>>,
    read <DataID::BottomEl, double,    all<MapID::CellsAll_NbrCells, 3>>,
    read <DataID::GeomWght, double[6]>,
    write<DataID::FlowCurv, double>> {};

struct CalcBedGradient : Loop<18, KernelID::CalcBedGradient, SetID::CellsAll, any,
    read <DataID::BottomEl, double>,
    read <DataID::BottomEl, double,    all<MapID::CellsAll_NbrCells, 3>>,
    read <DataID::GeomWght, double[6]>,
    write<DataID::BedGrdnt, double[2]>> {};

struct HydBoundaryFluxes : Loop<9, KernelID::HydBoundaryFluxes, SetID::EdgHydBC, any,
    parameters,
    read   <DataID::HydBType,          int[2]>,
    read   <DataID::EdgeData_NumValue, double[7], at<MapID::EdgHydBC_EdgeData, 0>>,
    read   <DataID::NormVect,          double[2], at<MapID::EdgHydBC_EdgesAll, 0>>,
    read   <DataID::HydState,          double[3], at<MapID::EdgHydBC_CellsAll, 0>>,
    read   <DataID::HydState,          double[3], at<MapID::EdgHydBC_CellsAll, 1>>,
    read   <DataID::BottomEl,          double,    at<MapID::EdgHydBC_CellsAll, 0>>,
    read   <DataID::BottomEl,          double,    at<MapID::EdgHydBC_CellsAll, 1>>,
    read_if<Flag::friction,
            DataID::ChezyCoe,          double,    at<MapID::EdgHydBC_CellsAll, 0>>,
    // One value per edge though the datum holds two: edge e reads the flat entry e.
    read   <DataID::CharSize,          double,    at<MapID::EdgHydBC_EdgesAll, 0>>,
    write  <DataID::FluxesHy,          double[5], at<MapID::EdgHydBC_EdgesAll, 0>>> {};

struct MorBoundaryFluxes : Loop<10, KernelID::MorBoundaryFluxes, SetID::EdgMorBC, any,
    parameters,
    given  <double>,                    // time step
    read   <DataID::MorBType,          int[2]>,
    read   <DataID::EdgeData_NumValue, double[7], at<MapID::EdgMorBC_EdgeData, 0>>,
    read   <DataID::NormVect,          double[2], at<MapID::EdgMorBC_EdgesAll, 0>>,
    read   <DataID::GeomLeng,          double,    at<MapID::EdgMorBC_EdgesAll, 0>>,
    read   <DataID::HydState,          double[3], at<MapID::EdgMorBC_CellsAll, 0>>,
    read   <DataID::HydState,          double[3], at<MapID::EdgMorBC_CellsAll, 1>>,
    read   <DataID::BottomEl,          double,    at<MapID::EdgMorBC_CellsAll, 0>>,
    read   <DataID::BottomEl,          double,    at<MapID::EdgMorBC_CellsAll, 1>>,
    read_if<Flag::friction,
            DataID::ChezyCoe,          double,    at<MapID::EdgMorBC_CellsAll, 0>>,
    read   <DataID::CellsAll_GeomArea, double,    at<MapID::EdgMorBC_CellsAll, 0>>,
    read   <DataID::MSedSize,          double,    at<MapID::EdgMorBC_CellsAll, 0>>,
    write  <DataID::FluxesMo,          double,    at<MapID::EdgMorBC_EdgesAll, 0>>> {};

struct HydWallBFluxes : Loop<11, KernelID::HydWallBFluxes, SetID::EdgHydWL, any,
    parameters,
    read <DataID::HydState, double[3], at<MapID::EdgHydWL_CellsAll, 0>>,
    read <DataID::BottomEl, double,    at<MapID::EdgHydWL_CellsAll, 0>>,
    read <DataID::NormVect, double[2], at<MapID::EdgHydWL_EdgesAll, 0>>,
    write<DataID::FluxesHy, double[5], at<MapID::EdgHydWL_EdgesAll, 0>>> {};

struct MorWallBFluxes : Loop<12, KernelID::MorWallBFluxes, SetID::EdgMorWL, any,
    write<DataID::FluxesMo, double, at<MapID::EdgMorWL_EdgesAll, 0>>> {};

struct HydInternalFluxes : Loop<13, KernelID::HydInternalFluxes, SetID::EdgesSWE, any,
    parameters,
    read <DataID::NormVect, double[2], at<MapID::EdgesSWE_EdgesAll, 0>>,
    read <DataID::IsWetted, int,       at<MapID::EdgesSWE_CellsAll, 0>>,
    read <DataID::IsWetted, int,       at<MapID::EdgesSWE_CellsAll, 1>>,
    read <DataID::HydState, double[3], at<MapID::EdgesSWE_CellsAll, 0>>,
    read <DataID::HydState, double[3], at<MapID::EdgesSWE_CellsAll, 1>>,
    read <DataID::BottomEl, double,    at<MapID::EdgesSWE_CellsAll, 0>>,
    read <DataID::BottomEl, double,    at<MapID::EdgesSWE_CellsAll, 1>>,
    write<DataID::FluxesHy, double[5], at<MapID::EdgesSWE_EdgesAll, 0>>> {};

struct LocalBedSlope : Loop<15, KernelID::LocalBedSlope, SetID::CellsAll, any,
    parameters,
    read <DataID::HydState, double[3]>,
    read <DataID::BottomEl, double>,
    read <DataID::BedGrdnt, double[2]>,
    write<DataID::ThetaCrt, double>> {};

struct MorBedloadTransport : Loop<14, KernelID::MorBedloadTransport, SetID::CellsAll, any,
    parameters,
    given  <int>,                       // friction flag
    read   <DataID::HydState, double[3]>,
    read   <DataID::BottomEl, double>,
    read_if<Flag::friction,
            DataID::ChezyCoe, double>,
    read   <DataID::MSedSize, double>,
    read   <DataID::ThetaCrt, double>,
    read   <DataID::BedGrdnt, double[2]>,
    read   <DataID::FlowCurv, double>,
    write  <DataID::BedTrCap, double[2]>,
    write  <DataID::BedTrDer, double[2]>> {};

struct MorInternalFluxes : Loop<16, KernelID::MorInternalFluxes, SetID::EdgesEXN, any,
    parameters,
    read <DataID::NormVect, double[2], at<MapID::EdgesEXN_EdgesAll, 0>>,
    read <DataID::IsWetted, int,       at<MapID::EdgesEXN_CellsAll, 0>>,
    read <DataID::IsWetted, int,       at<MapID::EdgesEXN_CellsAll, 1>>,
    read <DataID::HydState, double[3], at<MapID::EdgesEXN_CellsAll, 0>>,
    read <DataID::HydState, double[3], at<MapID::EdgesEXN_CellsAll, 1>>,
    read <DataID::BottomEl, double,    at<MapID::EdgesEXN_CellsAll, 0>>,
    read <DataID::BottomEl, double,    at<MapID::EdgesEXN_CellsAll, 1>>,
    read <DataID::BedTrCap, double[2], at<MapID::EdgesEXN_CellsAll, 0>>,
    read <DataID::BedTrCap, double[2], at<MapID::EdgesEXN_CellsAll, 1>>,
    read <DataID::BedTrDer, double[2], at<MapID::EdgesEXN_CellsAll, 0>>,
    read <DataID::BedTrDer, double[2], at<MapID::EdgesEXN_CellsAll, 1>>,
    write<DataID::FluxesMo, double,    at<MapID::EdgesEXN_EdgesAll, 0>>> {};

struct MorFixBedCorrection : Loop<20, KernelID::MorFixBedCorrection, SetID::CellsFix, ascending,
    parameters, diagnostics,
    read_if<Flag::debug,
            SetID::CellsAll,           int,    at<MapID::CellsFix_CellsAll, 0>>,
    given  <double>,                    // time step
    read   <DataID::CellsAll_GeomArea, double, at<MapID::CellsFix_CellsAll, 0>>,
    read   <DataID::BottomEl,          double, at<MapID::CellsFix_CellsAll, 0>>,
    read   <DataID::FixBedEl,          double>,
    read   <DataID::CellsAll_EdgeSign, int[3], at<MapID::CellsFix_CellsAll, 0>>,
    read   <DataID::GeomLeng,          double, all<MapID::CellsFix_EdgesAll, 3>>,
    write  <DataID::NewBedEl,          double>,
    change <DataID::FluxesMo,          double, all<MapID::CellsFix_EdgesAll, 3>>> {};

struct MorFixBedCorrectionMax : Loop<21, KernelID::MorFixBedCorrectionMax, SetID::CellsFix, any,
    read   <DataID::FixBedEl, double>,
    read   <DataID::NewBedEl, double>,
    highest<double>> {};                   // deviation

struct Update : Loop<19, KernelID::Update, SetID::CellsAll, ascending,
    parameters, diagnostics,
    read_if<Flag::debug,
            SetID::CellsAll,           int>,
    given  <double>,                    // time step
    given  <int>,                       // morphology flag
    read   <DataID::CellsAll_GeomArea, double>,
    read   <DataID::GeomLeng,          double,    all<MapID::CellsAll_EdgesAll, 3>>,
    read   <DataID::FluxesHy,          double[5], all<MapID::CellsAll_EdgesAll, 3>>,
    read_if<Flag::morphology,
            DataID::FluxesMo,          double,    all<MapID::CellsAll_EdgesAll, 3>>,
    read   <DataID::CellsAll_EdgeSign, int[3]>,
    change <DataID::HydState,          double[3]>,
    change <DataID::BottomEl,          double>,
    write  <DataID::IsWetted,          int>,
    lowest <int>> {};                      // check flag

struct HydFriction : Loop<23, KernelID::HydFriction, SetID::CellsAll, any,
    parameters,
    given <double>,                     // time step
    read  <DataID::BottomEl, double>,
    read  <DataID::Friction, double>,
    write <DataID::ChezyCoe, double>,
    change<DataID::HydState, double[3]>> {};

struct HydFlood : Loop<25, KernelID::HydFlood, SetID::CellsAll, any,
    given <double>,                     // current time
    read  <DataID::HydState, double[3]>,
    read  <DataID::BottomEl, double>,
    read  <DataID::IsWetted, int>,
    change<DataID::FloodVar, double[4]>> {};

struct HydSource : Loop<24, KernelID::HydSource, SetID::ClHydSrc, ascending,
    parameters, diagnostics,
    given <double>,                     // time step
    read  <DataID::CellData_NumValue, double[2], at<MapID::ClHydSrc_CellData, 0>>,
    read  <DataID::ClHydSrc_SinkType, int>,
    read  <DataID::BottomEl,          double,    at<MapID::ClHydSrc_CellsAll, 0>>,
    change<DataID::HydState,          double[3], at<MapID::ClHydSrc_CellsAll, 0>>,
    write <DataID::IsWetted,          int,       at<MapID::ClHydSrc_CellsAll, 0>>,
    lowest<int>> {};                       // check flag

struct MorSource : Loop<22, KernelID::MorSource, SetID::ClMorSrc, ascending,
    diagnostics,
    given <double>,                     // time step
    read  <DataID::CellData_NumValue, double[2], at<MapID::ClMorSrc_CellData, 0>>,
    read  <DataID::ClMorSrc_SinkType, int>,
    change<DataID::BottomEl,          double,    at<MapID::ClMorSrc_CellsAll, 0>>,
    read  <DataID::FixBedEl,          double,    at<MapID::ClMorSrc_CellsFix, 0>>,
    change<DataID::HydState,          double[3], at<MapID::ClMorSrc_CellsAll, 0>>,
    lowest<int>> {};                       // check flag
// clang-format on

}  // namespace loops
