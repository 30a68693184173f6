// What a run of the solver tells on its console, as numbers.
#pragma once

#include <cstddef>
#include <string>

namespace bench {

/// Wall time of the time loop [s]. All functions here throw std::runtime_error if the console text
/// does not hold what they look for.
double loopSeconds(const std::string& console);

/// How often a kernel has run, by the timing table.
int callsOf(const std::string& console, const std::string& kernel);

/// Bytes of all maps and dats of the runtime, by the lists that stand at the start of a run of log
/// level 2.
std::size_t runtimeBytes(const std::string& console);

}  // namespace bench
