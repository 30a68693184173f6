// How this system opens HDF5 files: through a driver of the HDF5 library that makes each flush
// whole.
//
//   const hid_t file = H5Fopen("x_results.h5", H5F_ACC_RDWR, h5::accessList());
//
// The library rewrites the nodes of its groups in place, with several writes; a process that is
// killed between two of them leaves a group without its names. With this driver a flush is a commit
// of JournaledFile, and opening completes one that was cut short. Closing is a commit too, but
// tells of no failure: what must not be lost is flushed before. Files are the same as with the
// library's own driver. All accesses to one file have to use one driver: the library takes them for
// two files otherwise.
#pragma once

#include <hdf5.h>

#include <cstdint>

namespace h5 {

class JournaledFile;

/// The file access property list to open or create any file with. It stays the library's: it is not
/// to be closed. Negative if the library refuses.
hid_t accessList();

/// Makes a new file, which takes the place of an earlier one with its first flush. H5Fcreate with
/// the list above flushes by itself.
/// @return negative on failure
hid_t createFile(const char* name);

/// What stands behind an open file, which has been opened with the list above.
/// @return null if the library refuses
const JournaledFile* journaledOf(hid_t file);

/// What addresses in an open file count from: the end of a block of the user's [bytes].
std::uint64_t baseOf(hid_t file);

}  // namespace h5
