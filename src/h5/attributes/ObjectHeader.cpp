#include "h5/attributes/ObjectHeader.h"

#include <algorithm>

#include "h5/attributes/Cursor.h"
#include "h5/journal/driver.h"

namespace h5 {

namespace {

constexpr std::uint64_t CONTINUATION = 0x10;  // a message that tells of one more block
constexpr std::uint64_t SHARED = 2;           // flag of a message
constexpr std::uint64_t LONGEST_START = 34;   // what stands before the first message [bytes]

// The second version of headers: each block begins with a mark and ends with a checksum.
constexpr std::string_view FIRST_MARK = "OHDR";
constexpr std::uint64_t MARK = 4;      // [bytes]
constexpr std::uint64_t CHECKSUM = 4;  // [bytes]
constexpr std::uint64_t WIDTH_OF_SIZE = 3;
constexpr std::uint64_t WITH_ORDER = 4;
constexpr std::uint64_t WITH_LIMITS = 16;
constexpr std::uint64_t WITH_TIMES = 32;

}  // namespace

ObjectHeader::ObjectHeader(hid_t object) : opened(H5Iget_file_id(object)) {
  // Attributes that have just been made are to be found in the file.
  unsigned intent = H5F_ACC_RDONLY;
  H5Fget_intent(opened.id(), &intent);
  if ((intent & H5F_ACC_RDWR) != 0) H5Oflush(object);
  source = journaledOf(opened.id());
  H5O_info_t info{};
  if (source == nullptr || H5Oget_info2(object, &info, H5O_INFO_BASIC) < 0) {
    throw Broken("has a header that cannot be found");
  }
  origin = baseOf(opened.id());
  const Handle plan(H5Fget_create_plist(opened.id()));
  H5Pget_sizes(plan.id(), &addressBytes, &lengthBytes);

  blocks = {firstBlock(origin + info.addr)};
  std::uint64_t bytes = 0;
  while (!blocks.empty()) {
    const Block block = blocks.back();
    blocks.pop_back();
    bytes += std::max<std::uint64_t>(block.size, 1);
    if (bytes > source->end()) throw Broken("has a header that never ends");
    readBlock(block);
  }
}

ObjectHeader::Block ObjectHeader::firstBlock(std::uint64_t place) {
  const std::string start = read(place, std::min(LONGEST_START, source->end() - place));
  Cursor cursor(start);
  isMarked = start.starts_with(FIRST_MARK);
  std::uint64_t size = 0;
  if (isMarked) {
    cursor.skip(MARK + 1);
    const std::uint64_t flags = cursor.number(1);
    isOrdered = (flags & WITH_ORDER) != 0;
    if ((flags & WITH_TIMES) != 0) cursor.skip(16);
    if ((flags & WITH_LIMITS) != 0) cursor.skip(4);
    size = cursor.number(std::size_t{1} << (flags & WIDTH_OF_SIZE));
  } else {
    cursor.skip(8);
    size = cursor.number(4);
    cursor.skip(4);
  }
  return {place + start.size() - cursor.rest().size(), size};
}

void ObjectHeader::readBlock(Block block) {
  const std::string bytes = read(block.place, block.size);
  Cursor cursor(bytes);
  const std::size_t kindBytes = isMarked ? 1 : 2;
  const std::size_t free = isMarked ? (isOrdered ? 2 : 0) : 3;
  while (cursor.rest().size() >= kindBytes + 2 + 1 + free) {
    const std::uint64_t kind = cursor.number(kindBytes);
    const std::uint64_t size = cursor.number(2);
    const bool isShared = (cursor.number(1) & SHARED) != 0;
    cursor.skip(free);
    found.push_back({kind, isShared, std::string(cursor.take(size).rest())});
    if (kind == CONTINUATION) goOnAt(found.back().content);
  }
}

void ObjectHeader::goOnAt(const std::string& content) {
  Cursor cursor(content);
  const std::uint64_t place = origin + cursor.number(addressBytes);
  const std::uint64_t size = cursor.number(lengthBytes);
  if (!isMarked) {
    blocks.push_back({place, size});
  } else if (size >= MARK + CHECKSUM) {
    blocks.push_back({place + MARK, size - MARK - CHECKSUM});
  }
}

std::string ObjectHeader::read(std::uint64_t place, std::uint64_t size) const {
  if (place > source->end() || size > source->end() - place) {
    throw Broken("has a header that goes beyond the file");
  }
  std::string bytes(size, '\0');
  source->read(place, bytes.data(), bytes.size());
  return bytes;
}

}  // namespace h5
