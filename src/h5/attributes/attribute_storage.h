// Whether an attribute can be looked for and read without harm (see also h5/storage.h). The library
// goes through the attributes of an object one after the other up to the one that it is asked for.
//
//   const std::string fault = h5::attributeFault(dataset, "t");
//   if (!fault.empty()) ...            // no attribute has been looked at by the library
//
// Attributes pass that stand in the header of the object, where all do that are few.
#pragma once

#include <hdf5.h>

#include <string>

namespace h5 {

/// @param object open, in a file that was opened with the access list of driver.h
/// @param name of the attribute that is to be opened, or asked for
/// @return what is wrong, to stand behind the name of the object; empty if the attribute can be
/// read
std::string attributeFault(hid_t object, const std::string& name);

}  // namespace h5
