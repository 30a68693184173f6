#include "h5/StringHeap.h"

#include <cstring>

namespace h5 {

namespace {

constexpr std::uint64_t HEADER = 16;      // of a collection and of a text [bytes]
constexpr std::uint64_t SMALLEST = 4096;  // collection [bytes]
constexpr char SIGNATURE[] = "GCOL\1";    // with the version

// Numbers in HDF5 files have their lowest byte first, as on the machines that this is built for.
template <class T>
T numberAt(const std::vector<char>& bytes, std::size_t place) {
  T number{};
  std::memcpy(&number, bytes.data() + place, sizeof(number));
  return number;
}

}  // namespace

std::string StringHeap::fault(const std::vector<char>& references) {
  for (std::size_t place = 0; place + REFERENCE_SIZE <= references.size();
       place += REFERENCE_SIZE) {
    const auto length = numberAt<std::uint32_t>(references, place);
    const auto address = numberAt<std::uint64_t>(references, place + 4);
    const auto number = numberAt<std::uint32_t>(references, place + 12);
    if (address == 0) continue;  // an empty string
    auto known = collections.find(address);
    if (known == collections.end()) {
      known = collections.emplace(address, readCollection(address)).first;
    }
    const std::optional<Lengths>& lengths = known->second;
    if (!lengths) return "has strings in a broken place of the file";
    const auto text = lengths->find(number);
    if (text == lengths->end() || text->second != length) {
      return "has a string that is not where it is said to be in the file";
    }
  }
  return {};
}

// One text behind the other, up to a piece with number 0 that is free, or to the end.
std::optional<StringHeap::Lengths> StringHeap::readCollection(std::uint64_t address) const {
  const std::uint64_t start = origin + address;
  if (start < address || start > file.end() || file.end() - start < SMALLEST) return {};
  std::vector<char> bytes(HEADER);
  file.read(start, bytes.data(), bytes.size());
  const auto size = numberAt<std::uint64_t>(bytes, 8);
  if (std::memcmp(bytes.data(), SIGNATURE, sizeof(SIGNATURE) - 1) != 0) return {};
  if (size < SMALLEST || size > file.end() - start) return {};
  bytes.resize(size);
  file.read(start, bytes.data(), bytes.size());

  Lengths lengths;
  for (std::uint64_t place = HEADER; size - place >= HEADER;) {
    const auto number = numberAt<std::uint16_t>(bytes, place);
    const auto length = numberAt<std::uint64_t>(bytes, place + 8);
    const std::uint64_t room = size - place;
    if (number == 0) {
      if (length != room) return {};
      break;
    }
    if (length > room - HEADER || !lengths.emplace(number, length).second) return {};
    const std::uint64_t padded = HEADER + (length + 7) / 8 * 8;
    if (padded > room) return {};
    place += padded;
  }
  return lengths;
}

}  // namespace h5
