// A file whose changes come as a whole: after a commit it holds all of them, and however the
// process ends it holds what it held after the last commit.
//
//   JournaledFile file("x_results.h5", O_RDWR);
//   file.write(0, bytes, count);        // kept in memory where committed bytes stand
//   file.commit();                      // now in the file
//
// Bytes behind the committed end go to the file at once, as nothing committed refers to them: the
// large part of a new record is written once. What overwrites committed bytes waits in memory, page
// by page, and goes through a journal. A new file takes the place of an earlier one with its first
// commit.
//
// Writes never fail: the HDF5 library drops values that it has kept back where one does, goes on
// without them, and falls over the rest when the process ends. The commit tells of the failure.
//
// One process at a time opens a file for writing. With RHEOMARK_SYNC=1 in the environment each
// commit waits until the disk has taken it: what is told above then holds for a loss of power, too.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <system_error>
#include <utility>
#include <vector>

#include "h5/journal/Descriptor.h"
#include "h5/journal/Journal.h"
#include "h5/journal/WriterLock.h"

namespace h5 {

/// All failures are std::system_error, or Refused where the user has to do something first. After
/// one of a write or a commit no commit succeeds any more: the file keeps what it held after the
/// last one.
class JournaledFile {
 public:
  /// Completes the change of a process that was ended within its commit. A file that cannot be
  /// written is left alone: it reads as if the change was complete.
  /// @param flags of open(2)
  /// @throws Refused if another process writes to the file that is to be written, or is at work
  ///   with the journal for long; if a file that is no journal has its name; if what is named is no
  ///   file on a disk
  JournaledFile(const std::string& name, int flags);

  const Descriptor& descriptor() const noexcept { return file; }
  /// Device and inode of what has the name now.
  std::pair<std::uint64_t, std::uint64_t> identity() const noexcept {
    return earlier ? earlier->identity() : file.identity();
  }
  bool isWritable() const noexcept { return writable; }
  std::uint64_t end() const noexcept { return change.end; }

  /// What lies behind the end reads as zeros.
  void read(std::uint64_t offset, char* bytes, std::size_t count) const;
  void write(std::uint64_t offset, const char* bytes, std::size_t count);
  void setEnd(std::uint64_t size) { change.end = size; }

  /// Makes sure that there is room for so many bytes behind the end, and in the journal for those
  /// that are overwritten.
  bool reserve(std::uint64_t appended, std::uint64_t overwritten) const;

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
  Descriptor openData(const std::string& name, int flags);
  void recover();
  Page& changedPage(std::uint64_t offset);
  void dropUnchangedPages();
  std::optional<Descriptor> writeJournal() const;
  void commitNewFile();
  void commitChange();
  void bringIntoFile();
  template <class Work>
  void keepFailure(Work work);

  bool writable;
  std::string realName;  ///< of the file itself, where a link was named
  std::string journal;
  std::vector<WriterLock> locks;
  std::optional<Descriptor> earlier;  ///< what a new file replaces with its first commit
  Descriptor file;
  Journal change;                  ///< since the last commit, as far as it waits in memory
  std::uint64_t committedEnd = 0;  ///< size of the file after the last commit
  int holders = 0;
  std::optional<std::system_error> failed;
};

}  // namespace h5
