#include "common/process.h"

#include <sys/mman.h>
#include <unistd.h>

#include <csignal>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <new>
#include <string_view>

#include "common/console.h"
#include "common/standard_streams.h"

namespace common {

namespace {

// Before any table is made, and before the HDF5 library is asked for anything: neither has a way to
// tell that there is no memory for it.
[[gnu::constructor(101)]] void requireMemory() {
  constexpr std::size_t NEEDED = std::size_t{8} << 20;
  void* const room =
      ::mmap(nullptr, NEEDED, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
  if (room != MAP_FAILED) {
    ::munmap(room, NEEDED);
    return;
  }
  constexpr std::string_view TEXT = "there is not enough memory to start: 8 MiB must be free\n";
  [[maybe_unused]] const ssize_t written = ::write(STDERR_FILENO, TEXT.data(), TEXT.size());
  std::_Exit(1);
}

}  // namespace

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
