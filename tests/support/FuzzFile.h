// A file in memory with the input of a fuzz target.
#pragma once

#include <unistd.h>

#include <cstddef>
#include <cstdint>
#include <fstream>
#include <string>

namespace support {

/// Writes the input to a file, over an earlier one of this process.
/// @return its name
inline std::string fuzzFile(const std::uint8_t* data, std::size_t size) {
  static const std::string name = "/dev/shm/fuzz." + std::to_string(::getpid());
  std::ofstream(name, std::ios::binary)
      .write(reinterpret_cast<const char*>(data), static_cast<std::streamsize>(size));
  return name;
}

}  // namespace support
