// Runs another executable and tells what it wrote and how much memory it took.
#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <vector>

namespace bench {

struct ChildReport {
  std::string output;         ///< standard output and standard error
  std::size_t peakBytes = 0;  ///< peak resident memory
};

/// Waits for the end of the process. The peak is asked for every few milliseconds while it runs, as
/// the figure that the system hands out afterwards includes the memory of this process.
/// @param folder that the process works in
/// @param command the executable and its arguments
/// @throws std::runtime_error with the output if the process fails
ChildReport runChild(const std::filesystem::path& folder, std::vector<std::string> command);

}  // namespace bench
