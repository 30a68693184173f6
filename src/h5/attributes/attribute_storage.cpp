#include "h5/attributes/attribute_storage.h"

#include <algorithm>
#include <vector>

#include "h5/StringHeap.h"
#include "h5/attributes/Cursor.h"
#include "h5/attributes/ObjectHeader.h"
#include "h5/attributes/attribute_message.h"

namespace h5 {

namespace {

// Kinds of messages.
constexpr std::uint64_t ATTRIBUTE = 0x0C;
constexpr std::uint64_t ATTRIBUTES_ELSEWHERE = 0x15;

// The message stands in each header of the second version, in most with the address of nothing.
void requireNone(const std::string& message, std::size_t addressWidth) {
  constexpr std::uint64_t IS_COUNTED = 1;
  constexpr std::uint64_t IS_ORDERED = 2;
  Cursor cursor(message);
  cursor.skip(1);
  const std::uint64_t flags = cursor.number(1);
  if ((flags & IS_COUNTED) != 0) cursor.skip(2);
  const std::string_view address = cursor.take(addressWidth).rest();
  cursor.skip((flags & IS_ORDERED) != 0 ? 2 * addressWidth : addressWidth);
  if (std::any_of(address.begin(), address.end(), [](char byte) { return byte != '\xFF'; })) {
    throw Broken("has attributes outside of its header, which are not read: keep them few");
  }
}

}  // namespace

std::string attributeFault(hid_t object, const std::string& name) {
  try {
    const ObjectHeader header(object);
    for (const ObjectHeader::Message& message : header.messages()) {
      if (message.kind == ATTRIBUTES_ELSEWHERE) requireNone(message.content, header.addressWidth());
      if (message.kind != ATTRIBUTE) continue;
      if (message.isShared) throw Broken("shares an attribute with others, which is not read");
      const AttributeMessage attribute =
          readAttributeMessage(message.content, header.addressWidth(), header.lengthWidth());
      if (attribute.name != name || !attribute.isText) continue;
      const std::vector<char> references(attribute.values.begin(), attribute.values.end());
      std::string fault = StringHeap(header.file(), header.base()).fault(references);
      if (!fault.empty()) return fault;
    }
  } catch (const Broken& broken) {
    return broken.what();
  }
  return {};
}

}  // namespace h5
