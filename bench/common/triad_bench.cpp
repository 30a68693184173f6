#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstddef>
#include <vector>

#include "bench/benchmarks.h"

namespace bench {

namespace {

constexpr std::size_t MIB = std::size_t{1024} * 1024;

/// Bytes of one array: four times the largest cache, within what a small machine can hold.
std::size_t arrayBytes() {
  std::size_t cache = 0;
  for (const auto& level : benchmark::CPUInfo::Get().caches) {
    cache = std::max(cache, static_cast<std::size_t>(level.size));
  }
  return std::clamp(4 * cache, 128 * MIB, 512 * MIB);
}

/// a = b + s c over whole arrays. Counted are the three arrays that the source names; a machine
/// that reads a line before it writes to it moves a third more.
void triad(benchmark::State& state) {
  const std::size_t size = arrayBytes() / sizeof(double);
  std::vector<double> a(size, 0.0);
  std::vector<double> b(size, 1.0);
  std::vector<double> c(size, 2.0);
  double scale = 3.0;
  benchmark::DoNotOptimize(scale);
  for (auto _ : state) {
    for (std::size_t i = 0; i < size; ++i) a[i] = b[i] + scale * c[i];
    benchmark::DoNotOptimize(a.data());
    benchmark::ClobberMemory();
  }
  const auto passes = static_cast<std::size_t>(state.iterations());
  state.SetItemsProcessed(static_cast<std::int64_t>(passes * size));
  state.SetBytesProcessed(static_cast<std::int64_t>(passes * size * 3 * sizeof(double)));
  state.counters["array_MiB"] = static_cast<double>(size * sizeof(double) / MIB);
}

}  // namespace

void registerTriad() {
  benchmark::RegisterBenchmark("triad", triad)->Unit(benchmark::kMillisecond);
}

}  // namespace bench
