// Makes the changes of an HDF5 file come as a whole, from one commit to the next.
//
//   const h5::Hold together(file);
//   ...                              // any number of changes, by whoever opens the file
//   together.commit();               // now they are in the file
#pragma once

#include <hdf5.h>

#include <cstdint>
#include <string>

namespace h5 {

class JournaledFile;

/// As long as one exists, flushes of others leave the changes of the file in memory; what is not
/// committed when the process ends is dropped.
class Hold {
 public:
  /// @param file an open file whose access list is that of driver.h; it stays open longer than this
  explicit Hold(hid_t file);
  ~Hold();
  Hold(const Hold&) = delete;
  Hold& operator=(const Hold&) = delete;
  Hold(Hold&&) = delete;
  Hold& operator=(Hold&&) = delete;

  /// Brings all changes into the file, unless another one holds it too.
  /// @return negative on failure, as on a full disk; the file is then as after the last commit
  herr_t commit() const;
  /// Why a commit has failed.
  std::string failure() const;

  /// Asks for room for changes to come; see File.
  bool reserve(std::uint64_t appended, std::uint64_t overwritten) const;

 private:
  hid_t id;
  JournaledFile* journaled = nullptr;
};

}  // namespace h5
