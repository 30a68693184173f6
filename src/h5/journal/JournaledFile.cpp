#include "h5/journal/JournaledFile.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <new>
#include <optional>
#include <string_view>
#include <system_error>
#include <utility>

#include "h5/journal/Refused.h"
#include "h5/journal/replacement.h"

namespace h5 {

namespace {

std::uint64_t pageOf(std::uint64_t offset) {
  return offset - offset % PAGE_SIZE;
}

// Whether the reason is the folder or the name, not a lack of room.
bool refusesNewFiles(const std::system_error& error) {
  const int reason = error.code().value();
  return reason == EACCES || reason == EPERM || reason == EROFS || reason == ENAMETOOLONG;
}

std::string withoutLinks(const std::string& name) {
  std::error_code missing;
  const std::filesystem::path real = std::filesystem::canonical(name, missing);
  return missing ? name : real.string();
}

bool isDurable() {
  const char* const wish = std::getenv("RHEOMARK_SYNC");
  return wish != nullptr && std::string_view(wish) == "1";
}

// A file is on the disk once its folder is, too.
void syncFolderOf(const std::string& name) {
  const std::string folder = std::filesystem::path(name).parent_path().string();
  Descriptor(folder.empty() ? "." : folder, O_RDONLY | O_DIRECTORY).sync();
}

}  // namespace

JournaledFile::JournaledFile(const std::string& name, int flags)
    : writable((flags & O_RDWR) != 0), file(openData(name, flags)) {
  recover();
  if (change.pages.empty()) change.end = file.size();
  committedEnd = change.end;
}

// A file that is to be written is locked before anything is done to it.
Descriptor JournaledFile::openData(const std::string& name, int flags) {
  Descriptor opened(name, flags & ~O_TRUNC);
  realName = withoutLinks(name);
  journal = journalOf(realName);
  if (writable) {
    locks.emplace_back(opened);
    if (!opened.hasName())
      throw Refused("another process has replaced file " + name + ": try again");
  }
  if ((flags & O_TRUNC) == 0) return opened;
  try {
    Descriptor made = openReplacement(realName, opened);
    locks.emplace_back(made);
    earlier.emplace(std::move(opened));
    return made;
  } catch (const std::system_error& error) {
    if (!refusesNewFiles(error)) throw;
  }
  opened.resize(0);
  return opened;
}

void JournaledFile::recover() {
  refuseEarlierJournal(realName);
  const std::optional<Descriptor> source = openUnused(journal);
  if (!source) return;
  if (!Journal::isOne(*source)) {
    if (writable) refuseOther(journal);
    return;
  }
  std::optional<Journal> left = Journal::read(*source);
  if (!left || !left->belongsTo(file)) {
    if (writable && !earlier) ::unlink(journal.c_str());
    return;
  }
  try {
    const Descriptor target(realName, O_RDWR);
    left->apply(target);
    if (isDurable()) target.sync();
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
  } catch (const Refused& refusal) {
    failed.emplace(EEXIST, std::generic_category(), refusal.what());
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

bool JournaledFile::reserve(std::uint64_t appended, std::uint64_t overwritten) const {
  return file.reserve(appended, Journal::sizeFor(overwritten));
}

// The HDF5 library often writes a page of names or times again without a change in it. Such pages
// need no journal.
void JournaledFile::dropUnchangedPages() {
  std::erase_if(change.pages, [](const auto& entry) {
    const Page& page = entry.second;
    return hash(page.bytes.data(), page.bytes.size()) == page.before;
  });
}

std::optional<Descriptor> JournaledFile::writeJournal() const {
  if (change.pages.empty() && change.end >= committedEnd) return std::nullopt;
  try {
    std::optional<Descriptor> written(change.write(journal));
    if (isDurable()) {
      written->sync();
      syncFolderOf(journal);
    }
    return written;
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
  // What stands behind the committed end is on the disk before anything refers to it.
  if (isDurable()) file.sync();
  if (earlier) {
    commitNewFile();
  } else {
    commitChange();
  }
  change.pages.clear();
  committedEnd = change.end;
}

void JournaledFile::commitNewFile() {
  change.apply(file);
  putInPlace(file, realName);
  earlier.reset();
  locks.erase(locks.begin());
  if (isDurable()) syncFolderOf(realName);
}

void JournaledFile::commitChange() {
  const std::optional<Descriptor> written = writeJournal();
  change.apply(file);
  if (isDurable()) file.sync();
  if (written) ::unlink(journal.c_str());
}

}  // namespace h5
