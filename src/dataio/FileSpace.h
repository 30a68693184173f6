// Room on the disk, asked for before a library writes: one that fails half-way can leave a file
// that does not open any more.
#pragma once

#include <cstddef>
#include <string>

namespace dataio {

/// Makes sure that a file can grow by so many bytes; its size stays as it is.
/// @return false if the disk, a quota or the limit on the size of files does not allow it. True
///   where the file system cannot tell.
bool reserveFileSpace(const std::string& file, std::size_t bytes);

/// Whether the disk of a file has room for so many bytes. True where it cannot tell.
bool isRoomOnDiskOf(const std::string& file, std::size_t bytes);

}  // namespace dataio
