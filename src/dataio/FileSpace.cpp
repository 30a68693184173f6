#include "dataio/FileSpace.h"

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <unistd.h>

#include <cerrno>

namespace dataio {

namespace {

bool isWithinLimit(std::size_t size) {
  rlimit limit{};
  if (::getrlimit(RLIMIT_FSIZE, &limit) != 0 || limit.rlim_cur == RLIM_INFINITY) return true;
  return size <= limit.rlim_cur;
}

// The blocks are set aside behind the end of the file.
bool setAside(int descriptor, std::size_t from, std::size_t bytes) {
  if (::fallocate(descriptor, FALLOC_FL_KEEP_SIZE, static_cast<off_t>(from),
                  static_cast<off_t>(bytes)) == 0) {
    return true;
  }
  return errno != ENOSPC && errno != EDQUOT && errno != EFBIG;
}

}  // namespace

bool isRoomOnDiskOf(const std::string& file, std::size_t bytes) {
  struct statvfs status {};
  if (::statvfs(file.c_str(), &status) != 0) return true;
  // The last blocks of a disk are for the administrator alone.
  const auto blocks = ::geteuid() == 0 ? status.f_bfree : status.f_bavail;
  return bytes / status.f_frsize < blocks;
}

bool reserveFileSpace(const std::string& file, std::size_t bytes) {
  const int descriptor = ::open(file.c_str(), O_WRONLY | O_CLOEXEC);
  if (descriptor < 0) return true;
  struct stat status {};
  bool fits = true;
  if (::fstat(descriptor, &status) == 0) {
    const auto size = static_cast<std::size_t>(status.st_size);
    // Asked first: a file system may fill itself up before it finds that the room does not suffice.
    fits = isWithinLimit(size + bytes) && isRoomOnDiskOf(file, bytes) &&
           setAside(descriptor, size, bytes);
  }
  ::close(descriptor);
  return fits;
}

}  // namespace dataio
