#include "h5/Chunks.h"

#include <zlib.h>

#include <algorithm>
#include <utility>

namespace h5 {

namespace {

constexpr std::uint64_t LARGEST_COMPRESSION = 1032;  // of deflate
constexpr std::uint64_t SMALLEST_ENTRY = 8;          // of a chunk in the index of chunks [bytes]
constexpr std::size_t CHECKSUM = 4;                  // behind the values of a chunk [bytes]

// False unless the bytes decompress to exactly so many.
bool inflate(std::vector<char>& values, std::uint64_t size) {
  std::vector<char> plain(size);
  uLongf length = size;
  const int status = ::uncompress(reinterpret_cast<Bytef*>(plain.data()), &length,
                                  reinterpret_cast<const Bytef*>(values.data()), values.size());
  values = std::move(plain);
  return status == Z_OK && length == size;
}

// First bytes, second bytes and so on of the values stand together.
void unshuffle(std::vector<char>& values, std::size_t size) {
  if (size == 0) return;
  const std::vector<char> shuffled = values;
  const std::size_t count = values.size() / size;
  for (std::size_t value = 0; value < count; ++value) {
    for (std::size_t i = 0; i < size; ++i) values[value * size + i] = shuffled[i * count + value];
  }
}

}  // namespace

Chunks::Chunks(hid_t dataset, hid_t plan, const Shape& extents, std::size_t valueSize,
               std::uint64_t fileSize)
    : chunked(dataset), whole(extents), chunk(extents.size(), 0), fileBytes(fileSize) {
  readFilters(plan);
  if (H5Pget_chunk(plan, static_cast<int>(chunk.size()), chunk.data()) !=
      static_cast<int>(chunk.size())) {
    return;
  }
  const std::uint64_t most = fileSize * LARGEST_COMPRESSION;
  std::uint64_t bytes = valueSize;
  for (const hsize_t extent : chunk) {
    if (extent == 0 || bytes > most / extent) return;
    bytes *= extent;
  }
  chunkBytes = bytes;
}

void Chunks::readFilters(hid_t plan) {
  for (int i = 0; i < H5Pget_nfilters(plan); ++i) {
    unsigned flags = 0;
    unsigned parameter = 0;
    std::size_t parameters = 1;
    const H5Z_filter_t id = H5Pget_filter2(plan, static_cast<unsigned>(i), &flags, &parameters,
                                           &parameter, 0, nullptr, nullptr);
    filters.push_back({id, parameter});
  }
}

// Of other filters, some believe the sizes that they find in the file.
std::string Chunks::planFault() const {
  if (chunkBytes == 0) return "has chunks of a size that its file cannot hold";
  std::uint64_t count = 1;
  for (std::size_t i = 0; i < whole.size(); ++i) {
    const std::uint64_t along = (whole[i] - 1) / chunk[i] + 1;
    if (along > fileBytes / SMALLEST_ENTRY / count) {
      return "has more chunks than its file has room for";
    }
    count *= along;
  }
  bool isCompressed = false;
  for (const Filter& filter : filters) {
    const bool isKnown = (filter.id == H5Z_FILTER_DEFLATE && !isCompressed) ||
                         filter.id == H5Z_FILTER_SHUFFLE || filter.id == H5Z_FILTER_FLETCHER32;
    if (!isKnown) {
      return "is packed by filters that are not read: of them deflate, shuffle and fletcher32 are";
    }
    isCompressed = isCompressed || filter.id == H5Z_FILTER_DEFLATE;
  }
  return {};
}

bool Chunks::undoFilters(std::vector<char>& values, unsigned skipped) const {
  const auto isUsed = [&](std::size_t i) { return i > 31 || ((skipped >> i) & 1U) == 0; };
  std::uint64_t checksums = 0;
  for (std::size_t i = 0; i < filters.size(); ++i) {
    if (filters[i].id == H5Z_FILTER_FLETCHER32 && isUsed(i)) checksums += CHECKSUM;
    if (filters[i].id == H5Z_FILTER_DEFLATE) break;
  }
  for (std::size_t i = filters.size(); i-- > 0;) {
    if (!isUsed(i)) continue;
    if (filters[i].id == H5Z_FILTER_DEFLATE && !inflate(values, chunkBytes + checksums)) {
      return false;
    }
    if (filters[i].id == H5Z_FILTER_FLETCHER32) {
      if (values.size() < CHECKSUM) return false;
      values.resize(values.size() - CHECKSUM);
    }
    if (filters[i].id == H5Z_FILTER_SHUFFLE) unshuffle(values, filters[i].parameter);
  }
  return values.size() == chunkBytes;
}

std::string Chunks::faultAt(const Shape& corner, const Look& look) const {
  constexpr const char* BROKEN = "has a chunk that does not hold its values";
  unsigned skipped = 0;
  haddr_t place = HADDR_UNDEF;
  hsize_t stored = 0;
  if (H5Dget_chunk_info_by_coord(chunked, corner.data(), &skipped, &place, &stored) < 0) {
    return BROKEN;
  }
  if (place == HADDR_UNDEF) return {};  // never written
  if (stored == 0 || stored > fileBytes || (filters.empty() && stored != chunkBytes)) return BROKEN;
  std::vector<char> values(stored);
  if (H5Dread_chunk(chunked, H5P_DEFAULT, corner.data(), &skipped, values.data()) < 0 ||
      !undoFilters(values, skipped)) {
    return BROKEN;
  }
  return look(values);
}

std::string Chunks::firstFault(const Look& look) const {
  if (std::string fault = planFault(); !fault.empty()) return fault;
  Shape corner(whole.size(), 0);
  std::size_t axis = 0;
  do {
    if (std::string fault = faultAt(corner, look); !fault.empty()) return fault;
    // The next corner, the last axis running fastest.
    for (axis = corner.size(); axis > 0; --axis) {
      corner[axis - 1] += chunk[axis - 1];
      if (corner[axis - 1] < whole[axis - 1]) break;
      corner[axis - 1] = 0;
    }
  } while (axis > 0);
  return {};
}

}  // namespace h5
