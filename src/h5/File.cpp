#include "h5/File.h"

#include <fcntl.h>

#include <system_error>

#include "h5/Handle.h"
#include "h5/group.h"
#include "h5/journal/JournaledFile.h"
#include "h5/journal/driver.h"

namespace h5 {

namespace {

// The library wraps what it hears from its driver in a long report. A user who has to do something
// is told in plain words, before.
void refuseUnusable(const std::string& name, unsigned access) {
  try {
    const JournaledFile file(name, access == File::READ_ONLY ? O_RDONLY : O_RDWR);
  } catch (const std::system_error&) {
    return;  // the library tells of it
  }
}

Handle open(const std::string& name, unsigned access) {
  refuseUnusable(name, access);
  if ((access & (File::TRUNCATE | File::CREATE)) != 0) {
    return checked(createFile(name.c_str()), "Unable to create file " + name);
  }
  const unsigned mode = (access & File::READ_WRITE) != 0 ? H5F_ACC_RDWR : H5F_ACC_RDONLY;
  return checked(H5Fopen(name.c_str(), mode, h5::accessList()), "Unable to open file " + name);
}

}  // namespace

File::File(const std::string& name, unsigned access) : filename(name), file(open(name, access)) {
  if (access != READ_ONLY) together.emplace(file.id());
}

bool File::exist(const std::string& path) const {
  return existLink(file, path);
}

void File::flush() const {
  if (!together) return;
  const Silence reasonFollows;
  if (together->commit() < 0) {
    throw Error("Unable to flush file " + filename + ": " + together->failure());
  }
}

bool File::reserve(std::uint64_t appended, std::uint64_t overwritten) const {
  return !together || together->reserve(appended, overwritten);
}

}  // namespace h5
