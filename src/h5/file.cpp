#include "h5/file.h"

#include "h5/driver.h"
#include "h5/error.h"
#include "h5/group.h"

namespace h5 {

namespace {

Handle open(const std::string& name, unsigned access) {
  if ((access & (File::TRUNCATE | File::CREATE)) != 0) {
    return checked(H5Fcreate(name.c_str(), H5F_ACC_TRUNC, H5P_DEFAULT, h5::accessList()),
                   "Unable to create file " + name);
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

}  // namespace h5
