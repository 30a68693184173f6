#include "h5/Journal.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <system_error>

namespace h5 {

namespace {

constexpr std::uint64_t MAGIC = 0x314a4f4548521a89;  // no text and no HDF5 file starts with it

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
  // FNV-1a by words of eight bytes, with the upper bits mixed in; each step can be undone, so that
  // no change of a single word is missed.
  constexpr std::uint64_t PRIME = 0x100000001b3;
  std::uint64_t sum = ((seed ^ 0xcbf29ce484222325) * PRIME) ^ count;
  for (std::size_t place = 0; place < count; place += sizeof(std::uint64_t)) {
    std::uint64_t word = 0;
    std::memcpy(&word, bytes + place, std::min(sizeof(word), count - place));
    sum = (sum ^ word) * PRIME;
    sum ^= sum >> 32;
  }
  return sum;
}

std::string journalOf(const std::string& file) {
  std::error_code missing;
  const std::filesystem::path real = std::filesystem::canonical(file, missing);
  return (missing ? file : real.string()) + ".journal";
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
  Descriptor target(name, O_WRONLY | O_CREAT | O_TRUNC);
  try {
    target.lockForOne();
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
