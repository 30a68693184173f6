// Fuzzes the reader of series with the bytes of a file; see scripts/fuzz.
#include <iostream>

#include "common/BaseException.h"
#include "setup/domain/Series.h"
#include "support/FuzzFile.h"

extern "C" int LLVMFuzzerInitialize(int* /*count*/, char*** /*arguments*/) {
  std::cout.setstate(std::ios::failbit);
  std::cerr.setstate(std::ios::failbit);
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  try {
    setup::readSeries(support::fuzzFile(data, size));
  } catch (const BaseException&) {
    // It has told what is wrong.
  }
  return 0;
}
