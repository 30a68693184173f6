// An open file of the operating system: whole reads and writes at a place, size, locks.
//
//   const Descriptor file("x_results.h5", O_RDWR);
//   file.writeAt(0, bytes.data(), bytes.size());
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <utility>

namespace h5 {

/// Closed with its scope. All failures are std::system_error and name the file.
class Descriptor {
 public:
  /// @param flags of open(2); a new file gets the permissions that the user's mask leaves
  Descriptor(const std::string& name, int flags);
  ~Descriptor();
  Descriptor(Descriptor&& other) noexcept
      : fileName(std::move(other.fileName)),
        number(std::exchange(other.number, -1)),
        place(std::move(other.place)) {}
  Descriptor& operator=(Descriptor&&) = delete;
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;

  const std::string& name() const noexcept { return fileName; }

  /// What lies behind the end of the file reads as zeros.
  void readAt(std::uint64_t offset, char* bytes, std::size_t count) const;
  void writeAt(std::uint64_t offset, const char* bytes, std::size_t count) const;
  std::uint64_t size() const;
  /// Cuts the file, or lets it end with zeros.
  void resize(std::uint64_t size) const;

  /// Waits until no other process holds a lock. Does nothing where the file system has no locks.
  void lockForOne() const;
  /// Takes a lock of flock(2) or gives it back.
  void lock(int operation) const;
  /// False once the name has been removed from its folder.
  bool hasName() const;
  /// Device and inode: equal for two descriptors of one file.
  std::pair<std::uint64_t, std::uint64_t> identity() const noexcept { return place; }

 private:
  [[noreturn]] void fail(const char* action) const;

  std::string fileName;
  int number;
  std::pair<std::uint64_t, std::uint64_t> place;
};

}  // namespace h5
