// Lets one process at a time write to a file. Those who only read do not feel it.
//
//   const WriterLock lock(file);      // refused if another process writes
//
// The operating system ends the lock with the process, however that ends.
#pragma once

#include <memory>

#include "h5/journal/Descriptor.h"

namespace h5 {

/// Parts of one process that write to the same file share the lock; the last one ends it. Where the
/// file system has no locks, a note on standard error tells so.
class WriterLock {
 public:
  /// @throws Refused if another process writes to the file.
  explicit WriterLock(const Descriptor& file);

 private:
  std::shared_ptr<const Descriptor> held;
};

}  // namespace h5
