// The journal of one change of a file: what the change overwrites, written beside the file before
// the file itself is touched. A change that was cut short is completed from it.
//
//   const Journal change{pages, end};
//   { const Descriptor written = change.write(journalOf("a.h5")); change.apply(file); }
//   ::unlink(...)
//
// On disk: a header, for each page its place, length and the hash of what it held before, followed
// by its new bytes; at the end a hash over all. A journal without the right hash is incomplete: the
// process ended before it touched the file. All numbers are in the order of bytes of the machine.
#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "h5/journal/Descriptor.h"

namespace h5 {

/// Changes are kept by pages, which start at multiples of this [bytes]. The operating system copies
/// no less at once: a process that is killed leaves a page as it was or as it was to be.
constexpr std::size_t PAGE_SIZE = 4096;

/// Hash of bytes; `seed` continues an earlier one.
std::uint64_t hash(const char* bytes, std::size_t count, std::uint64_t seed = 0);

struct Page {
  std::vector<char> bytes;   ///< what it is to hold; fewer than PAGE_SIZE at the end of a file
  std::uint64_t before = 0;  ///< hash of what the file held when the change began
};

/// By their place in the file [bytes].
using Pages = std::map<std::uint64_t, Page>;

/// "x_results.h5.rheomark-journal" for "x_results.h5", the name of the file itself and not of a
/// link.
std::string journalOf(const std::string& file);

/// Opens a journal once no other process is at work with it. It may be another file of this name.
/// @return nothing if there is none
/// @throws Refused if it is locked for long, or is no file to be read
std::optional<Descriptor> openUnused(const std::string& journal);

/// Tells that another file has the name of a journal.
[[noreturn]] void refuseOther(const std::string& journal);

/// @throws Refused if beside the file lies a journal of release 3.0.1, "x_results.h5.journal": it
///   may be that the file is not whole without it.
void refuseEarlierJournal(const std::string& file);

struct Journal {
  Pages pages;
  std::uint64_t end = 0;  ///< size of the file after the change [bytes]

  /// The size of a journal that holds so many bytes that stand together [bytes].
  static std::uint64_t sizeFor(std::uint64_t bytes);

  /// Whether a file is a journal, be it incomplete, and may be removed.
  static bool isOne(const Descriptor& source);

  /// Reads a whole journal; nothing if it is incomplete or none at all.
  static std::optional<Journal> read(const Descriptor& source);

  /// Writes a new journal. Other processes wait for the lock that the result holds.
  /// @throws std::system_error, as on a full disk; no journal is left then. Refused if another file
  ///   has its name.
  Descriptor write(const std::string& name) const;

  /// Whether each page of the file holds what it held before the change or what it is to hold.
  bool belongsTo(const Descriptor& file) const;

  /// Makes the change. It can be made again after it was cut short.
  void apply(const Descriptor& file) const;
};

}  // namespace h5
