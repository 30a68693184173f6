// An open file of the operating system: whole reads and writes at a place, size, room, locks.
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
  /// @throws Refused for a pipe, a device or a socket, which could let the process wait for ever
  Descriptor(const std::string& name, int flags) : Descriptor(name, flags, name) {}
  /// @param name for messages; `path` is what is opened
  Descriptor(const std::string& name, int flags, const std::string& path);
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
  /// Waits until the disk holds what was written; of a folder, its names.
  void sync() const;

  /// Makes sure that the file can grow by so many bytes, and another one beside it by `beside`; its
  /// size stays as it is. A library that finds no room half-way can leave a file that does not open
  /// any more.
  /// @return false if the disk, a quota or the limit on the size of files does not allow it. True
  ///   where the file system cannot tell.
  bool reserve(std::uint64_t growth, std::uint64_t beside) const;

  /// Gives the file the owner and the permissions of another one, as far as the user may.
  void takeAccessOf(const Descriptor& other) const;
  /// Gives a file that has no name (O_TMPFILE) one. Fails if something of that name exists.
  void link(const std::string& newName) const;
  /// False once the name has been removed from its folder.
  bool hasName() const;
  /// Device and inode: equal for two descriptors of one file.
  std::pair<std::uint64_t, std::uint64_t> identity() const noexcept { return place; }

  /// Waits until no other process holds a lock. Does nothing where the file system has no locks.
  /// @throws Refused after ten seconds
  void lockForOne() const;
  /// Takes a lock of flock(2) or gives it back.
  void lock(int operation) const;
  /// What came of an attempt to become the only process that writes.
  enum class Lock { Taken, HeldByAnother, Unknown };
  /// Takes a lock that those who read do not feel, not even with a lock of their own. It ends with
  /// this descriptor and all its duplicates.
  Lock lockForWriting() const;
  Descriptor duplicate() const;

 private:
  explicit Descriptor(std::string name) : fileName(std::move(name)) {}
  [[noreturn]] void fail(const char* action) const;
  void look();

  std::string fileName;
  int number = -1;
  std::pair<std::uint64_t, std::uint64_t> place;
};

}  // namespace h5
