// An open HDF5 file. What is written to it, by whatever part of the program, comes into the file as
// a whole, at each flush and when it is closed: a process that is killed leaves what was flushed.
//
//   const h5::File file("run.h5", h5::File::READ_ONLY);
//   const bool hasCells = file.exist("CellsAll");
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "h5/Handle.h"
#include "h5/journal/Hold.h"

namespace h5 {

/// Open from construction to destruction.
class File {
 public:
  static constexpr unsigned READ_ONLY = 0;
  static constexpr unsigned READ_WRITE = 1;
  static constexpr unsigned TRUNCATE = 2;
  static constexpr unsigned CREATE = 16;

  /// @param access flags of the above; TRUNCATE or CREATE makes a new, empty file
  /// @throws Error if the file cannot be opened or created; Refused if another process writes to
  /// it,
  ///   or something else is in the way that the user has to know of.
  File(const std::string& name, unsigned access);

  const std::string& name() const noexcept { return filename; }
  const Handle& handle() const noexcept { return file; }

  /// Whether there is a link at `path`.
  /// @throws Error if what stands before the last element does not exist.
  bool exist(const std::string& path) const;

  /// Hands everything written so far to the operating system, unless the file is open for writing
  /// elsewhere in the program: what is written there goes with it.
  /// @throws Error if that or an earlier write has failed, as on a full disk; the file is as it was
  ///         after the last flush, and so are all later flushes.
  void flush() const;

  /// Makes sure, before anything is written, that there is room for it.
  /// @param appended,overwritten bytes of datasets that are new, and of those that exist, with all
  ///   that describes them
  /// @return false if there is not, as on a full disk
  bool reserve(std::uint64_t appended, std::uint64_t overwritten) const;

 private:
  std::string filename;
  Handle file;
  std::optional<h5::Hold> together;  ///< only if open for writing
};

}  // namespace h5
