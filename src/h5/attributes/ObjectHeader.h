// The messages that describe an object of an HDF5 file, such as its attributes, as they stand in
// the file: in the first block of its header and in those where it goes on.
//
//   const ObjectHeader header(dataset);
//   for (const ObjectHeader::Message& message : header.messages()) ...
//
// The library checks that each message lies within its block when it opens the object. What a
// message says within is taken on trust.
#pragma once

#include <hdf5.h>

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "h5/Handle.h"
#include "h5/journal/JournaledFile.h"

namespace h5 {

class ObjectHeader {
 public:
  struct Message {
    std::uint64_t kind;
    bool isShared;  ///< stands somewhere else
    std::string content;
  };

  /// @param object open, in a file that was opened with the access list of driver.h
  /// @throws Broken if the header cannot be walked through
  explicit ObjectHeader(hid_t object);

  const std::vector<Message>& messages() const noexcept { return found; }
  const JournaledFile& file() const noexcept { return *source; }
  /// What addresses in the file count from.
  std::uint64_t base() const noexcept { return origin; }
  /// Of addresses and of lengths in the file [bytes].
  std::size_t addressWidth() const noexcept { return addressBytes; }
  std::size_t lengthWidth() const noexcept { return lengthBytes; }

 private:
  struct Block {
    std::uint64_t place;  ///< in the file
    std::uint64_t size;   ///< of its messages [bytes]
  };

  Block firstBlock(std::uint64_t place);
  void readBlock(Block block);
  void goOnAt(const std::string& content);
  std::string read(std::uint64_t place, std::uint64_t size) const;

  Handle opened;
  const JournaledFile* source;
  std::uint64_t origin = 0;
  std::size_t addressBytes = 0;
  std::size_t lengthBytes = 0;
  bool isMarked = false;      ///< blocks have a mark, as in the second version
  bool isOrdered = false;     ///< messages have the number of their creation
  std::vector<Block> blocks;  ///< still to be read
  std::vector<Message> found;
};

}  // namespace h5
