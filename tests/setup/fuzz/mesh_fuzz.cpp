// Fuzzes the reader of meshes in the 2dm format with the bytes of a file; see scripts/fuzz.
#include <iostream>

#include "common/BaseException.h"
#include "setup/mesh/Reader2dm.h"
#include "support/FuzzFile.h"

extern "C" int LLVMFuzzerInitialize(int* /*count*/, char*** /*arguments*/) {
  std::cout.setstate(std::ios::failbit);
  std::cerr.setstate(std::ios::failbit);
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  try {
    setup::readMesh2dm(support::fuzzFile(data, size));
  } catch (const BaseException&) {
    // It has told what is wrong.
  }
  return 0;
}
