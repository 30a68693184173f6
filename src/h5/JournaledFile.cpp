#include "h5/JournaledFile.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <new>
#include <optional>
#include <system_error>
#include <utility>

namespace h5 {

namespace {

std::uint64_t pageOf(std::uint64_t offset) {
  return offset - offset % PAGE_SIZE;
}

// A name that is too long was never given to a journal.
bool isMissing(const std::system_error& error) {
  const int reason = error.code().value();
  return reason == ENOENT || reason == ENAMETOOLONG;
}

// Whether the reason is the folder or the name, not a lack of room.
bool refusesNewFiles(const std::system_error& error) {
  const int reason = error.code().value();
  return reason == EACCES || reason == EPERM || reason == EROFS || reason == ENAMETOOLONG;
}

// The journal, once no process is at work with it; nothing if there is none any more.
std::optional<Descriptor> openUnused(const std::string& name) {
  try {
    std::optional<Descriptor> source(std::in_place, name, O_RDONLY);
    source->lockForOne();
    if (source->hasName()) return source;
  } catch (const std::system_error& error) {
    if (!isMissing(error)) throw;
  }
  return std::nullopt;
}

}  // namespace

JournaledFile::JournaledFile(const std::string& name, int flags)
    : file(name, flags), writable((flags & O_RDWR) != 0), journal(journalOf(name)) {
  if ((flags & O_TRUNC) != 0) {
    ::unlink(journal.c_str());
  } else {
    recover();
  }
  if (change.pages.empty()) change.end = file.size();
  committedEnd = change.end;
}

void JournaledFile::recover() {
  const std::optional<Descriptor> source = openUnused(journal);
  if (!source) return;
  std::optional<Journal> left = Journal::read(*source);
  if (!left || !left->belongsTo(file)) {
    if (writable) ::unlink(journal.c_str());
    return;
  }
  try {
    left->apply(Descriptor(file.name(), O_RDWR));
    ::unlink(journal.c_str());
  } catch (const std::system_error&) {
    if (writable) throw;
    change = std::move(*left);
  }
}

void JournaledFile::read(std::uint64_t offset, char* bytes, std::size_t count) const {
  file.readAt(offset, bytes, count);
  const std::uint64_t stop = offset + count;
  const Pages& pages = change.pages;
  for (auto it = pages.lower_bound(pageOf(offset)); it != pages.end() && it->first < stop; ++it) {
    const auto& [place, page] = *it;
    const std::uint64_t from = std::max(offset, place);
    const std::uint64_t to = std::min(stop, place + page.bytes.size());
    if (from >= to) continue;
    std::copy_n(page.bytes.data() + (from - place), to - from, bytes + (from - offset));
  }
}

Page& JournaledFile::changedPage(std::uint64_t offset) {
  const auto known = change.pages.find(offset);
  if (known != change.pages.end()) return known->second;
  Page page;
  page.bytes.resize(std::min<std::uint64_t>(PAGE_SIZE, committedEnd - offset));
  file.readAt(offset, page.bytes.data(), page.bytes.size());
  page.before = hash(page.bytes.data(), page.bytes.size());
  return change.pages.emplace(offset, std::move(page)).first->second;
}

template <class Work>
void JournaledFile::keepFailure(Work work) {
  try {
    work();
  } catch (const std::system_error& error) {
    failed = error;
  } catch (const std::bad_alloc&) {
    failed.emplace(ENOMEM, std::generic_category(), "cannot change file " + file.name());
  }
}

void JournaledFile::write(std::uint64_t offset, const char* bytes, std::size_t count) {
  change.end = std::max(change.end, offset + count);
  keepFailure([&] {
    while (count > 0 && offset < committedEnd) {
      const std::uint64_t place = pageOf(offset);
      Page& page = changedPage(place);
      const std::size_t within = offset - place;
      const std::size_t part = std::min(count, page.bytes.size() - within);
      std::copy_n(bytes, part, page.bytes.data() + within);
      offset += part;
      bytes += part;
      count -= part;
    }
    file.writeAt(offset, bytes, count);
  });
}

// The library writes much as it was.
void JournaledFile::dropUnchangedPages() {
  std::erase_if(change.pages, [](const auto& entry) {
    const Page& page = entry.second;
    return hash(page.bytes.data(), page.bytes.size()) == page.before;
  });
}

std::optional<Descriptor> JournaledFile::writeJournal() const {
  if (change.pages.empty() && change.end >= committedEnd) return std::nullopt;
  try {
    return change.write(journal);
  } catch (const std::system_error& error) {
    if (!refusesNewFiles(error)) throw;
  }
  return std::nullopt;
}

void JournaledFile::commit() {
  if (!failed) keepFailure([this] { bringIntoFile(); });
  if (failed) throw *failed;
}

void JournaledFile::bringIntoFile() {
  dropUnchangedPages();
  if (file.size() < change.end) file.resize(change.end);
  const std::optional<Descriptor> written = writeJournal();
  change.apply(file);
  if (written) ::unlink(journal.c_str());
  change.pages.clear();
  committedEnd = change.end;
}

}  // namespace h5
