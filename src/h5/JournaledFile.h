// A file whose changes come as a whole: after a commit it holds all of them, and however the
// process ends it holds what it held after the last commit.
//
//   JournaledFile file("x_results.h5", O_RDWR);
//   file.write(0, bytes, count);        // kept in memory where committed bytes stand
//   file.commit();                      // now in the file
//
// Bytes behind the committed end go to the file at once, as nothing committed refers to them: the
// large part of a new record is written once. What overwrites committed bytes waits in memory, page
// by page, and goes through a journal.
//
// Writes never fail: the HDF5 library drops values that it has kept back where one does, goes on
// without them, and falls over the rest when the process ends. The commit tells of the failure.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <system_error>

#include "h5/Descriptor.h"
#include "h5/Journal.h"

namespace h5 {

/// All failures are std::system_error. After one of a write or a commit no commit succeeds any
/// more: the file keeps what it held after the last one.
class JournaledFile {
 public:
  /// Completes the change of a process that was ended within its commit. A file that cannot be
  /// written is left alone: it reads as if the change was complete.
  /// @param flags of open(2)
  JournaledFile(const std::string& name, int flags);

  const Descriptor& descriptor() const noexcept { return file; }
  bool isWritable() const noexcept { return writable; }
  std::uint64_t end() const noexcept { return change.end; }

  /// What lies behind the end reads as zeros.
  void read(std::uint64_t offset, char* bytes, std::size_t count) const;
  void write(std::uint64_t offset, const char* bytes, std::size_t count);
  void setEnd(std::uint64_t size) { change.end = size; }

  /// Makes all changes since the last commit at once. If one of them or the journal could not be
  /// written, as on a full disk, the file stays as it was. A folder that takes no new files gets no
  /// journal.
  void commit();
  /// Why a commit has failed or will fail.
  const std::optional<std::system_error>& failure() const noexcept { return failed; }

  /// Between the two, changes belong together: whoever asks for a commit leaves it to the holder.
  void hold() noexcept { ++holders; }
  void release() noexcept { --holders; }
  bool isHeld() const noexcept { return holders > 0; }

 private:
  void recover();
  Page& changedPage(std::uint64_t offset);
  void dropUnchangedPages();
  std::optional<Descriptor> writeJournal() const;
  void bringIntoFile();
  template <class Work>
  void keepFailure(Work work);

  Descriptor file;
  bool writable;
  std::string journal;
  Journal change;                  ///< since the last commit, as far as it waits in memory
  std::uint64_t committedEnd = 0;  ///< size of the file after the last commit
  int holders = 0;
  std::optional<std::system_error> failed;
};

}  // namespace h5
