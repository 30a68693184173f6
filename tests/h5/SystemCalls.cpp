#include "h5/SystemCalls.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <exception>

namespace {

constexpr int UNLIMITED = -1;

int callsLeft = UNLIMITED;
bool isDeadly = false;
bool hasFailed = false;
bool knowsUnnamedFiles = true;
std::string refused;
long freeBytes = UNLIMITED;
long bytesToSetAside = UNLIMITED;
std::vector<std::string>* noted = nullptr;

void note(const char* call) {
  if (noted != nullptr && (noted->empty() || noted->back() != call)) noted->emplace_back(call);
}

bool isBeyondLimit() {
  if (callsLeft > 0) {
    --callsLeft;
    return false;
  }
  return callsLeft == 0;
}

int dieOrFail() {
  if (isDeadly) ::kill(::getpid(), SIGKILL);
  hasFailed = true;
  errno = EIO;
  return -1;
}

}  // namespace

// The linker leads the calls of the library here and gives the real ones these names.
extern "C" {

int __real_open(const char* name, int flags, mode_t mode);
ssize_t __real_pwrite(int file, const void* bytes, std::size_t count, off_t offset);
int __real_ftruncate(int file, off_t size);
int __real_unlink(const char* name);
int __real_rename(const char* name, const char* newName);
int __real_linkat(int from, const char* name, int to, const char* newName, int flags);
int __real_fsync(int file);
int __real_fstatvfs(int file, struct statvfs* status);
int __real_fallocate(int file, int mode, off_t offset, off_t count);

int __wrap_open(const char* name, int flags, mode_t mode) {
  if (!knowsUnnamedFiles && (flags & O_TMPFILE) == O_TMPFILE) {
    errno = EOPNOTSUPP;
    return -1;
  }
  if (!refused.empty() && (flags & O_ACCMODE) != O_RDONLY &&
      std::string_view(name).ends_with(refused)) {
    errno = EACCES;
    return -1;
  }
  return __real_open(name, flags, mode);
}

ssize_t __wrap_pwrite(int file, const void* bytes, std::size_t count, off_t offset) {
  note("write");
  if (isBeyondLimit()) {
    const off_t stop = offset + static_cast<off_t>(count);
    const off_t whole = stop - stop % 4096;
    if (whole > offset)
      __real_pwrite(file, bytes, static_cast<std::size_t>(whole - offset), offset);
    return dieOrFail();
  }
  return __real_pwrite(file, bytes, count, offset);
}

int __wrap_ftruncate(int file, off_t size) {
  if (isBeyondLimit()) return dieOrFail();
  return __real_ftruncate(file, size);
}

int __wrap_unlink(const char* name) {
  note("unlink");
  if (isBeyondLimit()) return dieOrFail();
  return __real_unlink(name);
}

int __wrap_rename(const char* name, const char* newName) {
  note("rename");
  if (isBeyondLimit()) return dieOrFail();
  return __real_rename(name, newName);
}

int __wrap_linkat(int from, const char* name, int to, const char* newName, int flags) {
  if (isBeyondLimit()) return dieOrFail();
  return __real_linkat(from, name, to, newName, flags);
}

int __wrap_fsync(int file) {
  struct stat status {};
  ::fstat(file, &status);
  note(S_ISDIR(status.st_mode) ? "sync folder" : "sync");
  return __real_fsync(file);
}

int __wrap_fstatvfs(int file, struct statvfs* status) {
  const int result = __real_fstatvfs(file, status);
  if (freeBytes != UNLIMITED) {
    status->f_frsize = 1;
    status->f_bfree = status->f_bavail = static_cast<fsblkcnt_t>(freeBytes);
  }
  return result;
}

int __wrap_fallocate(int file, int mode, off_t offset, off_t count) {
  if (bytesToSetAside != UNLIMITED && count > bytesToSetAside) {
    errno = ENOSPC;
    return -1;
  }
  return __real_fallocate(file, mode, offset, count);
}

}  // extern "C"

namespace systemCalls {

End killedInCall(int n, const std::function<void()>& work) {
  const pid_t child = ::fork();
  if (child == 0) {
    callsLeft = n;
    isDeadly = true;
    try {
      work();
    } catch (const std::exception&) {
      std::_Exit(1);
    }
    std::_Exit(0);
  }
  int status = 0;
  ::waitpid(child, &status, 0);
  if (WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL) return End::InCall;
  return WIFEXITED(status) && WEXITSTATUS(status) == 0 ? End::AfterWork : End::Failed;
}

Failure::Failure(int n) {
  callsLeft = n;
  hasFailed = false;
}

Failure::~Failure() {
  callsLeft = UNLIMITED;
}

bool Failure::hasOccurred() const {
  return hasFailed;
}

Refusal::Refusal(const std::string& nameEnd) {
  refused = nameEnd;
}

Refusal::~Refusal() {
  refused.clear();
}

NoUnnamedFiles::NoUnnamedFiles() {
  knowsUnnamedFiles = false;
}

NoUnnamedFiles::~NoUnnamedFiles() {
  knowsUnnamedFiles = true;
}

Log::Log() {
  noted = &calls;
}

Log::~Log() {
  noted = nullptr;
}

SmallDisk::SmallDisk(long bytesTold, long bytesThere) {
  freeBytes = bytesTold;
  bytesToSetAside = bytesThere;
}

SmallDisk::~SmallDisk() {
  freeBytes = UNLIMITED;
  bytesToSetAside = UNLIMITED;
}

}  // namespace systemCalls
