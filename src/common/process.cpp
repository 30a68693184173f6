#include "common/process.h"

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <new>

#include "common/console.h"
#include "common/standard_streams.h"

namespace common {

void startProcess() {
  openStandardStreams();
  std::signal(SIGXFSZ, SIG_IGN);
  setenv("HDF5_USE_FILE_LOCKING", "FALSE", 0);
}

void endFailed(const std::exception& fault) {
  if (dynamic_cast<const std::bad_alloc*>(&fault) != nullptr) {
    console::error("there is not enough memory");
  }
  if (dynamic_cast<const BaseException*>(&fault) == nullptr) {
    console::error("unhandled exception (actually, this should never happen)");
    console::error(fault.what());
  }
  console::error(BaseException().what());
  std::cout.flush();
  std::fflush(nullptr);
  std::_Exit(1);
}

void endWell() {
  requireStandardOutput();
  std::fflush(nullptr);
  std::_Exit(0);
}

void requireStandardOutput() {
  std::cout.flush();
  if (!std::cout) console::fail("standard output cannot be written: is the disk full?");
}

}  // namespace common
