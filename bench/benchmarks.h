// The benchmarks, in the order in which they run. Each call registers a family of them.
#pragma once

namespace bench {

/// The memory bandwidth of one core: the ceiling for all loops that do little with much data.
void registerTriad();

/// Building an execution plan for a loop over edges, on meshes of 10^5 and 10^6 edges.
void registerPlans();

/// Each loop of the numerics by itself, over meshes of 10^4, 10^5 and 10^6 cells.
void registerKernels();

/// Whole runs of the executables.
void registerDamBreaks();

}  // namespace bench
