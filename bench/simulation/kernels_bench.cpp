#include <benchmark/benchmark.h>

#include <array>
#include <cstdint>
#include <map>
#include <string>
#include <type_traits>

#include "bench/benchmarks.h"
#include "bench/simulation/KernelMesh.h"
#include "bench/simulation/LoopCall.h"
#include "bench/simulation/synthetic_data.h"
#include "op/core/op_rt_support.h"
#include "simulation/loops/all_loops.h"

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

/// Bytes that the runtime books for one call, by its own estimate.
template <class L>
double transferOf(op_set set, const LoopCall<L>& call) {
  op_timing_realloc(L::slot);
  OP_kernels[L::slot].transfer = 0.0F;
  call.run(set);
  return static_cast<double>(OP_kernels[L::slot].transfer);
}

template <class L>
void timeLoop(benchmark::State& state, const LoopSetting& setting) {
  setParameters();
  KernelMesh& mesh = meshOf(state.range(0));
  const op_set set = mesh.set(L::set);
  const LoopCall<L> call(mesh, setting);
  const double bytes = transferOf<L>(set, call);
  for (auto _ : state) call.run(set);

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
void add(const LoopSetting& setting, const std::string& variant = "") {
  const std::string name = loops::FrameOf<L>::name + variant;
  auto* const registered = benchmark::RegisterBenchmark(
      name.c_str(), [setting](benchmark::State& state) { timeLoop<L>(state, setting); });
  registered->Unit(benchmark::kMicrosecond)->ArgName("cells");
  for (const auto& size : meshSizes()) {
    registered->Arg(size.first);
    if (isRecordSet(L::set)) break;
  }
}

/// Whether a loop looks a series up: it is asked within the series then.
constexpr bool looksUpSeries(SetID set) {
  return set == SetID::EdInterp || set == SetID::ClInterp;
}

}  // namespace

void registerKernels() {
  loops::forEach([]<class L>() {
    if constexpr (std::is_same_v<L, loops::Update>) {
      add<L>({.morphology = false});
      add<L>({}, "/morphology");
    } else if constexpr (looksUpSeries(L::set)) {
      add<L>({.given = SERIES_TIME});
    } else {
      add<L>({});
    }
  });
}

}  // namespace bench
