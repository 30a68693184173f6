#include <benchmark/benchmark.h>

#include <array>
#include <cstdint>
#include <exception>
#include <map>

#include "bench/benchmarks.h"
#include "bench/simulation/DamBreak.h"

namespace bench {

namespace {

/// Rectangles along and across, by the number of cells.
const std::map<std::int64_t, std::array<int, 2>>& sizes() {
  static const std::map<std::int64_t, std::array<int, 2>> table = {
      {2'000, {50, 20}}, {20'000, {200, 50}}, {200'000, {500, 200}}};
  return table;
}

/// Simulated time times cells [s]: smaller basins run longer, so that all do about the same work.
constexpr double CELL_SECONDS = 2e6;

// The time is that of the run's own clock: the time loop, without start and without the setup.
void damBreak(benchmark::State& state) {
  const auto cells = static_cast<double>(state.range(0));
  try {
    const DamBreak basin(sizes().at(state.range(0)), CELL_SECONDS / cells);
    double updates = 0.0;
    DamBreakFigures last;
    for (auto _ : state) {
      last = basin.run();
      state.SetIterationTime(last.loopSeconds);
      updates += cells * last.steps;
    }
    using benchmark::Counter;
    state.counters["cell_updates"] = Counter(updates, Counter::kIsRate);
    state.counters["steps"] = last.steps;
    state.counters["peak_bytes_per_cell"] = static_cast<double>(last.peakBytes) / cells;
    state.counters["runtime_bytes_per_cell"] = static_cast<double>(last.runtimeBytes) / cells;
  } catch (const std::exception& fault) {
    state.SkipWithError(fault.what());
  }
}

}  // namespace

void registerDamBreaks() {
  auto* const registered = benchmark::RegisterBenchmark("dam_break", damBreak);
  registered->ArgName("cells")->UseManualTime()->Iterations(1)->Unit(benchmark::kSecond);
  for (const auto& size : sizes()) registered->Arg(size.first);
}

}  // namespace bench
