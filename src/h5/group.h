// Links and groups. A location is an open file or group; paths are relative to it.
#pragma once

#include <string>

#include "h5/Handle.h"

namespace h5 {

/// Whether a link exists. The library answers for the last element only.
/// @throws Error if what stands before the last element does not exist.
bool existLink(const Handle& location, const std::string& path);

/// @throws Error if there is no group.
Handle openGroup(const Handle& location, const std::string& path);

/// @throws Error if something of that name exists or the group above it does not.
void createGroup(const Handle& location, const std::string& path);

/// Number of children of an open group.
/// @throws Error if `group` is no open group.
int countObjects(const Handle& group);

}  // namespace h5
