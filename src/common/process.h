// How each executable starts, and the ways in which it ends.
//
//   int main(int argc, char** argv) {
//     common::startProcess();
//     try {
//       ...
//     } catch (const std::exception& fault) {
//       common::endFailed(fault);
//     }
//   }
#pragma once

#include <exception>

namespace common {

/// Standard streams that are closed are put on /dev/null. A limit on the size of files lets writes
/// fail from now on, like a full disk, instead of ending the process. HDF5 locks no files, unless
/// the user has set HDF5_USE_FILE_LOCKING: a viewer may look into a file while it is written, and
/// some network file systems know no locks.
void startProcess();

/// Tells on standard error of a failure that ends the process, and ends it with status 1. Nothing
/// else is run: HDF5 and what builds on it fall over what a failed write has left when they clean
/// up.
[[noreturn]] void endFailed(const std::exception& fault);

/// Ends the process with status 0. Like above, nothing else is run: what has to be on the disk is
/// there, and a library that falls over the closing of a file is not asked to.
/// @throws BaseException if some of what has been told on standard output is lost, as on a full
///         disk.
[[noreturn]] void endWell();

/// @throws BaseException if some of what has been told on standard output is lost, as on a full
///         disk.
void requireStandardOutput();

}  // namespace common
