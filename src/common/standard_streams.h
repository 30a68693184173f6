// The standard streams of a process that was started with some of them closed, as by `<&- >&-`.
#pragma once

namespace common {

/// Puts the standard streams that are closed on /dev/null. Else the next file that is opened takes
/// the place of one, and what the program prints is written into that file. Call this first.
void openStandardStreams();

}  // namespace common
