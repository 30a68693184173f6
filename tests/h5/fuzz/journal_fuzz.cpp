// Fuzzes the reader of journals with the bytes of one; see scripts/fuzz.
//
// The input is taken twice: as it stands, and with the hash that makes it a whole journal. Whatever
// it is, reading comes back with a journal, which can be applied to a file, or with nothing.
#include <fcntl.h>
#include <unistd.h>

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <system_error>
#include <vector>

#include "h5/journal/Descriptor.h"
#include "h5/journal/Journal.h"

namespace {

constexpr std::uint64_t LARGEST_FILE = 1 << 20;

std::string nameOf(const char* kind) {
  return "/dev/shm/journal_fuzz." + std::to_string(::getpid()) + kind;
}

std::uint64_t numberAt(const std::vector<char>& bytes, std::size_t place) {
  std::uint64_t number = 0;
  std::memcpy(&number, bytes.data() + place, sizeof(number));
  return number;
}

// Appends the hash over a header, which ends with the number of pages, and the pages, each behind
// a header of its own with its length in the middle.
void complete(std::vector<char>& bytes) {
  constexpr std::size_t HEADER = 24;
  if (bytes.size() < HEADER) return;
  std::uint64_t sum = h5::hash(bytes.data(), HEADER);
  std::size_t place = HEADER;
  for (std::uint64_t left = numberAt(bytes, 16); left > 0; --left) {
    if (bytes.size() - place < HEADER) break;
    const std::uint64_t length = numberAt(bytes, place + 8);
    sum = h5::hash(bytes.data() + place, HEADER, sum);
    place += HEADER;
    if (length > bytes.size() - place) break;
    sum = h5::hash(bytes.data() + place, length, sum);
    place += length;
  }
  bytes.resize(place);
  const char* const end = reinterpret_cast<const char*>(&sum);
  bytes.insert(bytes.end(), end, end + sizeof(sum));
}

void read(const std::vector<char>& bytes) {
  const std::string name = nameOf(".journal");
  const h5::Descriptor source(name, O_RDWR | O_CREAT | O_TRUNC);
  ::unlink(name.c_str());
  source.writeAt(0, bytes.data(), bytes.size());
  const auto journal = h5::Journal::read(source);
  if (!journal) return;
  const std::string target = nameOf(".h5");
  const h5::Descriptor file(target, O_RDWR | O_CREAT | O_TRUNC);
  ::unlink(target.c_str());
  try {
    journal->belongsTo(file);
    if (journal->end < LARGEST_FILE) journal->apply(file);
  } catch (const std::system_error&) {
    // A place that no file has.
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  std::vector<char> bytes(data, data + size);
  read(bytes);
  complete(bytes);
  read(bytes);
  return 0;
}
