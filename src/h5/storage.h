// Whether a dataset can be read without harm. Files come from anywhere, damaged or made to harm,
// and the HDF5 library believes what they say about themselves: it follows a virtual dataset that
// refers to itself until the stack is used up, and copies a string of any length into room for
// another one.
//
//   const std::string fault = h5::storageFault(dataset);
//   if (!fault.empty()) ...            // nothing has been read and no memory reserved
//
// All layouts pass that keep the values in the file itself: contiguous, chunked, compact; chunks
// may be compressed by deflate.
#pragma once

#include <hdf5.h>

#include <string>

namespace h5 {

/// @param dataset open
/// @return a text to stand behind the name of a dataset whose values stand somewhere else, which is
///         neither to be read nor to be written; empty for any other
std::string foreignFault(hid_t dataset);

/// @param dataset open, in a file that was opened with the access list of driver.h
/// @return what is wrong with the dataset, to stand behind its name; empty if it can be read
std::string storageFault(hid_t dataset);

}  // namespace h5
