#include "h5/journal/Descriptor.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <cstring>
#include <system_error>
#include <thread>

#include "h5/journal/Refused.h"

namespace h5 {

namespace {

constexpr mode_t PERMISSIONS = 0666;

constexpr const char* OWN_FILES = "/proc/self/fd/";

[[noreturn]] void refuseKind(const std::string& name) {
  throw Refused("file " + name + " is a pipe or a device: a file on a disk is needed");
}

bool isWithinLimit(std::uint64_t size) {
  rlimit limit{};
  if (::getrlimit(RLIMIT_FSIZE, &limit) != 0 || limit.rlim_cur == RLIM_INFINITY) return true;
  return size <= limit.rlim_cur;
}

// Whether the disk of an open file has room for so many bytes.
bool isOnDisk(int file, std::uint64_t bytes) {
  struct statvfs status {};
  if (::fstatvfs(file, &status) != 0) return true;
  // Some file systems in memory count no blocks.
  if (status.f_blocks == 0) return true;
  // The last blocks of a disk are for the administrator alone.
  const auto blocks = ::geteuid() == 0 ? status.f_bfree : status.f_bavail;
  return bytes / status.f_frsize < blocks;
}

// The blocks are set aside behind the end of the file.
bool setAside(int file, std::uint64_t from, std::uint64_t bytes) {
  if (::fallocate(file, FALLOC_FL_KEEP_SIZE, static_cast<off_t>(from), static_cast<off_t>(bytes)) ==
      0) {
    return true;
  }
  return errno != ENOSPC && errno != EDQUOT && errno != EFBIG;
}

}  // namespace

Descriptor::Descriptor(const std::string& name, int flags, const std::string& path)
    : fileName(name),
      number(::open(path.c_str(), flags | O_CLOEXEC | O_NONBLOCK | O_NOCTTY, PERMISSIONS)) {
  // A pipe without a reader.
  if (number < 0 && errno == ENXIO) refuseKind(name);
  if (number < 0) fail("open");
  look();
}

void Descriptor::look() {
  struct stat status {};
  if (::fstat(number, &status) != 0) return;
  if (!S_ISREG(status.st_mode) && !S_ISDIR(status.st_mode)) {
    ::close(number);
    refuseKind(fileName);
  }
  place = {static_cast<std::uint64_t>(status.st_dev), static_cast<std::uint64_t>(status.st_ino)};
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

bool Descriptor::reserve(std::uint64_t growth, std::uint64_t beside) const {
  const std::uint64_t end = size();
  // The disk is asked before it sets anything aside: a file system may fill itself up before it
  // finds that the room does not suffice.
  return isWithinLimit(end + growth) && isWithinLimit(beside) &&
         isOnDisk(number, growth + beside) && setAside(number, end, growth);
}

void Descriptor::sync() const {
  // Some file systems have nothing to wait for.
  if (::fsync(number) != 0 && errno != EINVAL && errno != EROFS) fail("bring to the disk the");
}

void Descriptor::takeAccessOf(const Descriptor& other) const {
  struct stat status {};
  if (::fstat(other.number, &status) != 0) return;
  // Only the administrator may give files away; for others it is theirs already, or stays so.
  if (::fchown(number, status.st_uid, status.st_gid) != 0) errno = 0;
  ::fchmod(number, status.st_mode & 07777);
}

void Descriptor::link(const std::string& newName) const {
  const std::string self = OWN_FILES + std::to_string(number);
  if (::linkat(AT_FDCWD, self.c_str(), AT_FDCWD, newName.c_str(), AT_SYMLINK_FOLLOW) != 0) {
    throw std::system_error(errno, std::generic_category(), "cannot make file " + newName);
  }
}

void Descriptor::lockForOne() const {
  const auto patience = std::chrono::steady_clock::now() + std::chrono::seconds(10);
  while (::flock(number, LOCK_EX | LOCK_NB) != 0) {
    if (errno != EWOULDBLOCK && errno != EINTR) return;
    if (std::chrono::steady_clock::now() > patience) {
      throw Refused("file " + fileName +
                    " is locked by another process: try again once it has ended");
    }
    std::this_thread::sleep_for(std::chrono::milliseconds(5));
  }
}

Descriptor::Lock Descriptor::lockForWriting() const {
  // One byte that no file reaches; this kind of lock belongs to the open file, not to the process.
  struct flock range {};
  range.l_type = F_WRLCK;
  range.l_whence = SEEK_SET;
  range.l_start = off_t{1} << 62;
  range.l_len = 1;
  if (::fcntl(number, F_OFD_SETLK, &range) == 0) return Lock::Taken;
  return errno == EAGAIN || errno == EACCES ? Lock::HeldByAnother : Lock::Unknown;
}

Descriptor Descriptor::duplicate() const {
  Descriptor copy(fileName);
  copy.place = place;
  copy.number = ::fcntl(number, F_DUPFD_CLOEXEC, 0);
  if (copy.number < 0) fail("open");
  return copy;
}

void Descriptor::lock(int operation) const {
  if (::flock(number, operation) != 0 && errno != ENOSYS) fail("lock");
}

bool Descriptor::hasName() const {
  struct stat status {};
  return ::fstat(number, &status) == 0 && status.st_nlink > 0;
}

}  // namespace h5
