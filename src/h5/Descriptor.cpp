#include "h5/Descriptor.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <system_error>

namespace h5 {

namespace {

constexpr mode_t PERMISSIONS = 0666;

}  // namespace

Descriptor::Descriptor(const std::string& name, int flags)
    : fileName(name), number(::open(name.c_str(), flags | O_CLOEXEC, PERMISSIONS)) {
  if (number < 0) fail("open");
  struct stat status {};
  if (::fstat(number, &status) == 0) {
    place = {static_cast<std::uint64_t>(status.st_dev), static_cast<std::uint64_t>(status.st_ino)};
  }
}

Descriptor::~Descriptor() {
  if (number >= 0) ::close(number);
}

void Descriptor::fail(const char* action) const {
  throw std::system_error(errno, std::generic_category(),
                          std::string("cannot ") + action + " file " + fileName);
}

void Descriptor::readAt(std::uint64_t offset, char* bytes, std::size_t count) const {
  while (count > 0) {
    const ssize_t done = ::pread(number, bytes, count, static_cast<off_t>(offset));
    if (done < 0 && errno == EINTR) continue;
    if (done < 0) fail("read");
    if (done == 0) break;
    offset += static_cast<std::uint64_t>(done);
    bytes += done;
    count -= static_cast<std::size_t>(done);
  }
  if (count > 0) std::memset(bytes, 0, count);
}

void Descriptor::writeAt(std::uint64_t offset, const char* bytes, std::size_t count) const {
  while (count > 0) {
    const ssize_t done = ::pwrite(number, bytes, count, static_cast<off_t>(offset));
    if (done < 0 && errno == EINTR) continue;
    if (done < 0) fail("write to");
    offset += static_cast<std::uint64_t>(done);
    bytes += done;
    count -= static_cast<std::size_t>(done);
  }
}

std::uint64_t Descriptor::size() const {
  struct stat status {};
  if (::fstat(number, &status) != 0) fail("look at");
  return static_cast<std::uint64_t>(status.st_size);
}

void Descriptor::resize(std::uint64_t size) const {
  if (::ftruncate(number, static_cast<off_t>(size)) != 0) fail("change the size of");
}

void Descriptor::lockForOne() const {
  while (::flock(number, LOCK_EX) != 0) {
    if (errno != EINTR) return;
  }
}

void Descriptor::lock(int operation) const {
  if (::flock(number, operation) != 0 && errno != ENOSYS) fail("lock");
}

bool Descriptor::hasName() const {
  struct stat status {};
  return ::fstat(number, &status) == 0 && status.st_nlink > 0;
}

}  // namespace h5
