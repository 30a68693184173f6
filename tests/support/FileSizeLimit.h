// A full disk, as far as a test can have one.
//
//   const support::FileSizeLimit limit(4096);
//   EXPECT_THROW(writeMore(), ...);
#pragma once

#include <sys/resource.h>

#include <csignal>

namespace support {

/// Lets every write to a file fail that goes beyond `bytes`, as on a full disk.
class FileSizeLimit {
 public:
  explicit FileSizeLimit(rlim_t bytes) {
    std::signal(SIGXFSZ, SIG_IGN);
    ::getrlimit(RLIMIT_FSIZE, &before);
    rlimit limited = before;
    limited.rlim_cur = bytes;
    ::setrlimit(RLIMIT_FSIZE, &limited);
  }
  ~FileSizeLimit() { ::setrlimit(RLIMIT_FSIZE, &before); }
  FileSizeLimit(const FileSizeLimit&) = delete;
  FileSizeLimit& operator=(const FileSizeLimit&) = delete;
  FileSizeLimit(FileSizeLimit&&) = delete;
  FileSizeLimit& operator=(FileSizeLimit&&) = delete;

 private:
  rlimit before{};
};

}  // namespace support
