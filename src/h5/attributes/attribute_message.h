// The message of an object header that holds an attribute: its name, the type of its values, their
// extents, the values. The library reads each of them as far as it says that it goes, be it beyond
// the message and the memory that it has for it.
#pragma once

#include <cstddef>
#include <string>

namespace h5 {

/// An attribute that lies within its message.
struct AttributeMessage {
  std::string name;
  bool isText;         ///< strings of variable length, which stand somewhere else
  std::string values;  ///< as in the file
};

/// @param addressWidth,lengthWidth of numbers in the file [bytes]
/// @throws Broken if a part goes beyond its room, or stands in another place of the file
AttributeMessage readAttributeMessage(const std::string& message, std::size_t addressWidth,
                                      std::size_t lengthWidth);

}  // namespace h5
