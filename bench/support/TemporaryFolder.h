// A folder of its own for files that are needed for a while.
#pragma once

#include <filesystem>

namespace bench {

class TemporaryFolder {
 public:
  /// @throws std::system_error if there cannot be one
  TemporaryFolder();
  /// Removes the folder with all that it holds.
  ~TemporaryFolder();
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;
  TemporaryFolder(TemporaryFolder&&) = delete;
  TemporaryFolder& operator=(TemporaryFolder&&) = delete;

  const std::filesystem::path& path() const { return folder; }

 private:
  std::filesystem::path folder;
};

}  // namespace bench
