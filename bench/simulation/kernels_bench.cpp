#include <benchmark/benchmark.h>

#include <array>
#include <cstdint>
#include <map>
#include <string>

#include "bench/benchmarks.h"
#include "bench/simulation/KernelMesh.h"
#include "bench/simulation/LoopCall.h"
#include "bench/simulation/syntheticData.h"
#include "op/op_rt_support.h"
#include "simulation/Loops_op.h"

namespace bench {

namespace {

using model::SetID;

/// Rectangles along and across, by the number of cells.
const std::map<std::int64_t, std::array<int, 2>>& meshSizes() {
  static const std::map<std::int64_t, std::array<int, 2>> sizes = {
      {10'000, {100, 50}}, {100'000, {250, 200}}, {1'000'000, {1000, 500}}};
  return sizes;
}

/// Made once; the runtime refers to it until its end.
KernelMesh& meshOf(std::int64_t cells) {
  static std::map<std::int64_t, KernelMesh> meshes;
  return meshes.try_emplace(cells, meshSizes().at(cells)).first->second;
}

template <class L>
using Frame = void (*)(const char*, op_set, typename L::Arguments);

/// Bytes that the runtime books for one call, by its own estimate.
template <class L>
double transferOf(Frame<L> frame, op_set set, const LoopCall<L>& call) {
  op_timing_realloc(L::slot);
  OP_kernels[L::slot].transfer = 0.0F;
  frame(L::name(), set, call.arguments());
  return static_cast<double>(OP_kernels[L::slot].transfer);
}

template <class L>
void timeLoop(benchmark::State& state, Frame<L> frame, const LoopSetting& setting) {
  setParameters();
  KernelMesh& mesh = meshOf(state.range(0));
  const op_set set = mesh.set(L::set);
  const LoopCall<L> call(mesh, setting);
  const double bytes = transferOf<L>(frame, set, call);
  for (auto _ : state) frame(L::name(), set, call.arguments());

  const auto calls = static_cast<std::int64_t>(state.iterations());
  state.SetItemsProcessed(calls * set->size);
  state.SetBytesProcessed(static_cast<std::int64_t>(bytes * static_cast<double>(calls)));
  state.counters["elements"] = set->size;
}

/// Whether a set has the same size in all meshes.
constexpr bool isRecordSet(SetID id) {
  using enum SetID;
  return id == NodeStrg || id == EdInterp || id == ClInterp || id == EdModDat || id == ClModDat;
}

/// @param variant behind the loop's name, for a loop that is timed in more than one setting
template <class L>
void add(Frame<L> frame, const LoopSetting& setting = {}, const std::string& variant = "") {
  const std::string name = L::name() + variant;
  auto* const registered = benchmark::RegisterBenchmark(
      name.c_str(),
      [frame, setting](benchmark::State& state) { timeLoop<L>(state, frame, setting); });
  registered->Unit(benchmark::kMicrosecond)->ArgName("cells");
  for (const auto& size : meshSizes()) {
    registered->Arg(size.first);
    if (isRecordSet(L::set)) break;
  }
}

}  // namespace

void registerKernels() {
  const LoopSetting inSeries{.given = SERIES_TIME};
  // clang-format off
  add<loops::InitCellHydFeatures>   (op_par_loop_kernel_HYDRAULICS_InitializeCellFeatures);
  add<loops::InitCellMorFeatures>   (op_par_loop_kernel_MORPHOLOGY_InitializeCellFeatures);
  add<loops::InitFrictionFeatures>  (op_par_loop_kernel_HYDRAULICS_InitializeFriction);
  add<loops::TimeStepCalculation>   (op_par_loop_kernel_HYDRAULICS_TimeStep);
  add<loops::NodeStringStateCalc>   (op_par_loop_kernel_TOPOLOGY_NodeStringStates);
  add<loops::EdgeDataInterpolation> (op_par_loop_kernel_DATA_EdgeInterpolation, inSeries);
  add<loops::CellDataInterpolation> (op_par_loop_kernel_DATA_CellInterpolation, inSeries);
  add<loops::EdgeDataModification>  (op_par_loop_kernel_DATA_EdgeModification);
  add<loops::CellDataModification>  (op_par_loop_kernel_DATA_CellModification);
  add<loops::CalCCurvature>         (op_par_loop_kernel_HYDRAULICS_CalcCurvature);
  add<loops::CalcBedGradient>       (op_par_loop_kernel_MORPHOLOGY_CalcBedGradient);
  add<loops::HydBoundaryFluxes>     (op_par_loop_kernel_HYDRAULICS_Boundary);
  add<loops::MorBoundaryFluxes>     (op_par_loop_kernel_MORPHOLOGY_Boundary);
  add<loops::HydWallBFluxes>        (op_par_loop_kernel_HYDRAULICS_WallFluxes);
  add<loops::MorWallBFluxes>        (op_par_loop_kernel_MORPHOLOGY_WallFluxes);
  add<loops::HydInternalFluxes>     (op_par_loop_kernel_HYDRAULICS_InternalFluxes);
  add<loops::LocalBedSlope>         (op_par_loop_kernel_MORPHOLOGY_LocalBedSlope);
  add<loops::MorBedloadTransport>   (op_par_loop_kernel_MORPHOLOGY_CalcBedloadTransport);
  add<loops::MorInternalFluxes>     (op_par_loop_kernel_MORPHOLOGY_InternalFluxes);
  add<loops::MorFixBedCorrection>   (op_par_loop_kernel_MORPHOLOGY_FixedBedCorrection);
  add<loops::MorFixBedCorrectionMax>(op_par_loop_kernel_MORPHOLOGY_FixedBedCorrectionFindMax);
  add<loops::Update>                (op_par_loop_kernel_GLOBAL_Update, {.morphology = false});
  add<loops::Update>                (op_par_loop_kernel_GLOBAL_Update, {}, "/morphology");
  add<loops::HydFriction>           (op_par_loop_kernel_HYDRAULICS_Friction);
  add<loops::HydFlood>              (op_par_loop_kernel_HYDRAULICS_FloodTracking);
  add<loops::HydSource>             (op_par_loop_kernel_HYDRAULICS_Source);
  add<loops::MorSource>             (op_par_loop_kernel_MORPHOLOGY_Source);
  // clang-format on
}

}  // namespace bench
