#include "h5/group.h"

#include "h5/Handle.h"

namespace h5 {

bool existLink(const Handle& location, const std::string& path) {
  const htri_t exists = H5Lexists(location.id(), path.c_str(), H5P_DEFAULT);
  if (exists < 0) fail("Invalid link for exist() ");
  return exists > 0;
}

Handle openGroup(const Handle& location, const std::string& path) {
  return checked(H5Gopen2(location.id(), path.c_str(), H5P_DEFAULT),
                 "Unable to open the group \"" + path + "\":");
}

void createGroup(const Handle& location, const std::string& path) {
  checked(H5Gcreate2(location.id(), path.c_str(), H5P_DEFAULT, H5P_DEFAULT, H5P_DEFAULT),
          "Unable to create the group \"" + path + "\":");
}

int countObjects(const Handle& group) {
  hsize_t count = 0;
  check(H5Gget_num_objs(group.id(), &count), "Unable to count objects in existing group or file");
  return static_cast<int>(count);
}

}  // namespace h5
