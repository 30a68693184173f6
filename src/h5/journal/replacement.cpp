#include "h5/journal/replacement.h"

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <string_view>
#include <system_error>

#include "h5/journal/Refused.h"

namespace h5 {

namespace {

std::string unfinishedOf(const std::string& name) {
  return name + ".rheomark-new";
}

// The first bytes are written last.
bool isUnfinished(const Descriptor& file) {
  constexpr std::string_view SIGNATURE = "\x89HDF\r\n\x1a\n";
  std::array<char, SIGNATURE.size()> start{};
  file.readAt(0, start.data(), start.size());
  return start == std::array<char, SIGNATURE.size()>{} ||
         std::string_view(start.data(), start.size()) == SIGNATURE;
}

// Removes what a process has left that was killed.
void removeUnfinished(const std::string& name) {
  try {
    if (!isUnfinished(Descriptor(name, O_RDONLY))) {
      throw Refused("file " + name + " is in the way of new results and none of this program's: " +
                    "move it elsewhere");
    }
  } catch (const std::system_error& error) {
    if (error.code() == std::errc::no_such_file_or_directory) return;
    throw;
  }
  ::unlink(name.c_str());
}

// Whether the reason is that files without a name, or ways to name them later, are not known here.
bool needsName(const std::system_error& error) {
  const int reason = error.code().value();
  return reason == EOPNOTSUPP || reason == EISDIR || reason == EINVAL || reason == ENOENT;
}

Descriptor openUnnamed(const std::string& name) {
  const std::string folder = std::filesystem::path(name).parent_path().string();
  if (::access("/proc/self/fd", X_OK) != 0) {
    throw std::system_error(ENOENT, std::generic_category(), "no /proc");
  }
  return {name, O_RDWR | O_TMPFILE, folder.empty() ? "." : folder};
}

Descriptor openNamed(const std::string& name) {
  const std::string unfinished = unfinishedOf(name);
  removeUnfinished(unfinished);
  return {name, O_RDWR | O_CREAT | O_EXCL, unfinished};
}

Descriptor open(const std::string& name) {
  try {
    return openUnnamed(name);
  } catch (const std::system_error& error) {
    if (!needsName(error)) throw;
  }
  return openNamed(name);
}

}  // namespace

Descriptor openReplacement(const std::string& name, const Descriptor& earlier) {
  Descriptor made = open(name);
  made.takeAccessOf(earlier);
  return made;
}

void putInPlace(const Descriptor& replacement, const std::string& name) {
  const std::string unfinished = unfinishedOf(name);
  if (!replacement.hasName()) {
    removeUnfinished(unfinished);
    replacement.link(unfinished);
  }
  if (std::rename(unfinished.c_str(), name.c_str()) != 0) {
    const std::system_error fault(errno, std::generic_category(), "cannot replace file " + name);
    ::unlink(unfinished.c_str());
    throw fault;
  }
}

}  // namespace h5
