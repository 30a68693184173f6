#include "h5/journal/Journal.h"

#include <fcntl.h>
#include <unistd.h>
#include <xxhash.h>

#include <algorithm>
#include <cerrno>
#include <system_error>

#include "h5/journal/Refused.h"

namespace h5 {

namespace {

// No text and no HDF5 file starts with these.
constexpr std::uint64_t MAGIC = 0x324a4f4548521a89;
constexpr std::uint64_t EARLIER_MAGIC = 0x314a4f4548521a89;  // of release 3.0.1, with another hash

struct Header {
  std::uint64_t magic;
  std::uint64_t end;
  std::uint64_t pages;
};

struct PageHeader {
  std::uint64_t offset;
  std::uint64_t length;
  std::uint64_t before;
};

// Writes one part behind the other and hashes them all.
class Output {
 public:
  explicit Output(const Descriptor& file) : target(file) {}

  void append(const char* bytes, std::size_t count) {
    target.writeAt(place, bytes, count);
    place += count;
    sum = hash(bytes, count, sum);
  }
  template <class T>
  void append(const T& value) {
    append(reinterpret_cast<const char*>(&value), sizeof(value));
  }
  std::uint64_t hashOfAll() const { return sum; }

 private:
  const Descriptor& target;
  std::uint64_t place = 0;
  std::uint64_t sum = 0;
};

// Takes one part behind the other; false where not enough is left.
class Input {
 public:
  explicit Input(const std::vector<char>& bytes) : source(bytes) {}

  bool take(char* bytes, std::size_t count) {
    if (count > source.size() - place) return false;
    std::copy_n(source.data() + place, count, bytes);
    sum = hash(bytes, count, sum);
    place += count;
    return true;
  }
  template <class T>
  bool take(T& value) {
    return take(reinterpret_cast<char*>(&value), sizeof(value));
  }
  std::uint64_t hashOfAll() const { return sum; }
  bool isAtEnd() const { return place == source.size(); }

 private:
  const std::vector<char>& source;
  std::size_t place = 0;
  std::uint64_t sum = 0;
};

std::uint64_t magicOf(const Descriptor& source) {
  std::uint64_t magic = 0;
  source.readAt(0, reinterpret_cast<char*>(&magic), sizeof(magic));
  return magic;
}

// Opens a file once no other process has it locked, and it has not been removed meanwhile.
Descriptor openForOne(const std::string& name, int flags) {
  while (true) {
    Descriptor file(name, flags);
    file.lockForOne();
    if (file.hasName()) return file;
  }
}

void writeAll(const Journal& journal, const Descriptor& target) {
  Output output(target);
  output.append(Header{MAGIC, journal.end, journal.pages.size()});
  for (const auto& [offset, page] : journal.pages) {
    output.append(PageHeader{offset, page.bytes.size(), page.before});
    output.append(page.bytes.data(), page.bytes.size());
  }
  output.append(output.hashOfAll());
}

}  // namespace

std::uint64_t hash(const char* bytes, std::size_t count, std::uint64_t seed) {
  return XXH3_64bits_withSeed(bytes, count, seed);
}

std::string journalOf(const std::string& file) {
  return file + ".rheomark-journal";
}

void refuseOther(const std::string& journal) {
  throw Refused("file " + journal + " has the name that the journal of the results needs, and is " +
                "none: move it elsewhere");
}

std::optional<Descriptor> openUnused(const std::string& journal) {
  try {
    return openForOne(journal, O_RDONLY);
  } catch (const std::system_error& error) {
    // A name that is too long was never given to a journal.
    const int reason = error.code().value();
    if (reason != ENOENT && reason != ENAMETOOLONG) throw;
  }
  return std::nullopt;
}

void refuseEarlierJournal(const std::string& file) {
  const std::string journal = file + ".journal";
  try {
    if (magicOf(Descriptor(journal, O_RDONLY)) != EARLIER_MAGIC) return;
  } catch (const std::exception&) {
    return;  // none, or of somebody else
  }
  throw Refused("file " + journal + " is the journal of a record that release 3.0.1 was writing: " +
                "open " + file + " with that release once (export --list), which completes the " +
                "record; or move the journal elsewhere, if the file is whole without it");
}

std::uint64_t Journal::sizeFor(std::uint64_t bytes) {
  const std::uint64_t touched =
      bytes / PAGE_SIZE + 2;  // at both ends a page may be touched in part
  return sizeof(Header) + touched * (sizeof(PageHeader) + PAGE_SIZE) + sizeof(std::uint64_t);
}

bool Journal::isOne(const Descriptor& source) {
  // An empty one belongs to a process that was killed before it wrote anything.
  return source.size() == 0 || magicOf(source) == MAGIC;
}

std::optional<Journal> Journal::read(const Descriptor& source) {
  std::vector<char> bytes(source.size());
  source.readAt(0, bytes.data(), bytes.size());
  Input input(bytes);
  Header header{};
  if (!input.take(header) || header.magic != MAGIC) return {};
  Journal journal;
  journal.end = header.end;
  for (std::uint64_t i = 0; i < header.pages; ++i) {
    PageHeader place{};
    if (!input.take(place) || place.length > PAGE_SIZE) return {};
    Page page{std::vector<char>(place.length), place.before};
    if (!input.take(page.bytes.data(), page.bytes.size())) return {};
    journal.pages.emplace(place.offset, std::move(page));
  }
  const std::uint64_t expected = input.hashOfAll();
  std::uint64_t stored = 0;
  if (!input.take(stored) || stored != expected || !input.isAtEnd()) return {};
  return journal;
}

Descriptor Journal::write(const std::string& name) const {
  Descriptor target = openForOne(name, O_RDWR | O_CREAT);
  if (!isOne(target)) refuseOther(name);
  try {
    target.resize(0);
    writeAll(*this, target);
  } catch (const std::system_error&) {
    ::unlink(name.c_str());
    throw;
  }
  return target;
}

bool Journal::belongsTo(const Descriptor& file) const {
  std::vector<char> bytes;
  return std::all_of(pages.begin(), pages.end(), [&](const auto& entry) {
    const auto& [offset, page] = entry;
    bytes.resize(page.bytes.size());
    file.readAt(offset, bytes.data(), bytes.size());
    return bytes == page.bytes || hash(bytes.data(), bytes.size()) == page.before;
  });
}

void Journal::apply(const Descriptor& file) const {
  for (const auto& [offset, page] : pages) {
    file.writeAt(offset, page.bytes.data(), page.bytes.size());
  }
  if (file.size() != end) file.resize(end);
}

}  // namespace h5
