// Stands between a program and the operating system: numbers the calls that change a file, and lets
// one of them fail, or all from it on. Writes to the standard streams do not count.
//
//   LD_PRELOAD=failing_calls.so FAILING_LOG=calls.txt simulation ...
//   LD_PRELOAD=failing_calls.so FAILING_CALL=7 FAILING_ERROR=28 FAILING_KIND=once simulation ...
//
// FAILING_CALL  number of the call that fails, from 1; without it all succeed
// FAILING_ERROR what errno is then
// FAILING_KIND  "once", or "lasting" if all later calls fail, too
// FAILING_LOG   file to which the name of each call is appended, with " failed" behind it if it did
//
// A call that closes a file does so even if it fails. Streams of the C++ library end in these
// calls; those of the C library are caught at fopen, fwrite and fclose.
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/uio.h>
#include <unistd.h>

#include <cerrno>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace {

int numberFrom(const char* variable) {
  const char* const text = std::getenv(variable);
  return text == nullptr ? 0 : std::atoi(text);
}

bool isLasting() {
  const char* const kind = std::getenv("FAILING_KIND");
  return kind != nullptr && std::strcmp(kind, "lasting") == 0;
}

// By the number of the call, as the functions of this name are taken.
void log(const char* name, bool fails) {
  const char* const file = std::getenv("FAILING_LOG");
  if (file == nullptr) return;
  const long log = ::syscall(SYS_openat, AT_FDCWD, file, O_WRONLY | O_CREAT | O_APPEND, 0666);
  char line[64];
  const int length = std::snprintf(line, sizeof(line), "%s%s\n", name, fails ? " failed" : "");
  ::syscall(SYS_write, log, line, length);
  ::syscall(SYS_close, log);
}

// Counts a call; errno tells why it fails.
bool fails(const char* name) {
  static const int failing = numberFrom("FAILING_CALL");
  static const bool lasting = isLasting();
  static int calls = 0;
  const int reason = errno;
  ++calls;
  const bool result = failing > 0 && (lasting ? calls >= failing : calls == failing);
  log(name, result);
  errno = result ? numberFrom("FAILING_ERROR") : reason;
  return result;
}

bool isFile(int descriptor) {
  const int reason = errno;
  struct stat status {};
  const bool result =
      descriptor > STDERR_FILENO && ::fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode);
  errno = reason;
  return result;
}

bool isWritten(int descriptor) {
  return isFile(descriptor) && (::fcntl(descriptor, F_GETFL) & O_ACCMODE) != O_RDONLY;
}

bool isWritten(std::FILE* stream) {
  return isWritten(::fileno(stream));
}

bool isDevice(const char* name) {
  return std::strncmp(name, "/dev/", 5) == 0 || std::strncmp(name, "/proc/", 6) == 0;
}

bool opensToWrite(const char* name, int flags) {
  return (flags & O_ACCMODE) != O_RDONLY && !isDevice(name);
}

bool opensToWrite(const char* name, const char* mode) {
  return std::strpbrk(mode, "wa+") != nullptr && !isDevice(name);
}

mode_t modeOf(int flags, va_list arguments) {
  return (flags & O_CREAT) == 0 ? 0 : va_arg(arguments, mode_t);
}

template <class Function>
Function* next(const char* name) {
  return reinterpret_cast<Function*>(::dlsym(RTLD_NEXT, name));
}

}  // namespace

// Both widths of a place in a file have a name of their own, with the same meaning here.
#define NEXT(name) (next<decltype(name)>(#name))

// clang-format off
#define OPEN(name)                                                              \
  int name(const char* file, int flags, ...) {                                  \
    va_list arguments;                                                          \
    va_start(arguments, flags);                                                 \
    const mode_t mode = modeOf(flags, arguments);                               \
    va_end(arguments);                                                          \
    if (opensToWrite(file, flags) && fails("open")) return -1;                  \
    return NEXT(name)(file, flags, mode);                                       \
  }
#define OPEN_AT(name)                                                           \
  int name(int folder, const char* file, int flags, ...) {                      \
    va_list arguments;                                                          \
    va_start(arguments, flags);                                                 \
    const mode_t mode = modeOf(flags, arguments);                               \
    va_end(arguments);                                                          \
    if (opensToWrite(file, flags) && fails("open")) return -1;                  \
    return NEXT(name)(folder, file, flags, mode);                               \
  }
