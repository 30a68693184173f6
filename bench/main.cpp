// The executable of all benchmarks. Options are those of Google Benchmark, see --help.

#include <benchmark/benchmark.h>

#include "bench/benchmarks.h"
#include "op/core/op_seq.h"

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
  bench::registerTriad();
  bench::registerPlans();
  bench::registerKernels();
  bench::registerDamBreaks();

  op_init(0, nullptr, 0);
  benchmark::RunSpecifiedBenchmarks();
  op_exit();
  benchmark::Shutdown();
  return 0;
}
