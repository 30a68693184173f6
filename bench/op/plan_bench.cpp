#include <benchmark/benchmark.h>

#include <array>
#include <cstdint>
#include <map>
#include <string>
#include <utility>

#include "bench/benchmarks.h"
#include "bench/simulation/KernelMesh.h"
#include "op/core/op_seq.h"
#include "op/plan/op_plan.h"

namespace bench {

namespace {

using model::MapID;
using model::SetID;

/// Rectangles along and across, by the number of edges in powers of ten.
const std::map<std::int64_t, std::array<int, 2>>& meshSizes() {
  static const std::map<std::int64_t, std::array<int, 2>> sizes = {{100'000, {250, 133}},
                                                                   {1'000'000, {666, 500}}};
  return sizes;
}

/// Made once; the runtime refers to it until its end.
KernelMesh& meshOf(std::int64_t edges) {
  static std::map<std::int64_t, KernelMesh> meshes;
  return meshes.try_emplace(edges, meshSizes().at(edges)).first->second;
}

/// A loop over all edges that adds to the state of the two cells beside each and reads another
/// datum of theirs.
void buildPlan(benchmark::State& state, int staging) {
  KernelMesh& mesh = meshOf(state.range(0));
  const op_set edges = mesh.set(SetID::EdgesAll);
  const op_map map = mesh.map(MapID::EdgesAll_CellsAll);
  const op_dat sums = op_decl_dat_temp_char(map->to, 3, "double", 8, "plan sums");
  const op_dat bed = op_decl_dat_temp_char(map->to, 1, "double", 8, "plan bed");
  std::array<op_arg, 4> args{
      op_arg_dat(sums, 0, map, 3, "double", OP_INC), op_arg_dat(sums, 1, map, 3, "double", OP_INC),
      op_arg_dat(bed, 0, map, 1, "double", OP_READ), op_arg_dat(bed, 1, map, 1, "double", OP_READ)};
  std::array<int, 4> inds{0, 0, 1, 1};
  for (auto _ : state) {
    const op_plan* plan =
        op_plan_get_stage("plan", edges, 0, 4, args.data(), 2, inds.data(), staging);
    state.PauseTiming();
    state.counters["blocks"] = plan->nblocks;
    state.counters["colours"] = plan->ncolors;
    op_rt_exit();
    state.ResumeTiming();
  }
  state.SetItemsProcessed(static_cast<std::int64_t>(state.iterations()) * edges->size);
  state.counters["elements"] = edges->size;
  op_free_dat_temp_char(bed);
  op_free_dat_temp_char(sums);
}

}  // namespace

void registerPlans() {
  const std::array<std::pair<int, const char*>, 3> stagings{
      {{OP_STAGED, "staged"}, {OP_STAGED_BY_COLOUR, "by_colour"}, {OP_ONE_BLOCK, "one_block"}}};
  for (const auto& [staging, name] : stagings) {
    auto* const registered = benchmark::RegisterBenchmark(
        (std::string("op_plan/") + name).c_str(),
        [staging = staging](benchmark::State& state) { buildPlan(state, staging); });
    registered->Unit(benchmark::kMillisecond)->ArgName("edges");
    for (const auto& size : meshSizes()) registered->Arg(size.first);
  }
}

}  // namespace bench