#define FOPEN(name)                                                             \
  std::FILE* name(const char* file, const char* mode) {                         \
    if (opensToWrite(file, mode) && fails("fopen")) return nullptr;             \
    return NEXT(name)(file, mode);                                              \
  }
#define WRITE_AT(name, Offset)                                                  \
  ssize_t name(int file, const void* bytes, std::size_t count, Offset offset) { \
    if (isFile(file) && fails("pwrite")) return -1;                             \
    return NEXT(name)(file, bytes, count, offset);                              \
  }
#define RESIZE(name, Offset)                                                    \
  int name(int file, Offset size) noexcept {                                    \
    if (fails("ftruncate")) return -1;                                          \
    return NEXT(name)(file, size);                                              \
  }
#define ALLOCATE(name, Offset)                                                  \
  int name(int file, int mode, Offset offset, Offset length) {                  \
    if (fails("fallocate")) return -1;                                          \
    return NEXT(name)(file, mode, offset, length);                              \
  }
#define CHANGE_FILE(name, parameters, ...)                                      \
  int name parameters noexcept {                                                \
    if (fails(#name)) return -1;                                                \
    return NEXT(name)(__VA_ARGS__);                                             \
  }
#define BRING_TO_DISK(name)                                                     \
  int name(int file) {                                                          \
    if (fails(#name)) return -1;                                                \
    return NEXT(name)(file);                                                    \
  }
// clang-format on

extern "C" {

OPEN(open)
OPEN(open64)
OPEN_AT(openat)
OPEN_AT(openat64)
FOPEN(fopen)
FOPEN(fopen64)
WRITE_AT(pwrite, off_t)
WRITE_AT(pwrite64, off64_t)
RESIZE(ftruncate, off_t)
RESIZE(ftruncate64, off64_t)
ALLOCATE(fallocate, off_t)
ALLOCATE(fallocate64, off64_t)
CHANGE_FILE(truncate, (const char* file, off_t size), file, size)
CHANGE_FILE(unlink, (const char* file), file)
CHANGE_FILE(unlinkat, (int folder, const char* file, int flags), folder, file, flags)
CHANGE_FILE(remove, (const char* file), file)
CHANGE_FILE(rename, (const char* file, const char* newName), file, newName)
CHANGE_FILE(link, (const char* file, const char* newName), file, newName)
CHANGE_FILE(symlink, (const char* file, const char* newName), file, newName)
CHANGE_FILE(mkdir, (const char* file, mode_t mode), file, mode)
CHANGE_FILE(linkat, (int folder, const char* file, int newFolder, const char* newName, int flags),
            folder, file, newFolder, newName, flags)
CHANGE_FILE(fchmod, (int file, mode_t mode), file, mode)
CHANGE_FILE(fchown, (int file, uid_t owner, gid_t group), file, owner, group)
BRING_TO_DISK(fsync)
BRING_TO_DISK(fdatasync)

ssize_t write(int file, const void* bytes, std::size_t count) {
  if (isFile(file) && fails("write")) return -1;
  return NEXT(write)(file, bytes, count);
}

ssize_t writev(int file, const struct iovec* parts, int count) {
  if (isFile(file) && fails("writev")) return -1;
  return NEXT(writev)(file, parts, count);
}

int close(int file) {
  const bool failing = isWritten(file) && fails("close");
  const int reason = errno;
  const int status = NEXT(close)(file);
  if (failing) errno = reason;
  return failing ? -1 : status;
}

std::size_t fwrite(const void* values, std::size_t size, std::size_t count, std::FILE* stream) {
  if (isWritten(stream) && fails("fwrite")) return 0;
  return NEXT(fwrite)(values, size, count, stream);
}

int fclose(std::FILE* stream) {
  const bool failing = isWritten(stream) && fails("fclose");
  const int reason = errno;
  const int status = NEXT(fclose)(stream);
  if (failing) errno = reason;
  return failing ? EOF : status;
}

}  // extern "C"
