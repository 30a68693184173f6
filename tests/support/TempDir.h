// A temporary directory for one test: unique, empty at the start, removed at the end.
//
//   const support::TempDir dir;
//   writeFile(dir.file("run.h5"));
#pragma once

#include <gtest/gtest.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <system_error>

namespace support {

class TempDir {
 public:
  TempDir() : directory(create()) {}
  ~TempDir() {
    std::error_code ignored;
    std::filesystem::remove_all(directory, ignored);
  }
  TempDir(const TempDir&) = delete;
  TempDir& operator=(const TempDir&) = delete;
  TempDir(TempDir&&) = delete;
  TempDir& operator=(TempDir&&) = delete;

  /// Absolute path of the directory, without a slash at its end.
  std::string path() const { return directory; }
  /// Absolute path of a file in the directory; the file need not exist.
  std::string file(const std::string& name) const { return directory + "/" + name; }

 private:
  /// Names hold no dot: the system takes what follows a dot in a path for an extension.
  static std::string create() {
    std::string name = ::testing::TempDir() + "rheoXXXXXX";
    if (::mkdtemp(name.data()) == nullptr) {
      throw std::system_error(errno, std::generic_category(), "no temporary directory " + name);
    }
    return name;
  }

  std::string directory;
};

}  // namespace support
