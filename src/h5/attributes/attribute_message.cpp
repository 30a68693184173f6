#include "h5/attributes/attribute_message.h"

#include <algorithm>
#include <cstdint>
#include <vector>

#include "h5/attributes/Cursor.h"

namespace h5 {

namespace {

constexpr int DEEPEST = 32;              // of types within types
constexpr std::uint64_t MOST_AXES = 32;  // for which the library has room

struct Type {
  std::uint64_t size;  // of a value [bytes]
  bool isText;
};

std::uint64_t paddedBy8(std::uint64_t size) {
  return (size + 7) / 8 * 8;
}

// How many a number of 32 bits needs.
std::size_t bytesFor(std::uint64_t number) {
  std::size_t width = 1;
  while (number >> (8 * width) != 0) ++width;
  return width;
}

// The type with all types that it is made of, one after the other.
class TypeReader {
 public:
  TypeReader(Cursor& source, std::size_t address) : cursor(source), addressWidth(address) {}

  Type read(int depth = 0) {
    if (depth > DEEPEST) throw Broken("has an attribute with a type that is too deep");
    const std::uint64_t kind = cursor.number(1);
    const Head head{kind >> 4U, cursor.number(3), cursor.number(4)};
    switch (kind & 15U) {
      case 0:  // integer
      case 4:  // bits
        cursor.skip(4);
        break;
      case 1:  // float
        cursor.skip(12);
        break;
      case 2:  // time
        cursor.skip(2);
        break;
      case 5:  // opaque, with a tag
        cursor.skip(head.flags & 0xFFU);
        break;
      case 6:
        readMembers(head, depth);
        break;
      case 8:
        readEnumeration(head, depth);
        break;
      case 9:  // the length, the address of a collection and a number there
        read(depth + 1);
        return {4 + addressWidth + 4, (head.flags & 15U) == 1};
      case 10:
        readArray(head, depth);
        break;
      default:  // text of fixed length, reference
        break;
    }
    return {head.size, false};
  }

 private:
  struct Head {
    std::uint64_t version;
    std::uint64_t flags;
    std::uint64_t size;
  };

  void skipName(const Head& head) {
    const std::uint64_t length = cursor.text().size() + 1;
    if (head.version < 3) cursor.skip(paddedBy8(length) - length);
  }

  void readMembers(const Head& head, int depth) {
    const std::size_t offsetWidth = head.version > 2 ? bytesFor(head.size) : 4;
    for (std::uint64_t i = 0; i < (head.flags & 0xFFFFU); ++i) {
      skipName(head);
      cursor.skip(offsetWidth);
      if (head.version == 1) cursor.skip(28);  // extents
      read(depth + 1);
    }
  }

  void readEnumeration(const Head& head, int depth) {
    const std::uint64_t members = head.flags & 0xFFFFU;
    const Type base = read(depth + 1);
    for (std::uint64_t i = 0; i < members; ++i) skipName(head);
    cursor.skip(members * base.size);
  }

  void readArray(const Head& head, int depth) {
    const std::uint64_t axes = cursor.number(1);
    if (axes > MOST_AXES) throw Broken("has an attribute with an array of more than 32 extents");
    if (head.version < 3) cursor.skip(3);
    cursor.skip(axes * (head.version < 3 ? 8 : 4));
    read(depth + 1);
  }

  Cursor& cursor;
  std::size_t addressWidth;
};

constexpr std::uint64_t WITH_LARGEST = 1;  // flag of extents
constexpr std::uint64_t NO_VALUES = 2;     // kind of extents

// Refuses more values than `most`.
std::uint64_t readCount(Cursor cursor, std::size_t lengthWidth, std::uint64_t most) {
  const std::uint64_t version = cursor.number(1);
  const std::uint64_t axes = cursor.number(1);
  const std::uint64_t flags = cursor.number(1);
  const std::uint64_t kind = cursor.number(1);
  if (version == 1) cursor.skip(4);
  Cursor extents = cursor.take(axes * lengthWidth);
  if ((flags & WITH_LARGEST) != 0) cursor.skip(axes * lengthWidth);
  if (version > 1 && kind == NO_VALUES) return 0;
  std::vector<std::uint64_t> lengths(axes);
  for (std::uint64_t& length : lengths) length = extents.number(lengthWidth);
  if (std::find(lengths.begin(), lengths.end(), 0) != lengths.end()) return 0;
  std::uint64_t count = 1;
  for (const std::uint64_t length : lengths) {
    if (count > most / length) throw Broken("has an attribute with more values than its header");
    count *= length;
  }
  return count;
}

}  // namespace

AttributeMessage readAttributeMessage(const std::string& message, std::size_t addressWidth,
                                      std::size_t lengthWidth) {
  Cursor cursor(message);
  const std::uint64_t version = cursor.number(1);
  const std::uint64_t flags = cursor.number(1);
  const std::uint64_t nameSize = cursor.number(2);
  const std::uint64_t typeSize = cursor.number(2);
  const std::uint64_t extentsSize = cursor.number(2);
  if (version > 1 && flags != 0) {
    throw Broken("has an attribute whose type or extents stand elsewhere, which are not read");
  }
  if (version > 2) cursor.skip(1);  // characters of the name
  const auto room = [&](std::uint64_t size) { return version == 1 ? paddedBy8(size) : size; };
  AttributeMessage attribute{cursor.take(room(nameSize)).text(), false, {}};
  Cursor typeBytes = cursor.take(room(typeSize));
  const Type type = TypeReader(typeBytes, addressWidth).read();
  const Cursor extents = cursor.take(room(extentsSize));
  const std::uint64_t most = cursor.rest().size() / (type.size == 0 ? 1 : type.size);
  const std::uint64_t count = readCount(extents, lengthWidth, most);
  attribute.isText = type.isText;
  attribute.values = cursor.take(count * type.size).rest();
  return attribute;
}

}  // namespace h5
