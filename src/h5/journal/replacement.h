// A new file that takes the place of an earlier one in a single step, once it is worth it. Until
// then it has no name: when the process ends before, nothing is left of it.
//
//   const Descriptor next = openReplacement(name, earlier);
//   next.writeAt(...);
//   putInPlace(next, name);
#pragma once

#include <string>

#include "h5/journal/Descriptor.h"

namespace h5 {

/// Where the file system knows no files without a name, and for the moment of the replacement, the
/// new file is called "x_results.h5.rheomark-new".
/// @param name of the file itself, which is no link
/// @throws std::system_error, as where the folder takes no new files; Refused if a file of the name
///   above is none of this program
Descriptor openReplacement(const std::string& name, const Descriptor& earlier);

/// @throws as above; the earlier file is still there then.
void putInPlace(const Descriptor& replacement, const std::string& name);

}  // namespace h5
